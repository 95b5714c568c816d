#pragma once

#include <QLocalServer>
#include <QLocalSocket>

namespace driver {

/// Listens at a path for tests. A command is one line of JSON with an "id"; the reply is one line
/// with the same "id" and "ok", and with "error" where it is not.
class Server : public QObject {
public:
    explicit Server(QString const& path);

private:
    static void answer_lines(QLocalSocket& socket);

    QLocalServer server_;
};

} // namespace driver
