#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "session/ReconnectPlan.h"

namespace steward::test {
namespace {

// Long enough for the first try to have come, had one been due.
constexpr int PAST_FIRST_TRY_MS = RECONNECT_FIRST_WAIT_S * 1000 + 700;

class ReconnectWorldTest : public ClientHarness {
  protected:
    // The world ends and starts again on its port, as a server does after a restart.
    void RestartWorld()
    {
        const int port = world->port;
        world->Stop();
        world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"),
                                               QStringList{"--port", QString::number(port)});
        // Told a port, the world greets with a sentence instead of the number.
        world->port = port;
    }

    std::unique_ptr<Client> LoggedInWith(bool reconnect)
    {
        auto client = LoggedInClient();
        if (client)
            client->State().Steward.Set(RECONNECT_ON_DROP, reconnect);
        return client;
    }
};

TEST_F(ReconnectWorldTest, WithTheOptionOnAClientDroppedByTheWorldComesBackAndAsksForStatusAgain)
{
    auto client = LoggedInWith(true);
    ASSERT_NE(client, nullptr);
    ASSERT_TRUE(WaitForSent("Set Steward On\n\r"));
    RestartWorld();
    ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."));
    EXPECT_TRUE(WaitForGameText(*client, "*** Reconnecting in 2 seconds (try 1 of 10)..."));

    ASSERT_TRUE(WaitForGameText(*client, "*** Reconnected to the game."));
    EXPECT_FALSE(client->IsDisconnected());
    EXPECT_TRUE(desktop.messages.empty());
    ExpectStatusRecordsAskedAgain(*client);
}

TEST_F(ReconnectWorldTest, NothingIsTriedWithTheOptionOffAfterTheQuitOrAfterAConnectByHand)
{
    enum class Drop { WorldRestarts, PlayerQuits, WorldGoneThenConnectByHand };
    const struct {
        const char* name;
        bool option;
        Drop drop;
    } cases[] = {
        {"option off", false, Drop::WorldRestarts},
        {"the player's quit", true, Drop::PlayerQuits},
        {"a failed connect by hand", true, Drop::WorldGoneThenConnectByHand},
    };
    for (const auto& c : cases) {
        world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"));
        auto client = LoggedInWith(c.option);
        ASSERT_NE(client, nullptr) << c.name;
        if (c.drop == Drop::PlayerQuits)
            Type(*client, "quit");
        else if (c.drop == Drop::WorldRestarts)
            RestartWorld();
        else
            world->Stop();
        ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."))
            << c.name;
        if (c.drop == Drop::WorldGoneThenConnectByHand) {
            ASSERT_TRUE(WaitForGameText(*client, "*** Reconnecting in 2 seconds")) << c.name;
            client->OnCommand(CMD_CONNECT);
            EXPECT_EQ(desktop.messages,
                      std::vector<std::string>{"Fatal Error|Unable to connect to the server!"});
        }
        QTest::qWait(PAST_FIRST_TRY_MS);
        EXPECT_TRUE(client->IsDisconnected()) << c.name;
        EXPECT_EQ(GameText(*client).find("server! (try"), std::string::npos) << c.name;
        EXPECT_EQ(GameText(*client).find("Reconnected"), std::string::npos) << c.name;
        client->Frame().close();
        desktop.messages.clear();
    }
}

} // namespace
} // namespace steward::test
