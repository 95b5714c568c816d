#pragma once

#include "platform/files.h"

namespace tap {

/// Somebody else's files: they can be looked at, and whatever would change them raises a Failure.
class ReadOnlyFiles : public platform::Files {
public:
    /// `files` must outlive them.
    explicit ReadOnlyFiles(platform::Files const& files) : files_(files) {}

    [[nodiscard]] bool exists(std::string_view path) const override { return files_.exists(path); }
    [[nodiscard]] bool is_file(std::string_view path) const override
    {
        return files_.is_file(path);
    }
    [[nodiscard]] std::string read(std::string_view path) const override
    {
        return files_.read(path);
    }
    void write(std::string_view path, std::string_view content) override;
    void remove(std::string_view path) override;
    void make_folder(std::string_view path) override;

private:
    platform::Files const& files_;
};

} // namespace tap
