#include "terminal/eyes.h"

#include "network/directory.h"
#include "network/wire.h"

namespace terminal {

namespace {

QString const as_option = QStringLiteral("as");
QString const away_option = QStringLiteral("away");

/// The identity itself, or the one that a message to that name would go to.
std::string identity_of(std::string const& whom, forms::FrmMain const& frmMain)
{
    return whom.starts_with('[') ? frmMain.letters.upper(whom)
                                 : network::lookupuser(whom, frmMain.userlist, frmMain.letters);
}

} // namespace

void add_eyes(Options& options)
{
    options.add_value(as_option, QStringLiteral("WHO"),
                      QStringLiteral("with the eyes of a name, or an identity: '[ROOM07\\BOB]'"));
    options.add_value(away_option, QStringLiteral("TEXT"),
                      QStringLiteral("as if away with this response, or \"Forward to: NAME\""));
}

std::optional<tap::View> eyes_of(Options const& options, Desk const& desk)
{
    auto const& frmMain = desk.folder.forms.frmMain;
    auto view = tap::view_of(desk.folder.forms);
    if (options.has(as_option)) {
        auto const whom = desk.codec.from_unicode(options.value(as_option));
        view.user = identity_of(whom, frmMain);
        if (view.user == network::wire::to_nobody || view.user == network::wire::to_all) {
            Printer::complain(QStringLiteral("nobody in the directory is called \"%1\"")
                                  .arg(options.value(as_option)));
            return std::nullopt;
        }
        view = {.user = view.user,
                .friendlyname = network::sender_name(view.user, frmMain.userlist),
                .userlist = view.userlist,
                .allusers = view.allusers};
    }
    if (options.has(away_option)) {
        view.away = true;
        view.autorespond = desk.codec.from_unicode(options.value(away_option));
    }
    return view;
}

} // namespace terminal
