#pragma once

#include "qt/codec.h"

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qt {

/// A text of the logic as a widget shows it: letter for letter, and each line end, be it CR LF or a
/// CR or LF alone, as one '\n'. What a person changes on the screen is translated as a change to
/// that text, so that whatever nobody touched keeps its bytes.
class ShownText {
public:
    /// A stretch of the shown text that others stand in for.
    struct Change {
        qsizetype start = 0;
        qsizetype length = 0;
        QString words;
    };

    ShownText() = default;
    ShownText(std::string model, Codec const& codec);

    [[nodiscard]] std::string const& model() const { return model_; }
    [[nodiscard]] QString const& text() const { return text_; }

    /// Places between characters; beyond the end is the end. A place inside a CR LF is in front of
    /// it.
    [[nodiscard]] qsizetype shown_place(std::size_t model_place) const;
    [[nodiscard]] std::size_t model_place(qsizetype shown_place) const;

    /// The shortest change that makes the shown text read `now`.
    [[nodiscard]] Change change_to(QString const& now) const;
    /// The text of the logic behind that change. `bytes` are its words, with '\n' as line end.
    [[nodiscard]] std::string changed(Change const& change, std::string_view bytes) const;

private:
    std::string model_;
    QString text_;
    std::vector<qsizetype> pairs_; ///< the shown places of the line ends that are CR LF
};

} // namespace qt
