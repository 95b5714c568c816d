#pragma once

#include "tap/no_desk.h"

#include "forms/forms.h"
#include "messaging/inbound.h"
#include "messaging/queue_row.h"
#include "messaging/receive_queue.h"
#include "messaging/stand_in.h"
#include "network/presence.h"
#include "network/transport.h"
#include "popups/pool.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tap {

/// Whose eyes a datagram is seen with: one program, and what it goes by.
struct View {
    std::string user;                  ///< own identity, brackets included, upper case
    std::string friendlyname;          ///< own display name, upper case
    std::vector<std::string> userlist; ///< directory rows
    std::vector<std::string> allusers; ///< names on show
    bool myown = false;                ///< own messages to all are wanted
    bool showme = true;                ///< the own name is wanted on show
    bool away = false;
    std::string autorespond = {}; ///< the response in force, or "Forward to: " and a name
    bool autoreply = false;       ///< what is forwarded is answered, too
};

/// As the forms of a program say.
[[nodiscard]] View view_of(forms::Forms const& forms);

enum class Act {
    shows,    ///< a popup
    answers,  ///< an announcement, once or twice
    learns,   ///< a row, or a name to show, from somebody else's answer
    notes,    ///< a sign-off, in the status line
    ignores,  ///< presence that changes nothing
    responds, ///< in the place of its absent user
    forwards, ///< in the place of its absent user; perhaps it responds, too
    drops,
    blocks, ///< its queue, for good
    waits,  ///< behind the datagram that blocks the queue
};

/// The enumerator's own word.
[[nodiscard]] std::string_view name_of(Act act);

/// What a program does with one datagram, and why.
struct Verdict {
    struct Popup {
        std::string from;
        std::string text;
        bool to_all = false;

        bool operator==(Popup const&) const = default;
    };

    Act act = Act::drops;
    std::string reason = {};             ///< part of a sentence
    std::vector<std::string> sends = {}; ///< datagrams, in order
    std::optional<Popup> popup = {};
    std::string status = {}; ///< what the status line says of it; empty where it says nothing
};

/// The inbound half of one program: its own flows on its own forms, without the rest of it and
/// without a desk. So it does what a program does, and nobody sees it.
class Onlooker {
public:
    /// `letters` must outlive the onlooker.
    Onlooker(View const& view, text::CharacterSet const& letters);
    Onlooker(Onlooker const&) = delete;
    Onlooker& operator=(Onlooker const&) = delete;

    /// Takes one datagram off the segment. What a program learns from it is known to the next one.
    [[nodiscard]] Verdict take(std::string_view datagram);

    [[nodiscard]] std::vector<std::string> userlist() const
    {
        return forms_.frmMain.userlist.rows();
    }
    [[nodiscard]] std::vector<std::string> allusers() const
    {
        return forms_.frmMain.allusers.rows();
    }

private:
    void handle(std::string_view datagram);
    void judge(Verdict& verdict, network::wire::Presence const& presence) const;
    void judge(Verdict& verdict, network::wire::Message const& message) const;
    void judge_announced(Verdict& verdict, network::wire::Presence const& presence) const;
    void judge_absent(Verdict& verdict, network::wire::Message const& message) const;
    [[nodiscard]] std::optional<Verdict::Popup> popup() const;

    StoppedClock clock_;
    NoEnvironment environment_;
    Outbox listening_;
    Outbox sending_;

    forms::Forms forms_;
    network::Transport transport_;
    network::Presence presence_;
    popups::Pool pool_;
    messaging::StandIn stand_in_;
    messaging::Inbound inbound_;
    messaging::ReceiveQueue queue_;

    std::vector<std::string> former_userlist_; ///< before the datagram
    std::vector<std::string> former_allusers_;
};

} // namespace tap
