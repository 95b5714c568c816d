#pragma once

#include "text/character_set.h"

#include <QHash>
#include <QLocale>
#include <QString>

#include <array>
#include <string>
#include <string_view>

namespace qt {

/// Qt's edge of the office's 8-bit character set: one byte is one character on the screen and back.
class Codec {
public:
    /// `code_page` is the number of a Windows code page: 1250 to 1258, or 874. Any other is taken
    /// as 1252.
    explicit Codec(int code_page);

    [[nodiscard]] QString to_unicode(std::string_view bytes) const;
    /// A letter and its accent that come as two characters become the one that the set has; what
    /// the set cannot hold becomes `?`.
    [[nodiscard]] std::string from_unicode(QStringView words) const;

    /// The capital and small forms that the set holds.
    [[nodiscard]] text::CharacterSet letters() const;

private:
    [[nodiscard]] bool holds(QStringView words) const;
    [[nodiscard]] std::string mapped(QStringView words) const;
    [[nodiscard]] QString held(QStringView letter) const;

    std::array<char16_t, 256> unicode_{};
    QHash<char16_t, char> bytes_;
};

/// The code page that a desktop of this locale uses; 1252 where unsure.
[[nodiscard]] int code_page_of(QLocale const& locale);

} // namespace qt
