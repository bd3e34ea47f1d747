#include "analysis/PipelineFixture.h"

namespace steward::testing {
namespace {

using GameLinkTest = PipelineTest;

TEST_F(GameLinkTest, ALineCutBetweenBlocksReachesTheGameWindowWhole)
{
    const std::string block = "You see a rat.\r\nThe rat fl";
    link.ReceiveBlock(block.data(), block.size());
    link.ReceiveBlock("ees.\r\n", 6);
    EXPECT_EQ(In(Game()), "You see a rat.\nThe rat flees.\n");
}

TEST_F(GameLinkTest, ASentCommandGoesOutWithItsLineEndOnlyWhileConnected)
{
    link.SendLine("north");
    ASSERT_EQ(link.ConnectToGame("/H127.0.0.1/P34283"), CONNECT_OK);
    link.SendLine("south");
    link.ShutdownConnection();
    link.SendLine("east");
    EXPECT_EQ(socket.sent, "south\n\r");
}

} // namespace
} // namespace steward::testing
