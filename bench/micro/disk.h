#pragma once

#include "qt/codec.h"
#include "qt/desk_files.h"

#include <QTemporaryDir>

#include <string>
#include <string_view>

namespace bench {

/// A folder on the disk with the program's own way to files, and the plain way beside it.
class Disk {
public:
    Disk();

    [[nodiscard]] std::string path(std::string_view name) const;

    /// One open, one write, one close.
    static void plain_write(std::string const& path, std::string_view content);
    /// One open, one read, one close.
    static std::string plain_read(std::string const& path);
    /// How often this process has called write, as the kernel counts it.
    static long writes();

private:
    QTemporaryDir folder_;
    qt::Codec codec_;

public:
    qt::DeskFiles files;
};

} // namespace bench
