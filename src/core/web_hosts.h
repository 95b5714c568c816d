#pragma once

#include "desktop/web_hosts.h"

namespace core {

/// The vendor's hosts, as this program was built for them.
[[nodiscard]] desktop::WebHosts web_hosts();

} // namespace core
