#pragma once

#include "desktop/version.h"
#include "desktop/web_hosts.h"
#include "forms/forms.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "platform/boxes.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/web.h"

#include <string>
#include <string_view>

namespace desktop {

/// The update check: which version is current, what is new, and the way to its installer.
class Updates {
public:
    struct Uses {
        forms::FrmMain& frmMain;
        network::Transport& transport;
        network::Trouble& trouble;
        platform::Boxes& boxes;
        platform::Environment const& environment;
        platform::Files& files;
        platform::Outside& outside;
        platform::Web& web;
        WebHosts const& hosts;
    };

    Updates(Uses uses, Version own);
    Updates(Updates const&) = delete;
    Updates& operator=(Updates const&) = delete;

    /// The whole check, in one go. A host that serves no version raises a Failure.
    void updates();

private:
    [[nodiscard]] std::string fetch();
    platform::Answer show(platform::MessageBox const& box);
    [[nodiscard]] std::string offer(std::string_view remote);
    [[noreturn]] void hand_over();

    Uses uses_;
    Version own_;
};

} // namespace desktop
