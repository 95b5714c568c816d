#pragma once

#include "platform/processes.h"
#include "platform/session_entries.h"
#include "qt/codec.h"
#include "qt/desk_files.h"

#include <QString>

namespace qt {

/// The session's autostart entries: one desktop file a name, in the user's autostart folder.
class DeskSessionEntries : public platform::SessionEntries {
public:
    /// `files` knows the program folder's real path, whatever the office's letters make of it.
    DeskSessionEntries(Codec const& codec, DeskFiles const& files) : codec_(codec), files_(files) {}

    [[nodiscard]] std::string read(std::string_view name) const override;
    [[nodiscard]] bool write(std::string_view name, std::string_view command) override;
    [[nodiscard]] bool remove(std::string_view name) override;

    /// Of the entry's file, whether it is there or not.
    [[nodiscard]] QString path(std::string_view name) const;

private:
    [[nodiscard]] QString real(std::string_view command) const;

    Codec const& codec_;
    DeskFiles const& files_;
};

/// This user's processes, as the kernel lists them.
class DeskProcesses : public platform::Processes {
public:
    explicit DeskProcesses(Codec const& codec) : codec_(codec) {}

    [[nodiscard]] std::vector<Entry> others() const override;
    void kill(long id) override;

private:
    Codec const& codec_;
};

} // namespace qt
