#pragma once

#include "demo/application.h"
#include "demo/caption.h"
#include "demo/overheard.h"
#include "demo/stage.h"

#include <QElapsedTimer>

#include <chrono>
#include <optional>

namespace demo {

/// The story, and where somebody sees it, the open office behind it.
class Performance {
public:
    struct Wishes {
        Pace pace = Pace::at_once;
        QString pictures;               ///< the folder, where nobody sees the story
        std::chrono::seconds stay{600}; ///< so long the office stays open with nobody in front
        int speed = 1;                  ///< so many times as fast as a person likes to read
    };

    Performance(Application& application, Wishes wishes);
    ~Performance();
    Performance(Performance const&) = delete;
    Performance& operator=(Performance const&) = delete;

    /// Plays it all, and tells it on the terminal. Returns whether all went as it was told.
    [[nodiscard]] bool play();

private:
    void listen();
    void tell_what_is_said();
    void put_up_caption();
    [[nodiscard]] bool ends();
    void interrupt();
    void play_story();
    void keep_open();
    void tell_the_pictures() const;

    Application& application_;
    Wishes wishes_;
    Stage stage_;
    Overheard overheard_{stage_.office};
    std::optional<Caption> caption_;
    QElapsedTimer untouched_;
    int scene_ = 0;
    bool closes_ = false;
    bool taken_over_ = false;
};

} // namespace demo
