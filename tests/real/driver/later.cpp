#include "later.h"

#include "refusal.h"

#include <QCoreApplication>

namespace driver {
namespace {

int asked = 0;
int begun = 0;
int done = 0;
QStringList refused;

} // namespace

void later(std::function<void()> doing)
{
    ++asked;
    QMetaObject::invokeMethod(
        qApp,
        [doing = std::move(doing)] {
            ++begun;
            try {
                doing();
            } catch (Refusal const& refusal) {
                // Never into the program's own loop: what came too late to be told is kept.
                refused.append(refusal.what());
            }
            ++done;
        },
        Qt::QueuedConnection);
}

int not_begun()
{
    return asked - begun;
}

int unfinished()
{
    return asked - done;
}

QStringList late_refusals()
{
    return refused;
}

} // namespace driver
