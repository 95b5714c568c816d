#include "tests/qt/frames.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QStyledItemDelegate>
#include <QTimer>

namespace desk {

namespace {

bool takes_keyboard(QWidget const& part)
{
    return part.isVisible() && part.isEnabled() && (part.focusPolicy() & Qt::TabFocus) != 0;
}

/// Counts how often a button is pressed, for as long as it lives.
class Presses {
public:
    explicit Presses(controls::Button& button) : button_(button)
    {
        button.clicked.attach([this] { ++count; });
    }
    ~Presses() { button_.clicked.attach({}); }
    Presses(Presses const&) = delete;
    Presses& operator=(Presses const&) = delete;

    int count = 0;

private:
    controls::Button& button_;
};

std::string name_of(QWidget const& part)
{
    return part.objectName().toStdString();
}

} // namespace

std::vector<std::string> missing(QWidget const& window, std::vector<std::string> const& names)
{
    std::vector<std::string> none;
    for (std::string const& name : names) {
        if (window.findChild<QWidget*>(QString::fromStdString(name)) == nullptr) {
            none.push_back(name);
        }
    }
    return none;
}

std::vector<std::string> nameless(QWidget const& window)
{
    std::vector<std::string> without;
    for (QWidget* const part : window.findChildren<QWidget*>()) {
        auto const* const face = QAccessible::queryAccessibleInterface(part);
        if (takes_keyboard(*part) && face->text(QAccessible::Name).isEmpty()) {
            without.push_back(part->metaObject()->className() + (" " + name_of(*part)));
        }
    }
    return without;
}

std::vector<std::string> tab_round(QWidget& window)
{
    constexpr int enough = 200;
    std::vector<std::string> names;
    QWidget* const first = window.focusWidget();
    for (int step = 0; step < enough; ++step) {
        names.push_back(name_of(*window.focusWidget()));
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        if (window.focusWidget() == first) {
            break;
        }
    }
    return names;
}

QString line_of(QAbstractItemView const& list, QString const& row)
{
    auto const& delegate = dynamic_cast<QStyledItemDelegate const&>(*list.itemDelegate());
    return delegate.displayText(row, QLocale());
}

std::vector<std::string> captions(QMenu const& menu)
{
    std::vector<std::string> texts;
    for (QAction const* const entry : menu.actions()) {
        auto const text = entry->isSeparator() ? "-" : entry->text().toStdString();
        texts.push_back(entry->isVisible() ? text : "(" + text + ")");
    }
    return texts;
}

void ask_to_close(QWidget& window)
{
    QCloseEvent close;
    QApplication::sendEvent(&window, &close);
}

void press_escape(QWidget& window)
{
    QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window,
                    Qt::Key_Escape);
}

int presses_by_click(QWidget const& window, char const* name, controls::Button& button)
{
    Presses const presses(button);
    click(in(window, name));
    return presses.count;
}

int presses_by_closing(QWidget& window, controls::Button& button)
{
    Presses const presses(button);
    ask_to_close(window);
    press_escape(window);
    return presses.count;
}

void open_and_close_a_box(QWidget& window)
{
    QMessageBox box(&window);
    QTimer::singleShot(50, &box, [&box] { box.accept(); });
    box.exec();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("the window does not come back");
    }
    settle();
}

} // namespace desk
