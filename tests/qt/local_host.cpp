#include "tests/qt/local_host.h"

#include <QHostAddress>
#include <QTcpSocket>

#include <stdexcept>

namespace desk {

LocalHost::LocalHost()
{
    if (!server_.listen(QHostAddress::LocalHost)) {
        throw std::runtime_error("no port for a host of the test");
    }
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { greet(); });
}

void LocalHost::will_answer(QByteArray const& status, QByteArray const& body)
{
    will_send("HTTP/1.1 " + status + "\r\nContent-Type: text/html\r\nContent-Length: " +
              QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
}

std::string LocalHost::address() const
{
    return "http://127.0.0.1:" + std::to_string(server_.serverPort());
}

void LocalHost::greet()
{
    QTcpSocket* const caller = server_.nextPendingConnection();
    QObject::connect(caller, &QTcpSocket::readyRead, caller, [this, caller] { answer(*caller); });
    QObject::connect(caller, &QTcpSocket::disconnected, caller, &QObject::deleteLater);
}

void LocalHost::answer(QTcpSocket& caller)
{
    QByteArray const request = caller.readAll();
    requests_.append(request.left(request.indexOf('\r')));
    QByteArray const bytes = answers_.isEmpty() ? QByteArray() : answers_.takeFirst();
    if (bytes != silence()) {
        caller.write(bytes);
        caller.disconnectFromHost();
    }
}

} // namespace desk
