#include "messaging/outgoing.h"

#include "network/directory.h"
#include "network/wire.h"

namespace messaging {

namespace wire = network::wire;

std::string text_to_all(std::string_view name, std::string_view text)
{
    return wire::signed_text(name, "(To All) " + std::string(text));
}

std::vector<std::string> recipients_of(ChosenGroup const& group, forms::FrmMain const& frmMain)
{
    auto const& letters = frmMain.letters;
    std::vector<std::string> recipients;
    for (std::string const& member : group.members) {
        auto recipient = network::lookupuser(letters.upper(member), frmMain.userlist, letters);
        if (recipient != wire::to_nobody) {
            recipients.push_back(std::move(recipient));
        }
    }
    return recipients;
}

} // namespace messaging
