#pragma once

#include "qt/codec.h"
#include "text/failure.h"

#include <QApplication>

#include <functional>

namespace qt {

/// The desktop application, and the top that an unhandled failure reaches: one box with its text,
/// the same on standard error, and the end with status 1.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    /// The office's letters, once they are known; the report is told in them.
    Codec const* codec = nullptr;
    /// Brings the program to a standstill before the report is shown: no timer, no arrival, no
    /// save.
    std::function<void()> stand_still;

private:
    [[noreturn]] void report(text::Failure const& failure);

    bool reporting_ = false;
};

} // namespace qt
