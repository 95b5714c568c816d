#include "controls/list_box.h"

#include "text/failure.h"

#include <algorithm>

namespace controls {

namespace {

std::string const no_text;

[[noreturn]] void refuse_index()
{
    throw text::Failure("Invalid procedure call or argument", 5, "list");
}

} // namespace

std::string const& ListBox::row(int index) const
{
    return has(index) ? rows_[static_cast<std::size_t>(index)].text : no_text;
}

std::vector<std::string> ListBox::rows() const
{
    std::vector<std::string> texts;
    texts.reserve(rows_.size());
    for (Row const& row : rows_) {
        texts.push_back(row.text);
    }
    return texts;
}

void ListBox::add(std::string_view row)
{
    auto place = rows_.end();
    if (letters_ != nullptr) {
        place = std::ranges::upper_bound(
            rows_, row,
            [this](std::string_view a, std::string_view b) { return letters_->before(a, b); },
            [](Row const& present) { return std::string_view(present.text); });
    }
    insert(static_cast<int>(place - rows_.begin()), row);
}

void ListBox::add_all(std::vector<std::string> rows)
{
    auto const present = count();
    for (std::string& row : rows) {
        rows_.push_back(Row{std::move(row)});
    }
    if (letters_ == nullptr) {
        return;
    }
    auto const in_order = [this](Row const& a, Row const& b) {
        return letters_->before(a.text, b.text);
    };
    auto const added = rows_.begin() + present;
    std::stable_sort(added, rows_.end(), in_order);
    if (index_ != none) {
        index_ +=
            static_cast<int>(std::lower_bound(added, rows_.end(), at(index_), in_order) - added);
    }
    std::inplace_merge(rows_.begin(), added, rows_.end(), in_order);
}

void ListBox::insert(int index, std::string_view row)
{
    if (index < 0 || index > count()) {
        refuse_index();
    }
    rows_.insert(rows_.begin() + index, Row{std::string(row)});
    if (index_ >= index) {
        ++index_;
    }
}

void ListBox::remove(int index)
{
    if (!has(index)) {
        refuse_index();
    }
    rows_.erase(rows_.begin() + index);
    if (index_ == index) {
        index_ = none;
    } else if (index_ > index) {
        --index_;
    }
}

void ListBox::clear()
{
    rows_.clear();
    index_ = none;
}

bool ListBox::selected(int index) const
{
    return has(index) &&
           (multi_selection ? rows_[static_cast<std::size_t>(index)].selected : index == index_);
}

std::vector<std::string> ListBox::selected_rows() const
{
    std::vector<std::string> chosen;
    for (int index = 0; index < count(); ++index) {
        if (selected(index)) {
            chosen.push_back(row(index));
        }
    }
    return chosen;
}

void ListBox::choose(int index)
{
    int const wanted = has(index) ? index : none;
    if (index_ != wanted) {
        index_ = wanted;
        clicked.run();
    }
}

void ListBox::select(int index, bool selected)
{
    if (!multi_selection) {
        choose(selected ? index : none);
    } else if (has(index) && at(index).selected != selected) {
        at(index).selected = selected;
        index_ = index;
        clicked.run();
    }
}

void ListBox::choose_many(std::vector<int> const& selection, int index)
{
    for (Row& row : rows_) {
        row.selected = false;
    }
    for (int const chosen : selection) {
        if (has(chosen)) {
            at(chosen).selected = true;
        }
    }
    index_ = has(index) ? index : none;
    clicked.run();
}

} // namespace controls
