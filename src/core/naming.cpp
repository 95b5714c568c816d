#include "core/naming.h"

#include "forms/box_open.h"
#include "network/identity.h"
#include "text/fields.h"

namespace core {

namespace {

constexpr std::string_view setup_title = "Vexlo Instant Messaging Setup";

} // namespace

Naming::Naming(forms::FrmMain& frmMain, platform::Boxes& boxes,
               platform::Environment const& environment)
    : frmMain_(frmMain), boxes_(boxes), environment_(environment)
{
}

void Naming::first_name()
{
    std::string name;
    {
        forms::BoxOpen const open(frmMain_);
        name = ask(setup_title, environment_.value("username"));
    }
    frmMain_.friendlyname = frmMain_.letters.upper(name);
    rebuild_user(frmMain_.letters.upper(network::own_account(environment_)));
}

void Naming::Command1()
{
    // This box leaves boxopen alone: messages go on popping up behind it.
    auto const name = ask("Change your Vexlo IM Name", frmMain_.friendlyname);
    if (name.empty()) {
        return;
    }
    frmMain_.friendlyname = frmMain_.letters.upper(name);
    rebuild_user(network::own_account(environment_));
    frmMain_.getusers.run();
    frmMain_.saveallsettings.run();
}

void Naming::makename()
{
    if (frmMain_.friendlyname.empty()) {
        std::string name;
        {
            forms::BoxOpen const open(frmMain_);
            name = ask(setup_title, frmMain_.friendlyname);
        }
        if (name.empty()) {
            return;
        }
        frmMain_.friendlyname = frmMain_.letters.upper(name);
    }
    rebuild_user(frmMain_.letters.upper(network::own_account(environment_)));
}

std::string Naming::ask(std::string_view title, std::string_view default_text)
{
    return boxes_.ask({.prompt = "Please enter your name:" + std::string(text::line_end),
                       .title = std::string(title),
                       .default_text = std::string(default_text)});
}

void Naming::rebuild_user(std::string_view account)
{
    if (frmMain_.myname.empty()) {
        frmMain_.myname = account;
    }
    frmMain_.user = network::identity_of(frmMain_.myname, frmMain_.letters);
}

} // namespace core
