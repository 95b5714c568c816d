#pragma once

#include "platform/processes.h"
#include "platform/session_entries.h"
#include "platform/tray_icon.h"
#include "platform/web.h"
#include "sim/journal.h"
#include "sim/memory_files.h"
#include "text/failure.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// What stands around a program on its desktop: notification area, session, processes, web.
namespace sim {

/// A notification area that remembers the icon.
class TrayIcon : public platform::TrayIcon {
public:
    void add(Image first_image, std::string_view first_tip) override
    {
        steps.emplace_back("add");
        ++added;
        shown = true;
        set_image(first_image);
        set_tip(first_tip);
    }
    void set_image(Image to) override
    {
        image = to;
        steps.emplace_back(to == Image::normal    ? "normal image"
                           : to == Image::waiting ? "waiting image"
                                                  : "away image");
    }
    void set_tip(std::string_view to) override
    {
        tip = to;
        steps.push_back("tip " + tip);
    }
    void remove() override
    {
        shown = false;
        steps.emplace_back("remove");
    }

    /// What was done to the icon, in order.
    std::vector<std::string> steps;
    bool shown = false;
    int added = 0;
    Image image = Image::normal;
    std::string tip;
};

/// The session's entries, by name.
class SessionEntries : public platform::SessionEntries {
public:
    [[nodiscard]] std::string read(std::string_view name) const override
    {
        auto const found = entries.find(name);
        return found == entries.end() ? std::string() : found->second;
    }
    [[nodiscard]] bool write(std::string_view name, std::string_view command) override
    {
        if (!read_only) {
            entries.insert_or_assign(std::string(name), std::string(command));
        }
        return !read_only;
    }
    [[nodiscard]] bool remove(std::string_view name) override
    {
        return !read_only && entries.erase(std::string(name)) == 1;
    }

    std::map<std::string, std::string, std::less<>> entries;
    bool read_only = false;
};

class Processes : public platform::Processes {
public:
    [[nodiscard]] std::vector<Entry> others() const override { return running; }
    void kill(long id) override
    {
        killed.push_back(id);
        std::erase_if(running, [id](Entry const& entry) { return entry.id == id; });
    }

    std::vector<Entry> running;
    std::vector<long> killed;
};

/// A web that knows some addresses.
class Web : public platform::Web {
public:
    Web(MemoryFiles& files, Journal& journal) : files_(files), journal_(journal) {}

    void forget(std::string_view address) override
    {
        journal_.note("forget " + std::string(address));
    }
    [[nodiscard]] bool download(std::string_view address, std::string_view path) override
    {
        journal_.note("download " + std::string(address));
        asked.emplace_back(address);
        auto const page = pages.find(address);
        if (page == pages.end()) {
            return false;
        }
        return text::attempt([&] { files_.write(path, page->second); });
    }

    std::map<std::string, std::string, std::less<>> pages;
    std::vector<std::string> asked;

private:
    MemoryFiles& files_;
    Journal& journal_;
};

} // namespace sim
