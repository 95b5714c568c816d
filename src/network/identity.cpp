#include "network/identity.h"

namespace network {

std::string own_account(platform::Environment const& environment)
{
    return environment.value("computername") + "\\" + environment.value("username");
}

std::string identity_of(std::string_view account, text::CharacterSet const& letters)
{
    return "[" + letters.upper(account) + "]";
}

std::string own_identity(platform::Environment const& environment,
                         text::CharacterSet const& letters)
{
    return identity_of(own_account(environment), letters);
}

} // namespace network
