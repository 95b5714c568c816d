#pragma once

#include "controls/basic.h"

#include <array>
#include <deque>
#include <string>
#include <utility>

namespace controls {

/// A report list of rows with ten text columns. Rows count from 1, as the window's row number does;
/// 0 is no row.
class Table {
public:
    static constexpr std::size_t columns = 10;
    using Row = std::array<std::string, columns>;

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] bool empty() const { return rows_.empty(); }
    /// Row `number`, 1 to count().
    [[nodiscard]] Row const& row(int number) const
    {
        return rows_.at(static_cast<std::size_t>(number - 1));
    }
    [[nodiscard]] Row& row(int number) { return rows_.at(static_cast<std::size_t>(number - 1)); }

    void add(Row row) { rows_.push_back(std::move(row)); }

    /// Removes row `number`; the rows behind it count one less.
    void remove(int number)
    {
        rows_.erase(rows_.begin() + (number - 1));
        selected_ = selected_ == number ? 0 : selected_ - (selected_ > number ? 1 : 0);
    }

    void clear()
    {
        rows_.clear();
        selected_ = 0;
    }

    /// The selected row's number, or 0.
    [[nodiscard]] int selected() const { return selected_; }
    /// Makes a row visible and selected, from code: no handler runs.
    void show(int number) { selected_ = number; }
    /// A person selects a row, by mouse or key.
    void choose(int number)
    {
        selected_ = number;
        clicked.run();
    }

    std::string tool_tip;
    Focus focus;
    Command clicked;
    Command double_clicked;

private:
    std::deque<Row> rows_;
    int selected_ = 0;
};

} // namespace controls
