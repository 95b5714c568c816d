#pragma once

#include "forms/forms.h"
#include "messaging/away.h"
#include "messaging/sent_records.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "platform/environment.h"
#include "text/failure.h"

#include <string>
#include <string_view>

namespace messaging {

/// The compose box, the recipients and the send button: what a person typed becomes datagrams, rows
/// of log and history, and a word in the status line.
class Composer {
public:
    struct Uses {
        forms::Forms& forms;
        Away& away;
        SentRecords& records;
        network::Transport& transport;
        network::Trouble& trouble;
        platform::Environment const& environment;
    };

    explicit Composer(Uses uses);

    /// The send button. A failure of the network is told by a box and empties the draft.
    void sendbtn();
    /// The clear button; it also gives up a forward.
    void Command3();

private:
    void text_changed();
    void take_selected_users();
    void users_clicked();
    void group_clicked();

    void remember_draft();
    void send_draft();
    void send_to_group();
    void send_to_all();
    void send_to_users();
    void send_to_one(std::string_view name);
    void end_forward();
    void finish();
    void reset_ports_if_wanted();
    void failed(text::Failure const& failure);
    [[nodiscard]] std::string lookup(std::string_view name) const;
    void keep_history(std::string_view target);

    Uses uses_;
    forms::FrmMain& frmMain_;
};

} // namespace messaging
