#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace qt {

/// Calls `show` whenever the event loop is about to wait, but not more often than once a frame:
/// datagrams may wake the loop ten thousand times a second, and nobody sees that many pictures.
/// What is put off is shown when the frame is over.
class FramePace : public QObject {
public:
    FramePace(std::chrono::milliseconds frame, std::function<void()> show);

private:
    void look();

    std::chrono::milliseconds frame_;
    std::function<void()> show_;
    QElapsedTimer since_shown_;
    QTimer late_;
};

} // namespace qt
