#pragma once

#include "tap/folder.h"
#include "terminal/options.h"

#include "qt/codec.h"
#include "qt/desk_files.h"
#include "qt/desk_values.h"
#include "text/character_set.h"

namespace terminal {

/// The folder that the options name, else the one that the companion lies in. Raises WrongUsage
/// where there is none.
[[nodiscard]] QString program_folder_of(Options const& options);

/// This machine as a command sees it, by the same ways as the messenger, and what the messenger's
/// folder knows.
struct Desk {
    /// Reads the program folder; a name and a port of the options' stand instead of the folder's.
    /// Raises WrongUsage, or a Failure where the folder cannot be read.
    explicit Desk(Options const& options);

    QString program_folder;
    qt::Codec codec;
    text::CharacterSet letters;
    qt::DeskEnvironment environment;
    qt::DeskFiles files;
    tap::Folder folder;
};

} // namespace terminal
