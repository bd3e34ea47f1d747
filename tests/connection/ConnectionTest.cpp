#include "connection/Connection.h"
#include "connection/ConnectionString.h"
#include "connection/DecoderFixture.h"
#include "connection/RecordingSocket.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

TEST(ParseConnectionString, ReadsMarkersInTheirOneOrder)
{
    const struct {
        const char* text;
        bool ok;
        const char* host;
        const char* port;
        int timeout;
    } cases[] = {
        {"/Hhost/P23", true, "host", "23", 60000},
        {"/Hhost", false, "host", "", 60000},
        {"/P23", false, "", "23", 60000},
        {"host 23", false, "", "", 60000},
        {"/hhost/p23", false, "", "", 60000},
        {"/P23/Hhost", false, "", "23", 60000},
        {"   /Hhost/P23", true, "host", "23", 60000},
        {"\t/Hhost/P23", false, "", "", 60000},
        {"/Hhost/Pabc", true, "host", "abc", 60000},
        {"/Hhost/P23/T30/x", true, "host", "23", 30000},
        {"/Hhost/P23/Tabc", true, "host", "23", 60000},
        {"/Hhost/P23/T0", true, "host", "23", 60000},
        {"/Hhost/P23/T1", true, "host", "23", 1000},
        {"/Hhost/P23/X/T30", true, "host", "23", 60000},
        {"/Hhost/P23/T99999999999", true, "host", "23", 86400000},
        {"/Hhost/T30", false, "host", "", 30000},
        {"/H/P23", false, "", "23", 60000},
        {"", false, "", "", 60000},
    };
    ConnectionInfo info;
    // Each parse starts from what the one before left.
    for (const auto& c : cases) {
        EXPECT_EQ(ParseConnectionString(c.text, info), c.ok) << c.text;
        EXPECT_STREQ(info.Host, c.host) << c.text;
        EXPECT_STREQ(info.PortText, c.port) << c.text;
        EXPECT_EQ(info.TimeoutMilliseconds, c.timeout) << c.text;
    }

    const std::string host(300, 'h');
    const std::string port(300, '7');
    ASSERT_TRUE(ParseConnectionString(("/H" + host + "/P" + port).c_str(), info));
    EXPECT_EQ(std::string(info.Host), host.substr(0, HOST_SIZE - 1));
    EXPECT_EQ(std::string(info.PortText), port.substr(0, PORT_TEXT_SIZE - 1));
}

TEST(ReadPortNumber, TakesLeadingDigitsAndRefusesWhatNoPortCanBe)
{
    const std::pair<const char*, unsigned> cases[] = {
        {"34283", 34283u}, {"23abc", 23u}, {"abc", 0u},
        {"65535", 65535u}, {"65536", 0u},  {"99999999999999999999", 0u},
    };
    for (const auto& [text, port] : cases)
        EXPECT_EQ(ReadPortNumber(text), port) << text;
}

class ConnectionTest : public testing::DecoderTest {
  protected:
    testing::RecordingSocket socket;
    Connection connection{socket, decoder};
};

TEST_F(ConnectionTest, ResultsOfConnectToGameAndTheirTexts)
{
    const struct {
        const char* text;
        bool socketAccepts;
        int result;
        const char* opened;
        const char* failure;
    } cases[] = {
        {"", true, CONNECT_OFFLINE, nullptr, nullptr},
        {"/Hhost", true, CONNECT_BAD_STRING, nullptr, "Invalid connection information supplied!"},
        {"/Hhost/P23", false, CONNECT_FAILED, "host:23 60000", "Unable to connect to the server!"},
        {"/Hhost/Pabc", true, CONNECT_FAILED, nullptr, "Unable to connect to the server!"},
        {"/Hhost/P70000", true, CONNECT_FAILED, nullptr, "Unable to connect to the server!"},
        {"/Hhost/P23/T5", true, CONNECT_OK, "host:23 5000", nullptr},
    };
    for (const auto& c : cases) {
        socket.opened.clear();
        socket.accept = c.socketAccepts;
        const int result = connection.ConnectToGame(c.text);
        EXPECT_EQ(result, c.result) << c.text;
        EXPECT_EQ(connection.IsDisconnected(), c.result != CONNECT_OK) << c.text;
        EXPECT_EQ(socket.opened,
                  c.opened ? std::vector<std::string>{c.opened} : std::vector<std::string>{})
            << c.text;
        EXPECT_STREQ(ConnectFailureText(result), c.failure) << c.text;
        connection.ShutdownConnection();
    }
    EXPECT_STREQ(ConnectFailureText(CONNECT_NO_LIBRARY), "Unable to initialize Winsock!");
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

// Lines go out with LF CR behind them, cut at the send buffer, and only while connected; a
// second shutdown is harmless.
TEST_F(ConnectionTest, SendLineWhileConnectedOnly)
{
    connection.SendLine("lost");
    ASSERT_EQ(connection.ConnectToGame("/Hhost/P23"), CONNECT_OK);
    EXPECT_TRUE(socket.sent.empty());
    connection.SendLine("look");
    connection.SendLine("");
    connection.SendLine(std::string(2000, 'x').c_str());
    EXPECT_EQ(socket.sent, "look\n\r\n\r" + std::string(SEND_TEXT_LIMIT, 'x') + "\n\r");
    connection.ShutdownConnection();
    connection.ShutdownConnection();
    EXPECT_EQ(socket.closes, 1);
    EXPECT_TRUE(connection.IsDisconnected());
    connection.SendLine("after");
    EXPECT_EQ(socket.sent.find("after"), std::string::npos);
}

} // namespace
} // namespace steward
