#include "demo/performance.h"

#include "demo/colleagues.h"
#include "demo/ending.h"
#include "demo/hang_up.h"
#include "demo/in_the_way.h"
#include "demo/screenplay.h"

#include <QDir>

#include <cstdio>

namespace demo {

namespace {

using namespace std::chrono_literals;

constexpr auto between_looks = 200ms;

void print(QString const& line)
{
    std::printf("%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

} // namespace

Performance::Performance(Application& application, Wishes wishes)
    : application_(application), wishes_(std::move(wishes)),
      stage_(wishes_.pace, wishes_.pace == Pace::at_once ? wishes_.pictures : QString())
{
    stage_.time.speed = wishes_.speed;
    application_.stage = &stage_;
    application_.touched = [this] { untouched_.restart(); };
    stage_.time.interrupted = [this] { interrupt(); };
    stage_.time.stepped = [this, show = stage_.time.stepped] {
        show();
        tell_what_is_said();
        if (caption_) {
            caption_->keep_reachable();
        }
        if (ends()) {
            cancel_all_before(nullptr); // Whoever waits behind a box hears of the end, too.
        }
    };
    listen();
    if (stage_.time.is_seen()) {
        put_up_caption();
    }
}

Performance::~Performance()
{
    application_.stage = nullptr;
}

void Performance::listen()
{
    stage_.scene_opened = [this](QString const& title) {
        auto const numbered = QStringLiteral("%1. %2").arg(++scene_).arg(title);
        print('\n' + numbered);
        if (caption_) {
            caption_->set_scene(numbered);
            caption_->set_line({});
            caption_->take_over.setVisible(scene_ > 1); // Who has no name yet cannot write.
        }
    };
    stage_.told = [this](QString const& line) {
        print("   " + line);
        if (caption_) {
            caption_->set_line(line);
        }
    };
}

void Performance::tell_what_is_said()
{
    for (std::string const& line : overheard_.take()) {
        print("      " + stage_.words(line));
    }
}

void Performance::put_up_caption()
{
    caption_.emplace();
    QObject::connect(&caption_->take_over, &QPushButton::clicked, &*caption_,
                     [this] { taken_over_ = true; });
    QObject::connect(&caption_->close_office, &QPushButton::clicked, &*caption_,
                     [this] { closes_ = true; });
    caption_->show();
}

bool Performance::ends()
{
    auto* const alice = stage_.find(cast::alice);
    return closes_ || hung_up() || (alice != nullptr && alice->status());
}

void Performance::interrupt()
{
    if (ends()) {
        throw Closed();
    }
    if (taken_over_ && application_.story_plays) {
        throw TakenOver();
    }
}

bool Performance::play()
{
    print("A virtual office: real windows on a simulated network. Nothing leaves this machine.");
    try {
        open_office(stage_);
        play_story();
        if (stage_.time.is_seen()) {
            keep_open();
        } else {
            tell_the_pictures();
        }
    } catch (Closed const&) {
        print("\nThe office is closed.");
    } catch (std::exception const& failure) {
        std::fprintf(stderr, "The story has not gone as it is told: %s\n", failure.what());
        return false;
    }
    return true;
}

void Performance::play_story()
{
    application_.story_plays = true;
    try {
        for (Scene const& scene : screenplay()) {
            stage_.open_scene(scene.title);
            scene.play(stage_);
        }
    } catch (TakenOver const&) {
        // The desk stands as it is.
    }
    application_.story_plays = false;
}

void Performance::keep_open()
{
    Colleagues colleagues(stage_); // They hear of it first: somebody may write at once.
    stage_.open_scene("The office is yours");
    caption_->take_over.hide();
    stage_.tell("Pick a name and write: the colleagues answer. Close your window, or press Ctrl+C "
                "here, to end it.");
    print(QStringLiteral("   (With nobody in front, it ends by itself after %1 seconds.)")
              .arg(wishes_.stay.count()));
    untouched_.start();
    while (!untouched_.hasExpired(std::chrono::milliseconds(wishes_.stay).count())) {
        stage_.pass(between_looks);
        colleagues.look();
    }
    print("\nNobody is there any more: the office closes.");
}

void Performance::tell_the_pictures() const
{
    auto const count = QDir(wishes_.pictures).entryList({"*.png"}).size();
    print(
        QStringLiteral("\n%1 pictures of the windows are in %2").arg(count).arg(wishes_.pictures));
}

} // namespace demo
