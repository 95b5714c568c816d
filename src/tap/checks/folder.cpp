#include "tap/checks/folder.h"

#include "tap/shell_word.h"

namespace tap {

namespace {

using Health = Finding::Health;

constexpr std::uint64_t little_room = 10'000'000;

std::string list_of(std::vector<std::string> const& names)
{
    std::string list;
    for (auto const& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

std::string give_back(std::string const& path)
{
    auto const folder = shell_word(path);
    return "sudo chown -R \"$USER\": " + folder + " && chmod -R u+rwX " + folder;
}

} // namespace

Finding check_folder(ProgramFolder const& folder)
{
    std::string const check = "program folder";
    if (!folder.exists || !folder.has_program) {
        return {check, Health::wrong, "there is no messenger in " + folder.path,
                "vexlotap doctor --folder FOLDER # the one that the messenger is in"};
    }
    if (!folder.writable) {
        return {check, Health::wrong, folder.path + " cannot be written: nothing is kept",
                give_back(folder.path)};
    }
    if (!folder.unreadable.empty()) {
        return {check, Health::wrong, "cannot be read: " + list_of(folder.unreadable),
                give_back(folder.path)};
    }
    if (!folder.unwritable.empty()) {
        return {check, Health::wrong, "cannot be written: " + list_of(folder.unwritable),
                give_back(folder.path)};
    }
    if (folder.free_bytes < little_room) {
        return {check, Health::warning, "the disk of " + folder.path + " is full",
                "df -h " + shell_word(folder.path)};
    }
    return {check, Health::well, folder.path};
}

Finding check_name(Name const& name)
{
    std::string const check = "name";
    auto const account = name.computer + "\\" + name.user;
    if (name.computer.empty() || name.user.empty()) {
        return {check, Health::wrong,
                "this desk has no " + std::string(name.computer.empty() ? "computer" : "user") +
                    " name",
                name.computer.empty() ? "sudo hostnamectl set-hostname NAME"
                                      : "export USERNAME=NAME # before the messenger starts"};
    }
    // The identity ends at its first "]" and, in a row of the directory, at the first "=".
    if (account.find_first_of("]=") != std::string::npos) {
        return {check, Health::wrong,
                account + R"( holds a "]" or a "=", at which the others cut it)",
                "export COMPUTERNAME=NAME USERNAME=NAME # before the messenger starts"};
    }
    return {check, Health::well, name.display + ", " + account};
}

} // namespace tap
