#pragma once

#include "platform/files.h"
#include "sim/journal.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace sim {

/// A disk in memory, and all the ways in which a disk can refuse. Reading, writing, removing and
/// making a folder are its operations; a look whether a file exists never fails.
class MemoryFiles : public platform::Files {
public:
    /// `folder` exists from the start; the journal tells paths from there.
    MemoryFiles(std::string folder, Journal& journal);

    [[nodiscard]] bool exists(std::string_view path) const override;
    [[nodiscard]] bool is_file(std::string_view path) const override;
    [[nodiscard]] std::string read(std::string_view path) const override;
    void write(std::string_view path, std::string_view content) override;
    void remove(std::string_view path) override;
    void make_folder(std::string_view path) override;

    // For tests: what is there, by its name below the folder. Never refused, never counted.
    void put(std::string_view name, std::string_view content);
    void erase(std::string_view name);
    [[nodiscard]] bool has(std::string_view name) const;
    /// The content; the empty text where there is no such file.
    [[nodiscard]] std::string content(std::string_view name) const;
    /// The names of all files, sorted.
    [[nodiscard]] std::set<std::string> names() const;
    [[nodiscard]] bool has_folder(std::string_view name) const;
    void erase_folder(std::string_view name);

    /// What a write that fails leaves of the new content.
    enum class Leaves { old_file, half };
    /// The operation after `others` more fails, once.
    void fail_after(int others, Leaves leaves);
    /// How many operations there have been.
    [[nodiscard]] int operations() const { return operations_; }

    std::set<std::string> unreadable; ///< names
    std::set<std::string> unwritable; ///< names; a file to be removed counts too
    bool read_only = false;
    /// Bytes that all files together may take. A write beyond them leaves what still fits.
    std::optional<std::size_t> space;

private:
    [[nodiscard]] std::string name_of(std::string_view path) const;
    [[nodiscard]] std::string path_of(std::string_view name) const;
    [[nodiscard]] bool fails_now() const;
    void require_writable(std::string_view name) const;
    void fill(std::string_view path, std::string_view content);

    std::string folder_;
    Journal& journal_;
    std::map<std::string, std::string, std::less<>> files_;
    std::set<std::string, std::less<>> folders_;
    Leaves leaves_ = Leaves::old_file;
    mutable int operations_ = 0;
    mutable int until_failure_ = -1;
};

} // namespace sim
