#include "bench/capacity/arguments.h"

#include <stdexcept>

namespace capacity {

void Arguments::add(std::string_view told)
{
    auto const separator = told.find('=');
    if (separator == std::string_view::npos) {
        throw std::invalid_argument("no KEY=VALUE: " + std::string(told));
    }
    values_.insert_or_assign(std::string(told.substr(0, separator)),
                             std::string(told.substr(separator + 1)));
}

double Arguments::number(std::string_view key, double otherwise) const
{
    auto const value = values_.find(key);
    return value == values_.end() ? otherwise : std::stod(value->second);
}

std::string Arguments::text(std::string_view key, std::string_view otherwise) const
{
    auto const value = values_.find(key);
    return value == values_.end() ? std::string(otherwise) : value->second;
}

} // namespace capacity
