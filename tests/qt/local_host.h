#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTcpServer>

#include <string>

namespace desk {

/// A web host on this machine, reached by its loopback address alone. It answers the requests in
/// turn with the bytes that a test gives it, and hangs up after each.
class LocalHost {
public:
    LocalHost();

    /// The next answer: a whole one, with its head.
    void will_answer(QByteArray const& status, QByteArray const& body);
    /// The next answer, byte by byte.
    void will_send(QByteArray bytes) { answers_.append(std::move(bytes)); }
    /// The next request is heard and never answered.
    void will_be_silent() { answers_.append(silence()); }
    /// Nobody is there any more.
    void go_away() { server_.close(); }

    /// "http://127.0.0.1:port"
    [[nodiscard]] std::string address() const;
    /// The first lines of the requests.
    [[nodiscard]] QList<QByteArray> const& requests() const { return requests_; }

private:
    static QByteArray silence() { return QByteArrayLiteral("silence"); }
    void greet();
    void answer(QTcpSocket& caller);

    QTcpServer server_;
    QList<QByteArray> answers_;
    QList<QByteArray> requests_;
};

} // namespace desk
