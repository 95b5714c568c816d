#pragma once

#include <stdexcept>

/// How a story ends before its end.
namespace demo {

/// Something was told, and did not come about.
class NotAsTold : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The person in front wants to use the windows himself.
struct TakenOver {};

/// The person in front has closed the office.
struct Closed {};

} // namespace demo
