#include "terminal/who.h"

#include "terminal/desk.h"
#include "terminal/exit_status.h"
#include "terminal/readable.h"
#include "terminal/round.h"

#include "messaging/groups.h"
#include "network/directory.h"
#include "text/failure.h"

#include <QJsonArray>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace terminal {

namespace {

void declare(Options& options)
{
    options.add_value(QStringLiteral("for"), QStringLiteral("SECONDS"),
                      QStringLiteral("how long to wait for answers"), QStringLiteral("5"));
    options.add_switch(QStringLiteral("silent"), QStringLiteral("asks nobody, and only listens"));
    options.add_switch(QStringLiteral("known"),
                       QStringLiteral("lists users.txt, without the network"));
    options.add_switch(QStringLiteral("groups"),
                       QStringLiteral("lists the groups and their members, without the network"));
}

/// Tells one line at a time who is there, or was.
class Listing {
public:
    enum class Source { network, file };

    Listing(Desk const& desk, Printer const& printer, Source source)
        : desk_(desk), printer_(printer), source_(source)
    {
    }

    void tell(std::string_view name, std::string_view identity) const
    {
        // As the messenger's own list shows it.
        auto const shown = readable(desk_.codec, desk_.letters.proper(name));
        auto const behind = readable(desk_.codec, identity);
        printer_.tell(shown + QLatin1Char('\t') + behind,
                      {{QStringLiteral("name"), shown},
                       {QStringLiteral("identity"), behind},
                       {QStringLiteral("fresh"), source_ == Source::network}});
    }

    void tell_directory() const
    {
        for (std::string const& row : desk_.folder.forms.frmMain.userlist.rows()) {
            tell(network::row_name(row), std::string_view(row).substr(0, row.find('=')));
        }
    }

private:
    Desk const& desk_;
    Printer const& printer_;
    Source source_;
};

void tell_groups(Desk const& desk, Printer const& printer)
{
    auto const& forms = desk.folder.forms;
    for (std::string const& row : forms.frmMain.List1.rows()) {
        auto const group = messaging::chosen_group(row, forms.groups);
        auto const name = readable(desk.codec, group.name);
        QStringList members;
        for (std::string const& member : group.members) {
            members += readable(desk.codec, desk.letters.proper(member));
        }
        printer.tell(name + QLatin1Char('\t') + members.join(QStringLiteral(", ")),
                     {{QStringLiteral("group"), name},
                      {QStringLiteral("members"), QJsonArray::fromStringList(members)}});
    }
}

/// Empty when another program has the port.
std::optional<std::vector<tap::Roll::Person>> heard(Options const& options, Desk const& desk)
{
    auto const& frmMain = desk.folder.forms.frmMain;
    auto const time = options.seconds(QStringLiteral("for")).value();
    std::unique_ptr<Ear> ear;
    try {
        ear = std::make_unique<Ear>(frmMain.udplistenport);
    } catch (text::Failure const& failure) {
        if (failure.text != text::address_in_use) {
            throw;
        }
        return std::nullopt;
    }
    tap::Roll roll(frmMain.user, desk.letters);
    if (options.has(QStringLiteral("silent"))) {
        listen_around(*ear, roll, time);
    } else {
        ask_around(desk, *ear, roll, time);
    }
    return roll.people();
}

} // namespace

int who(QStringList const& arguments)
{
    Options options(
        QStringLiteral("who"),
        QStringLiteral("Asks who is there, and lists who answers: name, tab, identity.\n"
                       "Whoever asks comes onto the lists of all."));
    declare(options);
    options.take(arguments);
    auto const printer = options.printer();
    Desk const desk(options);
    Listing const saved(desk, printer, Listing::Source::file);
    if (options.has(QStringLiteral("groups"))) {
        tell_groups(desk, printer);
        return done;
    }
    if (options.has(QStringLiteral("known"))) {
        saved.tell_directory();
        return done;
    }
    auto const people = heard(options, desk);
    if (!people) {
        Printer::complain(QStringLiteral("another program listens on port %1, so nobody was asked: "
                                         "these are the names of users.txt")
                              .arg(desk.folder.forms.frmMain.udplistenport));
        saved.tell_directory();
        return done;
    }
    Listing const fresh(desk, printer, Listing::Source::network);
    for (auto const& person : *people) {
        fresh.tell(person.name, person.identity);
    }
    if (people->empty()) {
        Printer::complain(QStringLiteral("nobody was heard; `vexlotap doctor` looks why"));
        return heard_nothing;
    }
    return done;
}

} // namespace terminal
