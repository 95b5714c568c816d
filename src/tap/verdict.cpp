#include "tap/verdict.h"

#include "tap/kind.h"

#include "messaging/recipient_filter.h"

#include <algorithm>
#include <array>
#include <utility>
#include <variant>

namespace tap {

namespace wire = network::wire;

namespace {

std::string reason_of_nonsense(Kind kind)
{
    if (kind == Kind::empty) {
        return "there is nothing in it";
    }
    if (kind == Kind::probe) {
        return "one blank, by which a program looks whether the network is back";
    }
    return kind == Kind::dash ? "a dash datagram, which no program reads"
                              : "neither presence nor a message: fewer than two \"]\"";
}

} // namespace

View view_of(forms::Forms const& forms)
{
    auto const& frmMain = forms.frmMain;
    auto const& settings = forms.settings;
    return {.user = frmMain.user,
            .friendlyname = frmMain.friendlyname,
            .userlist = frmMain.userlist.rows(),
            .allusers = frmMain.allusers.rows(),
            .myown = settings.myown.on(),
            .showme = settings.showme.on(),
            .away = frmMain.away.on(),
            .autorespond = settings.autorespond.text(),
            .autoreply = settings.autoreply.on()};
}

std::string_view name_of(Act act)
{
    static constexpr std::array<std::string_view, 10> names{
        "shows",    "answers",  "learns", "notes",  "ignores",
        "responds", "forwards", "drops",  "blocks", "waits",
    };
    return names.at(static_cast<std::size_t>(act));
}

Onlooker::Onlooker(View const& view, text::CharacterSet const& letters)
    : forms_(letters), transport_(forms_.frmMain, listening_, sending_),
      presence_(forms_.frmMain, forms_.settings, transport_, environment_), pool_(forms_, clock_),
      stand_in_(forms_, transport_, clock_), inbound_(forms_, pool_, stand_in_, clock_),
      queue_(forms_.frmMain, presence_, inbound_)
{
    auto& frmMain = forms_.frmMain;
    auto& settings = forms_.settings;
    frmMain.user = view.user;
    frmMain.friendlyname = view.friendlyname;
    frmMain.userlist.add_all(view.userlist);
    frmMain.allusers.add_all(view.allusers);
    frmMain.away.set(view.away ? 1 : 0);
    settings.myown.set(view.myown ? 1 : 0);
    settings.showme.set(view.showme ? 1 : 0);
    settings.autorespond.set_text(view.autorespond);
    settings.autoreply.set(view.autoreply ? 1 : 0);
    pool_.start();
}

Verdict Onlooker::take(std::string_view datagram)
{
    if (!forms_.frmMain.cue.empty()) {
        return {.act = Act::waits, .reason = "behind the datagram that blocks the queue"};
    }
    handle(datagram);
    Verdict verdict{.sends = std::exchange(sending_.sent, {}),
                    .popup = popup(),
                    .status = forms_.frmMain.statustext.caption()};
    auto const row = messaging::read_row(datagram, forms_.frmMain.letters);
    if (auto const* presence = std::get_if<wire::Presence>(&row)) {
        judge(verdict, *presence);
    } else if (auto const* message = std::get_if<wire::Message>(&row)) {
        judge(verdict, *message);
    } else if (!forms_.frmMain.cue.empty()) {
        verdict.act = Act::blocks;
        verdict.reason = "a presence marker without \"=\" stays at the head of the queue: nothing "
                         "behind it is read until a restart";
    } else {
        verdict.reason = reason_of_nonsense(kind_of(row, datagram));
    }
    return verdict;
}

void Onlooker::handle(std::string_view datagram)
{
    auto& frmMain = forms_.frmMain;
    former_userlist_ = frmMain.userlist.rows();
    former_allusers_ = frmMain.allusers.rows();
    frmMain.statustext.set_caption("");
    forms_.log.lstMessages.clear();
    forms_.historyfrm.ListView1.clear();
    pool_.dissmissall(); // Each message finds ten free slots; how many are busy changes no verdict.
    queue_.arrive(std::string(datagram));
    queue_.tick();
}

std::optional<Verdict::Popup> Onlooker::popup() const
{
    auto const shown = std::ranges::find_if(
        forms_.popup, [](forms::Popup const& each) { return each.window.visible(); });
    if (shown == forms_.popup.end()) {
        return std::nullopt;
    }
    return Verdict::Popup{.from = shown->messagefrom.caption(),
                          .text = shown->message.text(),
                          .to_all = !shown->Label3.caption().empty()};
}

void Onlooker::judge(Verdict& verdict, wire::Presence const& presence) const
{
    if (presence.marker != wire::sign_off) {
        judge_announced(verdict, presence);
    } else if (verdict.status.empty()) {
        verdict.act = Act::ignores;
        verdict.reason = "the directory does not hold this identity with this name";
    } else {
        verdict.act = Act::notes;
        verdict.reason = "the status line tells it; the row in the directory stays";
    }
}

void Onlooker::judge_announced(Verdict& verdict, wire::Presence const& presence) const
{
    auto const rows = userlist();
    auto const names = allusers();
    bool const learns = rows != former_userlist_ || names != former_allusers_;
    verdict.act = !verdict.sends.empty() ? Act::answers : learns ? Act::learns : Act::ignores;
    if (rows.size() > former_userlist_.size()) {
        verdict.reason =
            verdict.sends.size() > 1 ? "twice, since this is a newcomer" : "a newcomer";
        verdict.reason += ": a new row, and the list on show is emptied";
    } else if (rows != former_userlist_) {
        verdict.reason = "a new name: the row is replaced, and the list on show is emptied";
    } else if (learns) {
        verdict.reason = "a known row: the name comes on show";
    } else if (presence.name == forms_.frmMain.friendlyname && !forms_.settings.showme.on()) {
        verdict.reason = "the own name, which is not wanted on show";
    } else {
        verdict.reason = "known, and on show already";
    }
}

void Onlooker::judge(Verdict& verdict, wire::Message const& message) const
{
    bool const myown = forms_.settings.myown.value() != 0;
    switch (messaging::fate_of(message, {.user = forms_.frmMain.user, .myown = myown})) {
    case messaging::Fate::for_us:
        judge_absent(verdict, message);
        break;
    case messaging::Fate::own_to_all:
        verdict.reason =
            "the own message to all, and \"" + forms_.settings.myown.caption + "\" is off";
        break;
    case messaging::Fate::own:
        verdict.reason = "the own message";
        break;
    case messaging::Fate::for_others:
        verdict.reason =
            "for " + std::string(message.recipient) + ", not for " + forms_.frmMain.user;
        break;
    }
}

void Onlooker::judge_absent(Verdict& verdict, wire::Message const& message) const
{
    if (verdict.popup) {
        verdict.act = Act::shows;
        verdict.reason = verdict.popup->to_all ? "to all" : "for " + forms_.frmMain.user;
    } else if (verdict.sends.empty()) {
        verdict.reason = message.sender == forms_.frmMain.user
                             ? "away, and the own messages are not answered"
                             : "away, and what begins with \":RE:\" is not answered";
    } else {
        // The stand-in's own records tell which of its datagrams is which.
        bool const forwards = forms_.historyfrm.ListView1.row(1).at(2) == "From";
        verdict.act = forwards ? Act::forwards : Act::responds;
        verdict.reason = forwards && verdict.sends.size() > 1 ? "away, and responds" : "away";
    }
}

} // namespace tap
