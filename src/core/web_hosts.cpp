#include "core/web_hosts.h"

namespace core {

desktop::WebHosts web_hosts()
{
    return {.update = VEXLO_UPDATE_HOST, .web = VEXLO_WEB_HOST, .company = VEXLO_WEB_HOST};
}

} // namespace core
