#include "qt/desk_web.h"

#include "text/failure.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <memory>

namespace qt {

bool DeskWeb::download(std::string_view address, std::string_view path)
{
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(codec_.to_unicode(address)));
    request.setTransferTimeout(static_cast<int>(patience.count()));
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    std::unique_ptr<QNetworkReply> const reply(manager.get(request));
    QEventLoop waiting;
    QObject::connect(reply.get(), &QNetworkReply::finished, &waiting, &QEventLoop::quit);
    // The window does not answer meanwhile; timers and sockets go on, and find boxopen set.
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    if (reply->error() != QNetworkReply::NoError) {
        return false;
    }
    auto const content = reply->readAll();
    return text::attempt([&] {
        files_.write(path, {content.constData(), static_cast<std::size_t>(content.size())});
    });
}

} // namespace qt
