#pragma once

#include "forms/frm_main.h"
#include "forms/settings.h"
#include "platform/environment.h"
#include "platform/files.h"

#include <string>

namespace network {

/// `users.txt`: the directory on disk, one row a line, in upper case.
class UsersFile {
public:
    UsersFile(forms::FrmMain& frmMain, forms::Settings const& settings, platform::Files& files,
              platform::Environment const& environment, std::string path);

    /// Rebuilds the directory from the file; clears the file first when the option says so, once in
    /// a run.
    void load();
    /// Writes the directory, all rows but those that begin "[ALL]". Raises a Failure.
    void save();
    /// Writes the own row as the only one. Raises a Failure.
    void write_own_row();

private:
    forms::FrmMain& frmMain_;
    forms::Settings const& settings_;
    platform::Files& files_;
    platform::Environment const& environment_;
    std::string path_;
};

} // namespace network
