// What a messenger must load anyway: a window, a bound UDP socket, a sound. Each datagram brings up
// a further empty window.
//
//     floor_messenger PORT SOUND

#include <QApplication>
#include <QSoundEffect>
#include <QUdpSocket>
#include <QUrl>
#include <QWidget>

#include <memory>
#include <vector>

namespace {

/// As many windows as the messenger can have.
constexpr std::size_t most_popups = 10;

class Messenger : public QWidget {
public:
    Messenger(quint16 port, QString const& sound)
    {
        setObjectName(QStringLiteral("frmMain"));
        resize(547, 358);
        socket_.bind(QHostAddress(QHostAddress::AnyIPv4), port);
        connect(&socket_, &QUdpSocket::readyRead, this, [this] { receive(); });
        effect_.setSource(QUrl::fromLocalFile(sound));
    }

private:
    void receive()
    {
        while (socket_.hasPendingDatagrams()) {
            socket_.readDatagram(nullptr, 0);
            if (popups_.size() < most_popups) {
                pop_up();
            }
        }
    }

    void pop_up()
    {
        auto popup = std::make_unique<QWidget>();
        popup->setObjectName(QStringLiteral("popup%1").arg(popups_.size()));
        popup->resize(349, 457);
        popup->setAttribute(Qt::WA_ShowWithoutActivating);
        popup->show();
        popups_.push_back(std::move(popup));
    }

    QUdpSocket socket_;
    QSoundEffect effect_;
    std::vector<std::unique_ptr<QWidget>> popups_;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication const application(argc, argv);
    auto const arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        return 2;
    }
    Messenger messenger(arguments[1].toUShort(), arguments[2]);
    messenger.show();
    return QApplication::exec();
}
