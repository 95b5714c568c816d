#include "tap/checks/buffer.h"

namespace tap {

namespace {

/// What the kernel counts for one short message.
constexpr int bytes_of_a_message = 768;
constexpr int kibi = 1024;

} // namespace

Finding check_buffer(ReceiveBuffer const& buffer)
{
    std::string const check = "receive buffer";
    if (buffer.granted == 0) {
        return {check, Finding::Health::unknown, "no socket could be opened to try it"};
    }
    // The kernel grants twice what is asked for, for its own book-keeping.
    auto const messages = std::to_string(buffer.granted / bytes_of_a_message);
    auto const room = std::to_string(buffer.granted / 2 / kibi) + " KiB, about " + messages +
                      " short messages at once";
    if (buffer.granted / 2 >= buffer.wanted) {
        return {check, Finding::Health::well, room};
    }
    auto const limit = "net.core.rmem_max=" + std::to_string(buffer.wanted);
    return {check, Finding::Health::warning,
            room + "; the messenger asks for " + std::to_string(buffer.wanted / kibi) + " KiB",
            "echo " + limit + " | sudo tee /etc/sysctl.d/60-vexloim.conf && sudo sysctl -w " +
                limit};
}

} // namespace tap
