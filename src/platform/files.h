#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Files by full path, separators as the platform writes them. Each is read or written whole.
class Files {
public:
    virtual ~Files() = default;

    /// Whether there is anything of that name, be it a file or a folder.
    [[nodiscard]] virtual bool exists(std::string_view path) const = 0;
    /// Whether there is a file of that name, and no folder.
    [[nodiscard]] virtual bool is_file(std::string_view path) const = 0;
    /// The whole content. Raises a Failure when it cannot be read.
    [[nodiscard]] virtual std::string read(std::string_view path) const = 0;
    /// Replaces the whole content. Raises a Failure when it cannot be written to the end.
    virtual void write(std::string_view path, std::string_view content) = 0;
    /// Raises a Failure when there is no such file or it cannot be removed.
    virtual void remove(std::string_view path) = 0;
    /// Creates one folder; its parent must exist. Raises a Failure when it cannot.
    virtual void make_folder(std::string_view path) = 0;
};

} // namespace platform
