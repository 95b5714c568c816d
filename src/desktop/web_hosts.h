#pragma once

#include <string>

namespace desktop {

/// The vendor's addresses: scheme and host, without a separator at the end.
struct WebHosts {
    std::string update; ///< versions and installers
    std::string web;    ///< help and home
    std::string company;
};

} // namespace desktop
