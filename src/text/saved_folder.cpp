#include "text/saved_folder.h"

#include "text/character_set.h"

namespace text {

std::string saved_folder_in_profile(std::string_view profile)
{
    auto const place = CharacterSet::western().find(profile, "users");
    // A path that begins with the word does not count: it must stand further in.
    bool const documents = place != npos && place > 0;
    return std::string(profile) +
           (documents ? "/Documents/vexlomessages" : "/My Documents/vexlomessages");
}

std::string saved_folder_in_home(std::string_view home)
{
    return std::string(home) + "/vexlomessages";
}

} // namespace text
