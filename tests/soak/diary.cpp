#include "tests/soak/diary.h"

#include <utility>

namespace soak {

void Diary::note(std::string line)
{
    ++acts_;
    fold(line);
    last_.push_back(std::move(line));
    if (last_.size() > kept) {
        last_.pop_front();
    }
}

void Diary::fold(std::string_view words)
{
    constexpr std::uint64_t prime = 1099511628211ULL;
    for (char const letter : words) {
        digest_ = (digest_ ^ static_cast<unsigned char>(letter)) * prime;
    }
    digest_ *= prime; // "ab" and "c" are not "a" and "bc".
}

} // namespace soak
