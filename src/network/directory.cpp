#include "network/directory.h"

#include "network/wire.h"

namespace network {

std::string_view row_name(std::string_view row)
{
    auto const separator = row.find('=');
    return separator == text::npos ? row : row.substr(separator + 1);
}

std::string lookupuser(std::string_view name, controls::ListBox const& userlist,
                       text::CharacterSet const& letters)
{
    for (int index = 0; index < userlist.count(); ++index) {
        std::string_view const row = userlist.row(index);
        // The tail of the whole row is compared, so a name finds every longer name that ends in it.
        if (row.size() >= name.size() && letters.same(row.substr(row.size() - name.size()), name)) {
            return letters.upper(row.substr(0, row.find('=')));
        }
    }
    return std::string(letters.same(name, "ALL") ? wire::to_all : wire::to_nobody);
}

std::string sender_name(std::string_view sender, controls::ListBox const& userlist)
{
    for (int index = 0; index < userlist.count(); ++index) {
        std::string_view const row = userlist.row(index);
        if (row.find(sender) != text::npos) {
            return std::string(row_name(row));
        }
    }
    return std::string(sender);
}

} // namespace network
