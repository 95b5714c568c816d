#include "tests/desk/desk_flows.h"

namespace {

using namespace desk;
using namespace flows;

class GroupsFile : public Desk {};

TEST_F(GroupsFile, IsWrittenWithThreeGroupsAndALineMoreWhenThereIsNone)
{
    open();

    EXPECT_EQ(alice.files.content("groups.txt"), "[Group01name  ]=ACCOUNTING\r\n"
                                                 "[Group02name  ]=FRIENDS\r\n"
                                                 "[Group03name  ]=SALES\r\n"
                                                 "[Group04name  ]=\r\n"
                                                 "[Group05name  ]=\r\n"
                                                 "[Group06name  ]=\r\n"
                                                 "[Group07name  ]=\r\n"
                                                 "[Group08name  ]=\r\n"
                                                 "[Group09name  ]=\r\n"
                                                 "[Group10name  ]=\r\n"
                                                 "\r\n");
}

} // namespace
