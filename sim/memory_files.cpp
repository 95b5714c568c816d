#include "sim/memory_files.h"

#include "text/failure.h"

#include <algorithm>

namespace sim {

using text::Failure;

namespace {

// The desktop's words and numbers for what a disk refuses.
Failure const access_error("Path/File access error", 75, "file");
Failure const not_found("File not found", 53, "file");
Failure const not_permitted("Permission denied", 70, "file");
Failure const disk_full("Disk full", 61, "file");

std::string_view parent(std::string_view path)
{
    return path.substr(0, path.rfind('/'));
}

} // namespace

MemoryFiles::MemoryFiles(std::string folder, Journal& journal)
    : folder_(std::move(folder)), journal_(journal)
{
    folders_.insert(folder_);
}

bool MemoryFiles::exists(std::string_view path) const
{
    return files_.contains(path) || folders_.contains(path);
}

bool MemoryFiles::is_file(std::string_view path) const
{
    return files_.contains(path);
}

std::string MemoryFiles::read(std::string_view path) const
{
    auto const name = name_of(path);
    journal_.note("read " + name);
    auto const file = files_.find(path);
    if (file == files_.end()) {
        throw not_found;
    }
    if (fails_now()) {
        throw access_error;
    }
    if (unreadable.contains(name)) {
        throw not_permitted;
    }
    return file->second;
}

void MemoryFiles::write(std::string_view path, std::string_view content)
{
    auto const name = name_of(path);
    journal_.note("write " + name);
    if (!folders_.contains(parent(path))) {
        throw not_found;
    }
    if (fails_now()) {
        if (leaves_ == Leaves::half) {
            fill(path, content.substr(0, content.size() / 2));
        }
        throw access_error;
    }
    require_writable(name);
    fill(path, content);
}

void MemoryFiles::remove(std::string_view path)
{
    auto const name = name_of(path);
    journal_.note("remove " + name);
    if (fails_now()) {
        throw access_error;
    }
    require_writable(name);
    auto const file = files_.find(path);
    if (file == files_.end()) {
        throw not_found;
    }
    files_.erase(file);
}

void MemoryFiles::make_folder(std::string_view path)
{
    auto const name = name_of(path);
    journal_.note("make " + name);
    if (fails_now()) {
        throw access_error;
    }
    require_writable(name);
    if (!folders_.contains(parent(path))) {
        throw not_found;
    }
    folders_.emplace(path);
}

void MemoryFiles::put(std::string_view name, std::string_view content)
{
    files_.insert_or_assign(path_of(name), std::string(content));
    folders_.emplace(parent(path_of(name)));
}

void MemoryFiles::erase(std::string_view name)
{
    files_.erase(path_of(name));
}

bool MemoryFiles::has(std::string_view name) const
{
    return files_.contains(path_of(name));
}

std::string MemoryFiles::content(std::string_view name) const
{
    auto const file = files_.find(path_of(name));
    return file == files_.end() ? std::string() : file->second;
}

std::set<std::string> MemoryFiles::names() const
{
    std::set<std::string> all;
    for (auto const& file : files_) {
        all.insert(name_of(file.first));
    }
    return all;
}

bool MemoryFiles::has_folder(std::string_view name) const
{
    return folders_.contains(path_of(name));
}

void MemoryFiles::erase_folder(std::string_view name)
{
    folders_.erase(path_of(name));
}

void MemoryFiles::fail_after(int others, Leaves leaves)
{
    until_failure_ = others;
    leaves_ = leaves;
}

bool MemoryFiles::fails_now() const
{
    ++operations_;
    if (until_failure_ < 0) {
        return false;
    }
    return until_failure_-- == 0;
}

void MemoryFiles::require_writable(std::string_view name) const
{
    if (read_only || unwritable.contains(std::string(name))) {
        throw not_permitted;
    }
}

void MemoryFiles::fill(std::string_view path, std::string_view content)
{
    auto& file = files_.insert_or_assign(std::string(path), std::string()).first->second;
    std::size_t taken = 0;
    for (auto const& other : files_) {
        taken += other.second.size();
    }
    auto const fits =
        space ? std::min(content.size(), *space - std::min(*space, taken)) : content.size();
    file = content.substr(0, fits);
    if (fits < content.size()) {
        throw disk_full;
    }
}

std::string MemoryFiles::name_of(std::string_view path) const
{
    bool const below = path.starts_with(folder_ + "/");
    return std::string(below ? path.substr(folder_.size() + 1) : path);
}

std::string MemoryFiles::path_of(std::string_view name) const
{
    return name.starts_with('/') ? std::string(name) : folder_ + "/" + std::string(name);
}

} // namespace sim
