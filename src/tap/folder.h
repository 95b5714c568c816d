#pragma once

#include "tap/read_only_files.h"

#include "core/paths.h"
#include "forms/forms.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "text/character_set.h"

#include <string>
#include <string_view>

namespace tap {

/// What a program folder knows, in the fields in which its messenger holds it: `user`,
/// `friendlyname`, the ports, `userlist`, `List1` of `frmMain`; the members in `groups`; the
/// options in `settings`. It is read by the messenger's own readers, and never written.
class Folder {
public:
    /// All of them must outlive the folder. Nothing is read yet.
    Folder(std::string path, platform::Files const& files, platform::Environment const& environment,
           text::CharacterSet const& letters);

    /// Reads the files that are there. Without settings the name is the login name, as a first run
    /// offers it. Raises a Failure where the messenger could not start.
    void read();

    /// Another name, in upper case as every name of one's own.
    void set_name(std::string_view name);
    /// Another office: the port on which everybody listens.
    void set_port(int listening);

    forms::Forms forms;

private:
    core::Paths paths_;
    ReadOnlyFiles files_;
    platform::Environment const& environment_;
};

} // namespace tap
