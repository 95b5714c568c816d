#include "qt/splash_binder.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QWindow>

namespace qt {

SplashBinder::SplashBinder(forms::Loading& loading, Codec const& codec, Units const& units)
    : window_(units), bindings_(codec), frame_(loading.window, window_, codec, units, {})
{
    bindings_.bind(loading.ProgressBar1, window_.ProgressBar1);
    loading.window.shown.attach([this] { show(); });
    loading.window.hidden.attach([this] { show(); });
    loading.window.repaint.attach([this] { repaint(); });
    loading.ProgressBar1.changed.attach([this] {
        show();
        window_.ProgressBar1.repaint();
    });
}

void SplashBinder::show()
{
    bindings_.show();
    frame_.show();
}

void SplashBinder::repaint()
{
    show();
    // Start-up holds the event loop, and a window is drawn only after the window system has called
    // for it. Nothing else may come in meanwhile: no datagram and no click.
    QDeadlineTimer const patience(200);
    while (window_.isVisible() && !window_.windowHandle()->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers);
    }
    window_.repaint();
}

} // namespace qt
