#pragma once

#include "qt/codec.h"
#include "qt/desk_files.h"
#include "qt/desk_values.h"
#include "text/character_set.h"

#include <QCoreApplication>
#include <QLocale>

namespace terminal {

/// This machine as the commands see it, by the same ways as the messenger.
struct Desk {
    qt::Codec codec{qt::code_page_of(QLocale::system())};
    text::CharacterSet letters = codec.letters();
    qt::DeskClock clock;
    qt::DeskEnvironment environment{codec};
    qt::DeskFiles files{codec, QCoreApplication::applicationDirPath()};
};

} // namespace terminal
