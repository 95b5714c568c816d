#include "qt/modal_wait.h"

#include <QEventLoop>

namespace qt {

ModalWait::ModalWait(controls::Window& model, QWidget& widget) : model_(model), widget_(widget)
{
    model.wait_until_hidden.attach([this] { wait(); });
}

void ModalWait::show()
{
    auto const wanted = model_.modal ? Qt::ApplicationModal : Qt::NonModal;
    if (widget_.windowModality() != wanted) {
        widget_.hide(); // One that is on the screen already must come up anew to be in the way.
        widget_.setWindowModality(wanted);
    }
}

void ModalWait::wait()
{
    if (!model_.visible()) {
        return;
    }
    QEventLoop loop;
    waits_.push_back(&loop);
    loop.exec();
    waits_.pop_back();
}

void ModalWait::end()
{
    for (QEventLoop* const loop : waits_) {
        loop->quit();
    }
}

} // namespace qt
