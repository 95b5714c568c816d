#include "objects.h"

#include <QThread>

#include <mutex>
#include <unordered_set>

// The toolkit's own place for tools that want to hear of every object: a table of callbacks.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace driver {
namespace {

constexpr int add_object = 3;
constexpr int remove_object = 4;

using Callback = void (*)(QObject*);

// Objects of other threads and of static life come and go too, so this is never destroyed.
struct Living {
    std::mutex mutex;
    std::unordered_set<QObject*> objects;
    Callback next_add = nullptr;
    Callback next_remove = nullptr;
};

Living& living()
{
    static auto* const all = new Living;
    return *all;
}

void added(QObject* object)
{
    {
        std::scoped_lock const lock(living().mutex);
        living().objects.insert(object);
    }
    if (living().next_add) {
        living().next_add(object);
    }
}

void removed(QObject* object)
{
    {
        std::scoped_lock const lock(living().mutex);
        living().objects.erase(object);
    }
    if (living().next_remove) {
        living().next_remove(object);
    }
}

} // namespace

void watch_objects()
{
    living().next_add = reinterpret_cast<Callback>(qtHookData[add_object]);
    living().next_remove = reinterpret_cast<Callback>(qtHookData[remove_object]);
    qtHookData[add_object] = reinterpret_cast<quintptr>(&added);
    qtHookData[remove_object] = reinterpret_cast<quintptr>(&removed);
}

QList<QTimer*> timers_named(QString const& name)
{
    std::scoped_lock const lock(living().mutex);
    QList<QTimer*> found;
    for (auto* const object : living().objects) {
        // The thread comes first: an object of another thread may be gone in the next moment.
        if (object->thread() != QThread::currentThread()) {
            continue;
        }
        auto* const timer = qobject_cast<QTimer*>(object);
        if (timer && timer->objectName() == name) {
            found.append(timer);
        }
    }
    return found;
}

} // namespace driver
