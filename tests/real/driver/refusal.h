#pragma once

#include <QString>

#include <stdexcept>
#include <string>

namespace driver {

/// What a person in front of the screen could not do either: the control is not there, is hidden,
/// is covered, or stands behind a box. The test that asked gets the text.
class Refusal : public std::runtime_error {
public:
    explicit Refusal(QString const& why) : std::runtime_error(why.toStdString()) {}
};

} // namespace driver
