#include "qt/settings_window.h"

#include "qt/parts.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>

#include <initializer_list>
#include <utility>

namespace qt {

namespace {

using Look = Button::Look;

constexpr std::size_t first_send_row = 1;
constexpr std::size_t first_response_row = 13;
/// What stands around a page, at the least: frame, tabs and buttons.
constexpr QSize around_page(40, 150);

/// Shows a page whole, and lets it scroll where the screen is too small for it.
class PageView : public QScrollArea {
public:
    PageView(QWidget* page, QSize around) : around_(around)
    {
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(page);
    }

    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }

    [[nodiscard]] QSize minimumSizeHint() const override
    {
        QSize const room = screen()->availableGeometry().size() - around_;
        return widget()->minimumSizeHint().boundedTo(room);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            updateGeometry(); // What the page needs is what the view needs.
        }
        return QScrollArea::eventFilter(watched, event);
    }

private:
    QSize around_;
};

} // namespace

SettingsWindow::SettingsWindow(Units const& units, QWidget* owner)
    : FramedWindow(words("settings"), Kind::dialog, units, owner), SSTab1(&body()),
      savebtn(Look::primary, units, &body()), cancelbtn(Look::plain, units, &body()),
      general(*new SettingsGeneralPage(units)),
      send(*new SettingsButtonsPage(first_send_row, units)),
      response(*new SettingsButtonsPage(first_response_row, units)),
      away(*new SettingsAwayPage(units)), admin(*new SettingsAdminPage(units))
{
    name_parts({{&SSTab1, "SSTab1"}, {&savebtn, "savebtn"}, {&cancelbtn, "cancelbtn"}});
    SSTab1.setAccessibleName(words("Settings"));
    SSTab1.tabBar()->setAccessibleName(words("Settings"));
    add_tabs();
    lay_out();
    order();
}

void SettingsWindow::add_tabs()
{
    QSize const around(size_of(around_page.width()), size_of(around_page.height()));
    for (auto const& [page, caption] : std::initializer_list<std::pair<QWidget*, char const*>>{
             {&general, "General "},
             {&send, "Send Buttons"},
             {&response, "Response Buttons "},
             {&away, "Auto Resp "},
             {&admin, "Admin"},
         }) {
        SSTab1.addTab(new PageView(page, around), words(caption));
    }
}

void SettingsWindow::setVisible(bool visible)
{
    // The texts on the pages and the looks of their parts have come since the window was laid out.
    for (QWidget const* const part : findChildren<QWidget*>()) {
        part->ensurePolished();
    }
    for (QScrollArea* const view : SSTab1.findChildren<QScrollArea*>()) {
        view->widget()->layout()->activate();
        view->updateGeometry();
    }
    SSTab1.updateGeometry();
    body().updateGeometry();
    FramedWindow::setVisible(visible);
}

void SettingsWindow::lay_out()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(size_of(6));
    row->addStretch(1);
    for (Button* const button : {&savebtn, &cancelbtn}) {
        button->setMinimumSize(size_of(88), size_of(28));
        row->addWidget(button);
    }
    auto* const column = new QVBoxLayout(&body());
    column->setContentsMargins(size_of(12), size_of(10), size_of(12), size_of(12));
    column->setSpacing(size_of(10));
    column->addWidget(&SSTab1, 1);
    column->addLayout(row);
}

void SettingsWindow::order()
{
    QList<QWidget*> order{SSTab1.tabBar()};
    for (QList<QWidget*> const& page : {general.tab_order(), send.tab_order(), response.tab_order(),
                                        away.tab_order(), admin.tab_order()}) {
        order.append(page);
    }
    order.append({&savebtn, &cancelbtn});
    order_tabs(order);
}

} // namespace qt
