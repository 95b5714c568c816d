#pragma once

#include <string_view>

namespace platform {

/// What the program hands to other programs of the desktop.
class Outside {
public:
    virtual ~Outside() = default;

    /// Opens a text file for reading. Raises a Failure when there is nothing that opens it.
    virtual void open_text(std::string_view path) = 0;
    /// Opens a folder. Raises a Failure when there is nothing that opens it.
    virtual void open_folder(std::string_view path) = 0;
    /// Opens the help that ships with the program, at its first topic.
    virtual void open_help() = 0;
    /// Opens a web address; whether anything does is not looked at.
    virtual void open_web(std::string_view address) = 0;
    /// Replaces what is on the clipboard.
    virtual void copy(std::string_view text) = 0;
    /// Starts a program of the program folder. Raises a Failure when it cannot.
    virtual void start(std::string_view path) = 0;
};

} // namespace platform
