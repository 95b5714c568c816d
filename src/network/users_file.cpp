#include "network/users_file.h"

#include "network/identity.h"
#include "network/wire.h"
#include "text/fields.h"

#include <utility>
#include <vector>

namespace network {

UsersFile::UsersFile(forms::FrmMain& frmMain, forms::Settings const& settings,
                     platform::Files& files, platform::Environment const& environment,
                     std::string path)
    : frmMain_(frmMain), settings_(settings), files_(files), environment_(environment),
      path_(std::move(path))
{
}

void UsersFile::load()
{
    frmMain_.userlist.clear();
    frmMain_.user = own_identity(environment_, frmMain_.letters);
    if (settings_.startclearusers.on() && !frmMain_.cachecleared.on()) {
        write_own_row();
        frmMain_.cachecleared.set(1);
    }
    if (!files_.exists(path_)) {
        return;
    }
    auto const content = files_.read(path_);
    // Read by fields, not by lines: a comma in a name makes two rows of one.
    std::vector<std::string> rows;
    for (text::FieldReader fields(content); !fields.at_end();) {
        auto const row = fields.next();
        if (row != "[ALL]=ALL") {
            rows.push_back(frmMain_.letters.upper(row));
        }
    }
    frmMain_.userlist.add_all(std::move(rows));
}

void UsersFile::save()
{
    std::string content;
    for (std::string const& row : frmMain_.userlist.rows()) {
        if (!row.starts_with(wire::to_all)) {
            content += frmMain_.letters.upper(row);
            content += text::line_end;
        }
    }
    files_.write(path_, content);
}

void UsersFile::write_own_row()
{
    files_.write(path_, frmMain_.letters.upper(frmMain_.user + "=" + frmMain_.friendlyname) +
                            std::string(text::line_end));
}

} // namespace network
