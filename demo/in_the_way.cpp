#include "demo/in_the_way.h"

#include "demo/ending.h"

#include <QApplication>
#include <QDialog>

namespace demo {

QWidget& in_the_way()
{
    QWidget* const found = QApplication::activeModalWidget();
    if (found == nullptr) {
        throw NotAsTold("nothing has come up");
    }
    return *found;
}

void cancel_all_before(QWidget const* window)
{
    constexpr int most = 4;
    for (int tried = 0; tried < most; ++tried) {
        QWidget* const found = QApplication::activeModalWidget();
        if (found == nullptr || found == window) {
            return;
        }
        if (auto* const dialog = qobject_cast<QDialog*>(found)) {
            dialog->reject();
        } else {
            found->close();
        }
    }
}

} // namespace demo
