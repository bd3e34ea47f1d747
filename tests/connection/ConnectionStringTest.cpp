#include "connection/ConnectionString.h"

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

} // namespace
} // namespace steward
