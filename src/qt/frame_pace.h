#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace qt {

/// Calls `show` whenever the event loop is about to wait, so that what a person or a timer did is
/// on the screen at once. Where nothing but sockets woke the loop it is called once a frame:
/// datagrams may come ten thousand times a second, and nobody sees that many pictures. What is put
/// off is shown when the frame is over. Painting alone changes nothing and is no reason to show.
class FramePace : public QObject {
public:
    FramePace(std::chrono::milliseconds frame, std::function<void()> show);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// What has happened since the last show, the weightiest of it.
    enum class Seen { painting, traffic, doings };

    void look();
    [[nodiscard]] static Seen kind_of(QEvent const& event);

    std::chrono::milliseconds frame_;
    std::function<void()> show_;
    QElapsedTimer since_shown_;
    QTimer late_;
    Seen seen_ = Seen::doings;
};

} // namespace qt
