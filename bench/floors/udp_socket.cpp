// The toolkit's own way to take datagrams: a QUdpSocket and an event loop, and nothing kept.
//
//     floor_udp_socket PORT BUFFER

#include <QCoreApplication>
#include <QUdpSocket>

#include <array>
#include <sys/socket.h>

int main(int argc, char** argv)
{
    QCoreApplication const application(argc, argv);
    auto const arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        return 2;
    }
    QUdpSocket socket;
    if (!socket.bind(QHostAddress(QHostAddress::AnyIPv4), arguments[1].toUShort())) {
        return 1;
    }
    int const buffer = arguments[2].toInt();
    auto const number = static_cast<int>(socket.socketDescriptor());
    if (setsockopt(number, SOL_SOCKET, SO_RCVBUFFORCE, &buffer, sizeof buffer) != 0) {
        setsockopt(number, SOL_SOCKET, SO_RCVBUF, &buffer, sizeof buffer);
    }
    std::array<char, 65536> datagram{};
    QObject::connect(&socket, &QUdpSocket::readyRead, &socket, [&] {
        while (socket.hasPendingDatagrams()) {
            socket.readDatagram(datagram.data(), static_cast<qint64>(datagram.size()));
        }
    });
    return QCoreApplication::exec();
}
