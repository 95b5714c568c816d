#include "messaging/stand_in.h"

#include "network/directory.h"
#include "records/history_row.h"
#include "text/failure.h"
#include "text/fields.h"

#include <string>

namespace messaging {

namespace wire = network::wire;

namespace {

constexpr std::string_view forward_mark = "Forward to: ";
constexpr std::string_view answered_mark = ":RE:";
constexpr std::size_t off_entry = 4;

} // namespace

StandIn::StandIn(forms::Forms& forms, network::Transport& transport, platform::Clock const& clock)
    : forms_(forms), transport_(transport), clock_(clock)
{
    forms_.menuform.autores.chosen = [this](std::size_t entry) { choose(entry); };
}

void StandIn::choose(std::size_t entry)
{
    auto& frmMain = forms_.frmMain;
    if (entry < off_entry) {
        forms_.menuform.autores.check_only(entry);
        forms_.settings.autorespond.set_text(forms_.settings.ar.at(entry).text());
        frmMain.away.set(1);
        frmMain.away.clicked.run();
    } else {
        frmMain.away.set(0);
        frmMain.away.clicked.run();
        forms_.menuform.autores.check_only(off_entry);
    }
    frmMain.Label5.set_caption("Auto Respond On: " + forms_.settings.autorespond.text());
}

void StandIn::handle(wire::Message const& message)
{
    if (message.sender == forms_.frmMain.user || message.body.starts_with(answered_mark)) {
        return;
    }
    std::string_view const response = forms_.settings.autorespond.text();
    if (response.starts_with(forward_mark)) {
        forward(message, response.substr(forward_mark.size()));
        if (forms_.settings.autoreply.value() == 0) {
            return;
        }
    }
    respond(message);
}

void StandIn::forward(wire::Message const& message, std::string_view target)
{
    auto const& frmMain = forms_.frmMain;
    auto const recipient = network::lookupuser(target, frmMain.userlist, frmMain.letters);
    auto body = "-- Msg auto fwded by " + frmMain.friendlyname + " --";
    body.append(text::line_end).append(message.body);
    // The target sees it as coming from its first sender.
    text::attempt([&] { transport_.send(wire::message(message.sender, recipient, body)); });
    history_row("From", message);
}

void StandIn::respond(wire::Message const& message)
{
    auto const& frmMain = forms_.frmMain;
    // Never marked ":RE:", whatever the body begins with: two absent peers answer each other
    // without end.
    auto body = std::string(message.body).append(text::line_end);
    body += wire::signed_text(frmMain.friendlyname,
                              "(Auto Resp) " + forms_.settings.autorespond.text());
    text::attempt([&] { transport_.send(wire::message(frmMain.user, message.sender, body)); });
    history_row("Auto Rep to", message);
}

void StandIn::history_row(std::string_view kind, wire::Message const& message)
{
    auto const now = clock_.now();
    auto const body = wire::split_body(message.body);
    auto const head_name = body.head.substr(0, body.head.empty() ? 0 : body.head.size() - 1);
    auto& history = forms_.historyfrm;
    records::add_row(history.ListView1, now,
                     {.kind = kind,
                      .party = forms_.frmMain.letters.proper(head_name),
                      .head = body.head,
                      .main_text = body.main,
                      .recipient = message.recipient,
                      .answer = forms_.settings.autorespond.text(),
                      // No name is known here: it begins with the blank.
                      .caption = " Msg " + text::caption_time(now)});
    text::attempt([&] { history.historyrefresh.run(); });
}

} // namespace messaging
