#pragma once

#include <string>
#include <utility>

namespace core {

/// Where the program's files lie: all of them in the folder of the executable.
struct Paths {
    explicit Paths(std::string program_folder) : folder(std::move(program_folder)) {}

    std::string folder;
    std::string settings = folder + "/settings.txt";
    std::string users = folder + "/users.txt";
    std::string buttons = folder + "/buttons.txt";
    std::string groups = folder + "/groups.txt";
    std::string history = folder + "/hist.dat";
    std::string logs = folder + "/logs";
    std::string sound = folder + "/vexlo.wav";
    /// The name that the session entry and the stored path carry.
    std::string program = folder + "/vexloim.exe";
};

} // namespace core
