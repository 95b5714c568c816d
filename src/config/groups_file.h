#pragma once

#include "forms/forms.h"
#include "platform/files.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace config {

[[nodiscard]] bool is_used(forms::Groups const& groups, std::size_t slot);
void use_slot(forms::Groups& groups, std::size_t slot, bool used);

/// `groups.txt`: the names of the groups, and the identities of their members.
class GroupsFile {
public:
    GroupsFile(forms::Forms& forms, platform::Files& files, std::string path);

    /// Reads the file into the lists; writes the default file first if there is none. Raises a
    /// Failure.
    void load();
    /// Writes the lists to the file. A member whom nobody knows becomes "[---]", for good. Raises a
    /// Failure.
    void save();

private:
    void write_default();
    void read(std::string_view content);
    [[nodiscard]] std::string membername(std::string_view line) const;

    forms::FrmMain& frmMain_;
    forms::Groups& groups_;
    platform::Files& files_;
    std::string path_;
};

} // namespace config
