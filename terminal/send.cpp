#include "terminal/send.h"

#include "tap/letters.h"
#include "terminal/answers.h"
#include "terminal/desk.h"
#include "terminal/exit_status.h"
#include "terminal/mouth.h"
#include "terminal/readable.h"
#include "terminal/round.h"

#include "messaging/outgoing.h"
#include "text/failure.h"

#include <QFile>
#include <QJsonArray>

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace terminal {

namespace {

void declare(Options& options)
{
    options.add_value(QStringLiteral("to"), QStringLiteral("NAME"),
                      QStringLiteral("to this user; may be given several times"));
    options.add_value(QStringLiteral("group"), QStringLiteral("NAME"),
                      QStringLiteral("to each member of this group"));
    options.add_switch(QStringLiteral("all"), QStringLiteral("to everybody"));
    options.add_switch(QStringLiteral("cut"),
                       QStringLiteral("sends the beginning of a text that is too long"));
    options.add_switch(QStringLiteral("ask"),
                       QStringLiteral("asks first who is there, as for a name not in users.txt"));
    options.add_value(QStringLiteral("for"), QStringLiteral("SECONDS"),
                      QStringLiteral("how long to ask, at most"), QStringLiteral("3"));
    options.add_value(QStringLiteral("wait"), QStringLiteral("SECONDS"),
                      QStringLiteral("waits so long for an answer, and prints it"));
    options.add_value(QStringLiteral("count"), QStringLiteral("N"),
                      QStringLiteral("how many answers to wait for"), QStringLiteral("1"));
}

void require_one_kind_of_recipient(Options const& options)
{
    int kinds = 0;
    for (auto const& kind :
         {QStringLiteral("to"), QStringLiteral("group"), QStringLiteral("all")}) {
        kinds += options.has(kind) ? 1 : 0;
    }
    if (kinds != 1) {
        throw WrongUsage{QStringLiteral("one of --to, --group and --all tells who it is for")};
    }
    if (options.values(QStringLiteral("to")).contains(QString())) {
        throw WrongUsage{QStringLiteral("an empty name is nobody's")};
    }
}

/// Standard input, without the line ends behind its last line.
QString entered()
{
    constexpr qint64 more_than_any_message = 1 << 20;
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return {};
    }
    auto text = QString::fromLocal8Bit(input.read(more_than_any_message));
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'))) {
        text.chop(1);
    }
    return text;
}

std::string text_of(Options const& options, Desk const& desk)
{
    auto const operands = options.operands();
    bool const is_entered = operands.isEmpty() || operands == QStringList{QStringLiteral("-")};
    auto const words = is_entered ? entered() : operands.join(QLatin1Char(' '));
    auto text = tap::as_typed(desk.codec.from_unicode(words));
    if (text.empty()) {
        throw WrongUsage{QStringLiteral("an empty message says nothing")};
    }
    if (text.size() > messaging::draft_limit && !options.has(QStringLiteral("cut"))) {
        throw WrongUsage{QStringLiteral("a message has %1 characters at most, this one %2; --cut "
                                        "sends its beginning")
                             .arg(messaging::draft_limit)
                             .arg(text.size())};
    }
    return text.substr(0, messaging::draft_limit);
}

/// What is to go out, and who was not found.
struct Post {
    std::vector<tap::Letter> letters;
    QStringList missing;
};

Post post_to_group(QString const& group, std::string const& text, Desk const& desk)
{
    auto const letters =
        tap::letters_to_group(desk.codec.from_unicode(group), text, desk.folder.forms);
    if (!letters) {
        return {{}, {QStringLiteral("there is no group \"%1\"").arg(group)}};
    }
    if (letters->empty()) {
        return {{}, {QStringLiteral("nobody of group \"%1\" is known here").arg(group)}};
    }
    return {*letters, {}};
}

Post post_of(Options const& options, std::string const& text, Desk const& desk)
{
    auto const& frmMain = desk.folder.forms.frmMain;
    if (options.has(QStringLiteral("all"))) {
        return {{tap::letter_to_all(text, frmMain)}, {}};
    }
    if (options.has(QStringLiteral("group"))) {
        return post_to_group(options.value(QStringLiteral("group")), text, desk);
    }
    Post post;
    for (auto const& name : options.values(QStringLiteral("to"))) {
        if (auto letter = tap::letter_to(desk.codec.from_unicode(name), text, frmMain)) {
            post.letters.push_back(std::move(*letter));
        } else {
            post.missing += QStringLiteral("nobody is called \"%1\"").arg(name);
        }
    }
    return post;
}

/// A message on its way out, from the command line to the last datagram.
class Errand {
public:
    explicit Errand(Options const& options)
        : options_(options), desk_(options),
          asking_(options.seconds(QStringLiteral("for")).value()),
          waiting_(options.seconds(QStringLiteral("wait"))),
          count_(options.number(QStringLiteral("count"), 1, 1000).value()),
          text_(text_of(options, desk_))
    {
    }

    int run()
    {
        find_recipients();
        if (!post_.missing.isEmpty()) {
            for (auto const& missing : post_.missing) {
                Printer::complain(missing + QStringLiteral("; nothing is sent"));
            }
            return nobody;
        }
        if (options_.has(QStringLiteral("to")) && is_to_oneself()) {
            return nobody;
        }
        if (waiting_ && !ear_) {
            open_ear(); // Before the message is out: the answer may be quick.
        }
        send_all();
        return waiting_ ? print_answers(desk_, *ear_, *waiting_, count_, options_.printer()) : done;
    }

private:
    void find_recipients()
    {
        post_ = post_of(options_, text_, desk_);
        if (options_.has(QStringLiteral("ask"))) {
            open_ear();
            ask();
        } else if (!post_.missing.isEmpty() && options_.has(QStringLiteral("to"))) {
            // Beside a messenger not everybody may listen; then what it has saved is all.
            if (text::attempt([this] { open_ear(); })) {
                ask();
            }
        }
    }

    /// A messenger drops what comes under its own identity, so nobody would see it.
    [[nodiscard]] bool is_to_oneself() const
    {
        auto const own = std::ranges::find(post_.letters, desk_.folder.forms.frmMain.user,
                                           &tap::Letter::recipient);
        if (own == post_.letters.end()) {
            return false;
        }
        Printer::complain(
            QStringLiteral("\"%1\" is the sender, whose messenger drops what it has sent itself; "
                           "nothing is sent.\nAnother identity helps: USERNAME=script vexlotap "
                           "send ...")
                .arg(readable(desk_.codec, own->asked)));
        return true;
    }

    void open_ear() { ear_ = std::make_unique<Ear>(desk_.folder.forms.frmMain.udplistenport); }

    void ask()
    {
        auto& frmMain = desk_.folder.forms.frmMain;
        tap::Roll roll(frmMain.user, desk_.letters);
        auto const heard = ask_around(desk_, *ear_, roll, asking_, [&] {
            roll.enter_into(frmMain.userlist);
            post_ = post_of(options_, text_, desk_);
            return post_.missing.isEmpty() && !options_.has(QStringLiteral("ask"));
        });
        if (heard.stopped) {
            throw text::Failure("stopped; nothing is sent", 0, "ask");
        }
    }

    void send_all()
    {
        Mouth mouth(desk_.folder.forms.frmMain.udpsendremote);
        for (auto const& letter : post_.letters) {
            mouth.say(letter.datagram);
            tell(letter);
        }
    }

    void tell(tap::Letter const& letter) const
    {
        auto const name = readable(desk_.codec, desk_.letters.proper(letter.name));
        auto const recipient = readable(desk_.codec, letter.recipient);
        QStringList others;
        for (std::string const& other : letter.others) {
            others += readable(desk_.codec, desk_.letters.proper(other));
        }
        options_.printer().tell(QStringLiteral("sent to %1 %2").arg(name, recipient),
                                {{QStringLiteral("sent"), true},
                                 {QStringLiteral("name"), name},
                                 {QStringLiteral("identity"), recipient},
                                 {QStringLiteral("others"), QJsonArray::fromStringList(others)}});
        if (!others.isEmpty()) {
            Printer::complain(
                QStringLiteral("\"%1\" is also the end of %2; the first one got it")
                    .arg(readable(desk_.codec, letter.asked), others.join(QStringLiteral(", "))));
        }
    }

    Options const& options_;
    Desk desk_;
    std::chrono::milliseconds asking_;
    std::optional<std::chrono::milliseconds> waiting_;
    int count_;
    std::string text_;
    Post post_;
    std::unique_ptr<Ear> ear_;
};

} // namespace

int send(QStringList const& arguments)
{
    Options options(QStringLiteral("send"),
                    QStringLiteral("Sends a message as the messenger does. Without TEXT it is read "
                                   "from\nstandard input."),
                    QStringLiteral("[TEXT]..."));
    declare(options);
    options.take(arguments);
    require_one_kind_of_recipient(options);
    return Errand(options).run();
}

} // namespace terminal
