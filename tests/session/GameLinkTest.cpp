#include "analysis/PipelineFixture.h"
#include "session/Session.h"

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

// The connection string the client writes itself opens its host and port; a sent "quit" keeps
// the drop that follows from being tried again.
TEST_F(GameLinkTest, ASentCommandGoesOutWithItsLineEndOnlyWhileConnected)
{
    link.SendLine("north");
    char connection[CONNECTION_STRING_SIZE] = {};
    FormatConnectionString(connection, "127.0.0.1", 34283);
    ASSERT_EQ(link.ConnectToGame(connection), CONNECT_OK);
    EXPECT_EQ(socket.opened.front().substr(0, 16), "127.0.0.1:34283 ");
    link.SendLine("south");
    link.SendLine("quit");
    link.ShutdownConnection();
    link.SendLine("east");
    EXPECT_EQ(socket.sent, "south\n\rquit\n\r");
    EXPECT_EQ(link.Reconnect().Dropped(true), 0);
}

} // namespace
} // namespace steward::testing
