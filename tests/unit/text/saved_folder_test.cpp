#include "text/saved_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(SavedFolder, LiesInTheDocumentsOfAProfileAmongOthers)
{
    EXPECT_EQ(text::saved_folder_in_profile("C:/Users/jo"), "C:/Users/jo/Documents/vexlomessages");
    EXPECT_EQ(text::saved_folder_in_profile("/USERS/jo"), "/USERS/jo/Documents/vexlomessages");
}

TEST(SavedFolder, LiesInMyDocumentsOfAnyOtherProfile)
{
    EXPECT_EQ(text::saved_folder_in_profile("C:/Profiles/jo"),
              "C:/Profiles/jo/My Documents/vexlomessages");
}

TEST(SavedFolder, AProfileThatBeginsWithTheWordIsAnyOther)
{
    EXPECT_EQ(text::saved_folder_in_profile("users/jo"), "users/jo/My Documents/vexlomessages");
}

TEST(SavedFolder, LiesInAPlainHomeItself)
{
    EXPECT_EQ(text::saved_folder_in_home("/home/jo"), "/home/jo/vexlomessages");
}

} // namespace
