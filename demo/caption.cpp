#include "demo/caption.h"

#include <QApplication>
#include <QBoxLayout>
#include <QScreen>
#include <QWindow>

namespace demo {

namespace {

constexpr int wide = 820;
constexpr int high = 84;
constexpr int above_the_edge = 18;

constexpr auto sheet = R"(
QWidget#caption { background: #1f242c; border-left: 5px solid #3d8fd8; }
QLabel#scene { color: #7fbcf2; font-size: 12px; font-weight: bold; }
QLabel#line { color: #ffffff; font-size: 16px; }
QPushButton { color: #e6e9ee; background: #343b46; border: 1px solid #4a5361; border-radius: 4px;
    padding: 5px 14px; font-size: 13px; }
QPushButton:hover { background: #3f4856; }
)";

} // namespace

Caption::Caption()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus),
      take_over("Take over"), close_office("Close the office")
{
    setObjectName("caption");
    setWindowTitle("The virtual office");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_StyledBackground);
    setFixedSize(wide, high);
    dress();
    lay_out();
    place();
}

void Caption::keep_reachable()
{
    QWidget const* const box = QApplication::activeModalWidget();
    QWindow* const owner = box != nullptr ? box->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != owner) {
        windowHandle()->setTransientParent(owner); // What belongs to a box is not blocked by it.
    }
}

void Caption::dress()
{
    scene_.setObjectName("scene");
    line_.setObjectName("line");
    line_.setWordWrap(true);
    take_over.setObjectName("take_over");
    close_office.setObjectName("close_office");
    for (QPushButton* const button : {&take_over, &close_office}) {
        button->setFocusPolicy(Qt::NoFocus);
    }
    setStyleSheet(sheet);
}

void Caption::lay_out()
{
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(&scene_);
    texts->addWidget(&line_, 1);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(18, 10, 14, 10);
    row->setSpacing(10);
    row->addLayout(texts, 1);
    row->addWidget(&take_over);
    row->addWidget(&close_office);
}

void Caption::place()
{
    auto const screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center().x() - wide / 2, screen.bottom() - high - above_the_edge);
}

} // namespace demo
