#include "messaging/inbound.h"

#include "messaging/recipient_filter.h"
#include "network/directory.h"
#include "records/history_row.h"
#include "text/failure.h"

#include <string>

namespace messaging {

using network::wire::Message;

Inbound::Inbound(forms::Forms& forms, popups::Pool& pool, StandIn& stand_in,
                 platform::Clock const& clock)
    : forms_(forms), pool_(pool), stand_in_(stand_in), clock_(clock)
{
}

void Inbound::handle(Message const& message)
{
    auto const fate = fate_of(
        message, {.user = forms_.frmMain.user, .myown = forms_.settings.myown.value() != 0});
    if (fate != Fate::for_us) {
        return;
    }
    if (forms_.frmMain.away.on()) {
        stand_in_.handle(message);
    } else {
        deliver(message);
    }
}

void Inbound::deliver(Message const& message)
{
    auto const sender = network::sender_name(message.sender, forms_.frmMain.userlist);
    text::attempt([&] { forms_.frmMain.playsound.run(); });
    log_row(sender, message.body);
    pool_.recountpopups();
    text::attempt([&] {
        pool_.open({.sender = sender, .recipient = message.recipient, .text = message.body});
    });
    history_row(sender, message);
    pool_.recountpopups();
}

void Inbound::log_row(std::string_view sender, std::string_view body)
{
    auto row = text::log_stamp(clock_.now()) + "Msg from ";
    row.append(sender).append("\t\r\n").append(body).append("\r\n---");
    forms_.log.lstMessages.add(row);
}

void Inbound::history_row(std::string_view sender, Message const& message)
{
    auto const now = clock_.now();
    auto const name = forms_.frmMain.letters.proper(sender);
    auto const body = network::wire::split_body(message.body);
    auto& history = forms_.historyfrm;
    records::add_row(history.ListView1, now,
                     {.kind = "From",
                      .party = name,
                      .head = body.head,
                      .main_text = body.main,
                      .recipient = message.recipient,
                      .caption = name + " Msg " + text::caption_time(now)});
    text::attempt([&] { history.historyrefresh.run(); });
}

} // namespace messaging
