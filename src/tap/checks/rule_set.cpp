#include "tap/checks/rule_set.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <utility>
#include <vector>

namespace tap {

namespace {

using Words = std::vector<std::string>;

/// What becomes of a datagram at a rule.
enum class Fate { accepted, kept_out, led_on, led_back, goes_on };

struct Chain {
    std::string table;
    std::string name;
    bool takes_arrivals = false;
    bool closed_by_policy = false;
    std::vector<Words> rules = {};
};

/// The line with nothing between its quotes: there stand comments and names, and no verdict.
std::string without_quoted(std::string_view line)
{
    std::string kept;
    bool is_quoted = false;
    for (char const letter : line) {
        is_quoted = is_quoted != (letter == '"');
        if (letter == '"' || !is_quoted) {
            kept += letter;
        }
    }
    return kept;
}

Words words_of(std::string_view text)
{
    auto line = without_quoted(text);
    std::ranges::replace_if(
        line, [](char letter) { return letter == ',' || letter == ';'; }, ' ');
    std::istringstream stream(line);
    Words words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

bool holds(Words const& words, std::string_view word)
{
    return std::ranges::find(words, word) != words.end();
}

/// "4111", or a range: "4100-4200".
bool names_port(std::string const& word, int port)
{
    std::istringstream range(word);
    int first = 0;
    int last = 0;
    char dash = 0;
    if (!(range >> first)) {
        return false;
    }
    if (!(range >> dash >> last) || dash != '-') {
        last = first;
    }
    return first <= port && port <= last;
}

/// Whether the rule asks for UDP ports, this one among them: "4111", a range, a set "{ 53, 4111 }";
/// behind "!=" all others.
bool is_about_port(Words const& rule, int port)
{
    auto place = std::ranges::find(rule, "dport");
    if (place == rule.begin() || place == rule.end() || *(place - 1) != "udp") {
        return false;
    }
    ++place;
    bool const all_others = place != rule.end() && *place == "!=";
    place += all_others ? 1 : 0;
    bool const is_set = place != rule.end() && *place == "{";
    auto const end = is_set ? std::find(place, rule.end(), "}")
                            : place + std::min<std::ptrdiff_t>(1, rule.end() - place);
    bool const is_named =
        std::any_of(place, end, [port](auto const& word) { return names_port(word, port); });
    return is_named != all_others;
}

bool leads_on(std::string const& word)
{
    return word == "jump" || word == "goto";
}

/// Leaves out what each datagram of the office meets anyway.
Words without_matter_of_course(Words rule)
{
    static std::vector<Words> const met{{"meta", "pkttype", "broadcast"},
                                        {"fib", "daddr", "type", "broadcast"},
                                        {"ip", "daddr", "255.255.255.255"},
                                        {"ip", "protocol", "udp"},
                                        {"meta", "l4proto", "udp"}};
    for (Words const& words : met) {
        auto const found = std::search(rule.begin(), rule.end(), words.begin(), words.end());
        if (found != rule.end()) {
            rule.erase(found, found + static_cast<std::ptrdiff_t>(words.size()));
        }
    }
    return rule;
}

/// Whether nothing but a counter stands before the verdict.
bool is_unconditional(Words const& rule)
{
    auto const& first = rule.front();
    return first == "accept" || first == "drop" || first == "reject" || first == "return" ||
           first == "counter" || leads_on(first);
}

/// Whether the table's family has none of the messenger's packets, which are IPv4.
bool is_of_others(std::string_view table)
{
    return table.starts_with("ip6 ") || table.starts_with("arp ");
}

Fate fate_at(Words const& rule, int port)
{
    if (!is_unconditional(rule) && !is_about_port(rule, port)) {
        return Fate::goes_on;
    }
    if (holds(rule, "accept")) {
        return Fate::accepted;
    }
    if (holds(rule, "drop") || holds(rule, "reject")) {
        return Fate::kept_out;
    }
    if (holds(rule, "return")) {
        return Fate::led_back;
    }
    return std::ranges::any_of(rule, leads_on) ? Fate::led_on : Fate::goes_on;
}

class RuleSet {
public:
    explicit RuleSet(std::string_view text);

    [[nodiscard]] std::optional<ClosedChain> closed_for(int port) const;

private:
    /// How far a datagram has come in a chain.
    struct Place {
        Chain const* chain = nullptr;
        std::size_t next = 0; ///< rule
    };

    void read(Words const& words);
    [[nodiscard]] Fate fate(Chain const& chain, int port) const;
    [[nodiscard]] Chain const* target(Words const& rule, Chain const& in) const;

    std::string table_;
    std::vector<Chain> chains_;
    bool in_chain_ = false;
};

RuleSet::RuleSet(std::string_view text)
{
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        auto const words = words_of(line);
        if (!words.empty()) {
            read(words);
        }
    }
}

void RuleSet::read(Words const& words)
{
    if (words.front() == "table" && words.size() >= 3) {
        table_ = words[1] + " " + words[2];
    } else if (words.front() == "chain" && words.size() >= 2) {
        chains_.push_back({.table = table_, .name = words[1]});
        in_chain_ = true;
    } else if (words.front() == "}") {
        in_chain_ = false;
    } else if (in_chain_ && words.front() == "type") {
        chains_.back().takes_arrivals = holds(words, "input") && !is_of_others(table_);
        chains_.back().closed_by_policy = holds(words, "drop");
    } else if (in_chain_) {
        auto rule = without_matter_of_course(words);
        if (!rule.empty()) {
            chains_.back().rules.push_back(std::move(rule));
        }
    }
}

std::optional<ClosedChain> RuleSet::closed_for(int port) const
{
    for (Chain const& chain : chains_) {
        if (!chain.takes_arrivals) {
            continue;
        }
        auto const end = fate(chain, port);
        if (end == Fate::kept_out || (end == Fate::goes_on && chain.closed_by_policy)) {
            return ClosedChain{chain.table, chain.name};
        }
    }
    return {};
}

Fate RuleSet::fate(Chain const& chain, int port) const
{
    std::vector<Chain const*> seen{&chain};
    for (std::vector<Place> way{{&chain}}; !way.empty();) {
        auto& here = way.back();
        if (here.next == here.chain->rules.size()) {
            way.pop_back();
            continue;
        }
        Words const& rule = here.chain->rules[here.next++];
        auto const met = fate_at(rule, port);
        if (met == Fate::accepted || met == Fate::kept_out) {
            return met;
        }
        if (met == Fate::led_back || (met == Fate::led_on && holds(rule, "goto"))) {
            here.next = here.chain->rules.size();
        }
        auto const* const next = met == Fate::led_on ? target(rule, *here.chain) : nullptr;
        // A chain that has let the datagram go on once does so again.
        if (next != nullptr && std::ranges::find(seen, next) == seen.end()) {
            seen.push_back(next);
            way.push_back({next});
        }
    }
    return Fate::goes_on;
}

Chain const* RuleSet::target(Words const& rule, Chain const& in) const
{
    auto const jump = std::ranges::find_if(rule, leads_on);
    if (jump + 1 == rule.end()) {
        return nullptr;
    }
    auto const found = std::ranges::find_if(chains_, [&](Chain const& chain) {
        return chain.table == in.table && chain.name == *(jump + 1);
    });
    return found == chains_.end() ? nullptr : &*found;
}

} // namespace

std::optional<ClosedChain> closed_chain(std::string_view rules, int port)
{
    return RuleSet(rules).closed_for(port);
}

} // namespace tap
