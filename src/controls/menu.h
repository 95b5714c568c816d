#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace controls {

struct MenuEntry {
    std::string caption; ///< "-" is a separator
    bool visible = true;
    bool enabled = true;
    bool checked = false;
};

/// A popup menu. Its entries keep their index, hidden ones included.
class Menu {
public:
    Menu(std::string title, std::vector<MenuEntry> list)
        : caption(std::move(title)), entries(std::move(list))
    {
    }

    MenuEntry& operator[](std::size_t index) { return entries.at(index); }
    MenuEntry const& operator[](std::size_t index) const { return entries.at(index); }

    /// A person picks entry `index`.
    void choose(std::size_t index) const
    {
        if (chosen) {
            chosen(index);
        }
    }

    /// Puts the check mark on entry `index` and takes it from all others.
    void check_only(std::size_t index)
    {
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            entries[entry].checked = entry == index;
        }
    }

    /// Pops the menu up at the pointer; attached by whoever shows it.
    void pop_up() const
    {
        if (popped_up) {
            popped_up();
        }
    }

    std::string caption;
    std::vector<MenuEntry> entries;
    std::function<void(std::size_t)> chosen;
    std::function<void()> popped_up;
};

} // namespace controls
