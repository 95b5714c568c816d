#pragma once

#include "forms/forms.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/session_entries.h"

#include <string>
#include <string_view>

namespace desktop {

/// The name of the session's entry for the program.
inline constexpr char const* session_entry = "Vexlo IM AutoStart";

/// One place of the per-user store of session entries, as the program addresses it.
class cRegistry {
public:
    static constexpr unsigned current_user = 0x80000001;
    static constexpr int text_type = 1;

    explicit cRegistry(platform::SessionEntries& entries) : entries_(entries) {}

    /// The value, or `Default` when it cannot be read.
    [[nodiscard]] std::string Value() const;
    /// Writes the value. Raises a Failure with the number 26001.
    void Value(std::string_view value);
    /// Removes the value, and is true then. Raises a Failure with the number 26001.
    bool DeleteValue();

    unsigned ClassKey = current_user;
    std::string SectionKey;
    std::string ValueKey;
    std::string Default;
    int ValueType = text_type;

private:
    [[nodiscard]] std::string place() const;

    platform::SessionEntries& entries_;
};

/// The session entry follows the option "Start With Windows".
class SessionStart {
public:
    struct Uses {
        forms::FrmMain& frmMain;
        forms::Settings& settings;
        platform::Environment const& environment;
        platform::Files& files;
        platform::SessionEntries& entries;
    };

    /// `program` is the full path that the entry names.
    SessionStart(Uses uses, std::string program);
    SessionStart(SessionStart const&) = delete;
    SessionStart& operator=(SessionStart const&) = delete;

    /// Writes a missing entry, or deletes one that is not wanted; an entry that names another
    /// folder stays. Raises a Failure.
    void reconcile();
    /// An old start-up shortcut goes, and the option takes over what it did.
    void adopt_old_shortcut();

private:
    [[nodiscard]] cRegistry entry() const;

    Uses uses_;
    std::string program_;
};

} // namespace desktop
