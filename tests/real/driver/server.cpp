#include "server.h"

#include "commands.h"
#include "refusal.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace driver {
namespace {

QJsonObject reply_to(QByteArray const& line)
{
    auto const command = QJsonDocument::fromJson(line).object();
    QJsonObject reply;
    try {
        reply = obey(command);
        reply["ok"] = true;
    } catch (Refusal const& refusal) {
        reply = {{"ok", false}, {"error", QString::fromUtf8(refusal.what())}};
    }
    reply["id"] = command.value("id");
    return reply;
}

} // namespace

Server::Server(QString const& path)
{
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        auto* const socket = server_.nextPendingConnection();
        connect(socket, &QLocalSocket::readyRead, this, [socket] { answer_lines(*socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    });
    if (!server_.listen(path)) {
        qFatal("the driver cannot listen at %s", qPrintable(path));
    }
}

void Server::answer_lines(QLocalSocket& socket)
{
    while (socket.canReadLine()) {
        auto const reply = reply_to(socket.readLine());
        socket.write(QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n');
    }
    socket.flush();
}

} // namespace driver
