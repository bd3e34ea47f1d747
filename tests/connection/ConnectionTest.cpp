#include "connection/Connection.h"
#include "config/Settings.h"
#include "connection/GameSocket.h"
#include "connection/RecordingSink.h"
#include "connection/RecordingSocket.h"
#include "connection/StreamDecoder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

class ConnectionTest : public ::testing::Test {
  protected:
    testing::RecordingSocket socket;
    testing::RecordingSink lines;
    PacketDump dump;
    Settings settings;
    StreamDecoder decoder{lines, dump, settings};
    Connection connection{socket, decoder};
};

struct ResultCase {
    const char* text;
    bool socketAccepts;
    int result;
    const char* opened;
};

TEST_F(ConnectionTest, ResultsOfConnectToGame)
{
    const ResultCase cases[] = {
        {"", true, CONNECT_OFFLINE, nullptr},
        {"/Hhost", true, CONNECT_BAD_STRING, nullptr},
        {"/Hhost/P23", false, CONNECT_FAILED, "host:23 60000"},
        {"/Hhost/Pabc", true, CONNECT_FAILED, nullptr},
        {"/Hhost/P70000", true, CONNECT_FAILED, nullptr},
        {"/Hhost/P23/T5", true, CONNECT_OK, "host:23 5000"},
    };
    for (const ResultCase& c : cases) {
        socket.opened.clear();
        socket.accept = c.socketAccepts;
        EXPECT_EQ(connection.ConnectToGame(c.text), c.result) << c.text;
        EXPECT_EQ(connection.IsDisconnected(), c.result != CONNECT_OK) << c.text;
        if (c.opened)
            EXPECT_EQ(socket.opened, std::vector<std::string>{c.opened}) << c.text;
        else
            EXPECT_TRUE(socket.opened.empty()) << c.text;
        connection.ShutdownConnection();
    }
}

TEST_F(ConnectionTest, EveryAttemptDropsAHeldPartialLine)
{
    ASSERT_EQ(connection.ConnectToGame("/Hhost/P23"), CONNECT_OK);
    decoder.SetHoldPartialLines(true);
    decoder.HandleSocketEvent("half a li", 9);
    EXPECT_EQ(decoder.LineLength(), 9);
    connection.ShutdownConnection();

    EXPECT_EQ(connection.ConnectToGame("/Hhost"), CONNECT_BAD_STRING);
    EXPECT_FALSE(decoder.HoldsPartialLines());
    EXPECT_EQ(decoder.LineLength(), 0);
}

TEST_F(ConnectionTest, SendLineEndsWithLineFeedThenCarriageReturn)
{
    ASSERT_EQ(connection.ConnectToGame("/Hhost/P23"), CONNECT_OK);
    connection.SendLine("look");
    connection.SendLine("");
    EXPECT_EQ(socket.sent, std::string("look\n\r\n\r"));
}

TEST_F(ConnectionTest, SendLineCutsALongTextAtItsBuffer)
{
    ASSERT_EQ(connection.ConnectToGame("/Hhost/P23"), CONNECT_OK);
    std::string text(2000, 'x');
    connection.SendLine(text.c_str());
    EXPECT_EQ(socket.sent, std::string(SEND_TEXT_LIMIT, 'x') + "\n\r");
}

TEST_F(ConnectionTest, NothingIsSentOrQueuedWhileDisconnectedAndShutdownTwiceIsHarmless)
{
    connection.SendLine("lost");
    ASSERT_EQ(connection.ConnectToGame("/Hhost/P23"), CONNECT_OK);
    EXPECT_TRUE(socket.sent.empty());
    connection.ShutdownConnection();
    connection.ShutdownConnection();
    EXPECT_EQ(socket.closes, 1);
    EXPECT_TRUE(connection.IsDisconnected());
    connection.SendLine("after");
    EXPECT_TRUE(socket.sent.empty());
}

TEST(ConnectFailureText, NamesEachFailure)
{
    EXPECT_STREQ(ConnectFailureText(CONNECT_FAILED), "Unable to connect to the server!");
    EXPECT_STREQ(ConnectFailureText(CONNECT_NO_LIBRARY), "Unable to initialize Winsock!");
    EXPECT_STREQ(ConnectFailureText(CONNECT_BAD_STRING),
                 "Invalid connection information supplied!");
    EXPECT_EQ(ConnectFailureText(CONNECT_OK), nullptr);
    EXPECT_EQ(ConnectFailureText(CONNECT_OFFLINE), nullptr);
}

} // namespace
} // namespace steward
