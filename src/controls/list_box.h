#pragma once

#include "controls/basic.h"
#include "text/character_set.h"

#include <string>
#include <string_view>
#include <vector>

namespace controls {

/// A list of text rows. A sorted list puts each added row in its place: case-blind, then by bytes.
/// Selections belong to rows and move with them; emptying the list loses them without a word.
class ListBox {
public:
    static constexpr int none = -1;

    ListBox() = default;
    /// A list that keeps itself sorted. `letters` must outlive the list.
    explicit ListBox(text::CharacterSet const& letters) : letters_(&letters) {}

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] bool empty() const { return rows_.empty(); }
    /// Row `index`, or the empty text where there is none.
    [[nodiscard]] std::string const& row(int index) const;
    [[nodiscard]] std::vector<std::string> rows() const;

    /// Adds a row: in its sorted place, or at the end.
    void add(std::string_view row);
    /// Adds rows as add() would, one after the other, but a whole file of them at once.
    void add_all(std::vector<std::string> rows);
    /// Puts a row at `index`, whatever the sort order says. Raises a Failure when there is no such
    /// place.
    void insert(int index, std::string_view row);
    /// Raises a Failure when there is no row `index`.
    void remove(int index);
    void clear();

    /// The row under the list's own mark: the one last clicked or chosen; `none` when there is
    /// none.
    [[nodiscard]] int index() const { return index_; }
    /// The text of that row; empty when there is none.
    [[nodiscard]] std::string const& text() const { return row(index_); }
    [[nodiscard]] bool selected(int index) const;
    [[nodiscard]] std::vector<std::string> selected_rows() const;

    /// Moves the mark and, in a list of single selection, the selection; runs `clicked` when that
    /// is a change.
    void choose(int index);
    /// Selects or deselects a row of a multi-selection list and marks it; runs `clicked` when that
    /// is a change.
    void select(int index, bool selected);
    /// What a person's gesture in a multi-selection list has made of it, in one go: runs `clicked`
    /// once.
    void choose_many(std::vector<int> const& selection, int index);

    bool visible = true;
    bool enabled = true;
    bool multi_selection = false;
    int font_size = 10; ///< points
    std::string tool_tip;
    Focus focus;
    Command clicked;

private:
    struct Row {
        std::string text;
        bool selected = false;
    };

    [[nodiscard]] bool has(int index) const { return index >= 0 && index < count(); }
    Row& at(int index) { return rows_[static_cast<std::size_t>(index)]; }

    std::vector<Row> rows_;
    text::CharacterSet const* letters_ = nullptr;
    int index_ = none;
};

} // namespace controls
