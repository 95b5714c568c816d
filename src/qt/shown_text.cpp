#include "qt/shown_text.h"

#include "text/fields.h"

#include <algorithm>
#include <utility>

namespace qt {

ShownText::ShownText(std::string model, Codec const& codec) : model_(std::move(model))
{
    std::string flat;
    flat.reserve(model_.size());
    for (std::size_t place = 0; place < model_.size(); ++place) {
        char const letter = model_[place];
        if (letter == '\r' && place + 1 < model_.size() && model_[place + 1] == '\n') {
            pairs_.push_back(static_cast<qsizetype>(flat.size()));
            ++place;
        }
        flat += letter == '\r' ? '\n' : letter;
    }
    text_ = codec.to_unicode(flat);
}

qsizetype ShownText::shown_place(std::size_t model_place) const
{
    auto place = static_cast<qsizetype>(std::min(model_place, model_.size()));
    for (qsizetype const pair : pairs_) {
        if (pair >= place) {
            break;
        }
        --place;
    }
    return place;
}

std::size_t ShownText::model_place(qsizetype shown_place) const
{
    auto const place = std::clamp<qsizetype>(shown_place, 0, text_.size());
    auto const before = std::ranges::lower_bound(pairs_, place) - pairs_.begin();
    return static_cast<std::size_t>(place + before);
}

ShownText::Change ShownText::change_to(QString const& now) const
{
    auto const shorter = std::min(text_.size(), now.size());
    auto const same_start = std::mismatch(text_.begin(), text_.begin() + shorter, now.begin());
    auto start = same_start.first - text_.begin();
    qsizetype tail = 0;
    while (tail < shorter - start && text_[text_.size() - 1 - tail] == now[now.size() - 1 - tail]) {
        ++tail;
    }
    // A mark that comes behind its letter is a change of that letter.
    while (start > 0 && start < now.size() - tail && now[start].isMark()) {
        --start;
    }
    return {start, text_.size() - tail - start, now.mid(start, now.size() - tail - start)};
}

std::string ShownText::changed(Change const& change, std::string_view bytes) const
{
    auto const start = model_place(change.start);
    auto const end = model_place(change.start + change.length);
    std::string all = model_.substr(0, start);
    for (char const letter : bytes) {
        if (letter == '\n') {
            all += text::line_end;
        } else {
            all += letter;
        }
    }
    return all + model_.substr(end);
}

} // namespace qt
