#pragma once

#include "platform/udp_socket.h"
#include "text/failure.h"

#include <QSocketNotifier>

#include <memory>
#include <string>

namespace qt {

/// What a socket's error number tells the flows: the two texts that they compare, or the system's
/// own words.
[[nodiscard]] text::Failure failure_of(int error);

/// A UDP socket of the kernel's, read whenever the event loop finds it readable.
class DeskSocket : public platform::UdpSocket {
public:
    enum class Role { listening, sending };

    /// Bytes that a listening socket asks the kernel to keep for it.
    static constexpr int wanted_buffer = 4 * 1024 * 1024;

    explicit DeskSocket(Role role) : role_(role) {}
    ~DeskSocket() override;
    DeskSocket(DeskSocket const&) = delete;
    DeskSocket& operator=(DeskSocket const&) = delete;

    void close() override;
    void bind(int port) override;
    void send(std::string_view datagram, std::string_view host, int port) override;
    [[nodiscard]] int state() const override;
    [[nodiscard]] std::string local_address() const override;
    [[nodiscard]] std::string local_host_name() const override;

    /// Bytes that the kernel granted for datagrams that wait; 0 while closed.
    [[nodiscard]] int granted_buffer() const;
    /// No more arrivals: the program is about to end.
    void fall_silent();

private:
    void listen();
    void drain();

    Role role_;
    int socket_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace qt
