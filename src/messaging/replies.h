#pragma once

#include "forms/forms.h"
#include "messaging/away.h"
#include "messaging/sent_records.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "platform/boxes.h"
#include "platform/environment.h"
#include "text/failure.h"

#include <string>
#include <string_view>

namespace messaging {

/// The reply send: the message windows leave their text in hidden fields, name the addressee in
/// their own `response`, and run it.
class Replies {
public:
    struct Uses {
        forms::Forms& forms;
        Away& away;
        SentRecords& records;
        network::Transport& transport;
        network::Trouble& trouble;
        platform::Boxes& boxes;
        platform::Environment const& environment;
    };

    explicit Replies(Uses uses);

    /// Sends what stands in `txtSendMessage`. Where the network refuses, a box tells it, and
    /// `reply_failed` says so to the window.
    void cmdSend();

private:
    struct Address {
        std::string target;    ///< display name
        std::string recipient; ///< recipient field
    };

    void send_reply();
    [[nodiscard]] forms::Popup* asking_window();
    void send_for(forms::Popup& window);
    [[nodiscard]] Address address_of_main_window();
    void send_to_group();
    void send_to(Address const& address);
    void send_text(std::string_view recipient);
    void tell_nobody(std::string_view target);
    void failed(text::Failure const& failure);
    void reset_ports_if_wanted();
    [[nodiscard]] std::string lookup(std::string_view name) const;

    Uses uses_;
    forms::FrmMain& frmMain_;
};

} // namespace messaging
