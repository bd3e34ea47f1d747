#include "connection/ConnectionString.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

struct ParseCase {
    const char* name;
    const char* text;
    bool ok;
    const char* host;
    const char* port;
    int timeout;
};

class ParseConnectionStringTest : public ::testing::TestWithParam<ParseCase> {};

TEST_P(ParseConnectionStringTest, ReadsMarkersInTheirOneOrder)
{
    const ParseCase& c = GetParam();
    ConnectionInfo info;
    EXPECT_EQ(ParseConnectionString(c.text, info), c.ok) << c.text;
    EXPECT_STREQ(info.Host, c.host) << c.text;
    EXPECT_STREQ(info.PortText, c.port) << c.text;
    EXPECT_EQ(info.TimeoutMilliseconds, c.timeout) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ParseConnectionStringTest,
    ::testing::Values(
        ParseCase{"HostAndPort", "/Hhost/P23", true, "host", "23", 60000},
        ParseCase{"NoPort", "/Hhost", false, "host", "", 60000},
        ParseCase{"NoHost", "/P23", false, "", "23", 60000},
        ParseCase{"NoMarkers", "host 23", false, "", "", 60000},
        ParseCase{"LowerCaseMarkers", "/hhost/p23", false, "", "", 60000},
        ParseCase{"PortBeforeHost", "/P23/Hhost", false, "", "23", 60000},
        ParseCase{"LeadingBlanks", "   /Hhost/P23", true, "host", "23", 60000},
        ParseCase{"LeadingTab", "\t/Hhost/P23", false, "", "", 60000},
        ParseCase{"PortWithoutDigits", "/Hhost/Pabc", true, "host", "abc", 60000},
        ParseCase{"TimeLimit", "/Hhost/P23/T30/x", true, "host", "23", 30000},
        ParseCase{"TimeLimitWithoutDigits", "/Hhost/P23/Tabc", true, "host", "23", 60000},
        ParseCase{"TimeLimitZero", "/Hhost/P23/T0", true, "host", "23", 60000},
        ParseCase{"TimeLimitOutOfOrder", "/Hhost/P23/X/T30", true, "host", "23", 60000},
        ParseCase{"TimeLimitCapped", "/Hhost/P23/T99999999999", true, "host", "23", 86400000},
        ParseCase{"TimeLimitWithoutPort", "/Hhost/T30", false, "host", "", 30000},
        ParseCase{"EmptyHost", "/H/P23", false, "", "23", 60000},
        ParseCase{"Empty", "", false, "", "", 60000}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ParseConnectionString, CutsFieldsThatDoNotFit)
{
    std::string host(300, 'h');
    std::string port(300, '7');
    ConnectionInfo info;
    ASSERT_TRUE(ParseConnectionString(("/H" + host + "/P" + port).c_str(), info));
    EXPECT_EQ(std::string(info.Host), host.substr(0, HOST_SIZE - 1));
    EXPECT_EQ(std::string(info.PortText), port.substr(0, PORT_TEXT_SIZE - 1));
}

TEST(ParseConnectionString, ClearsWhatAnEarlierParseLeft)
{
    ConnectionInfo info;
    ParseConnectionString("/Hold/P1/T5", info);
    EXPECT_FALSE(ParseConnectionString("/Hnew", info));
    EXPECT_STREQ(info.PortText, "");
    EXPECT_EQ(info.TimeoutMilliseconds, DEFAULT_CONNECT_TIMEOUT_MS);
}

TEST(ReadPortNumber, TakesLeadingDigitsAndRefusesWhatNoPortCanBe)
{
    EXPECT_EQ(ReadPortNumber("34283"), 34283u);
    EXPECT_EQ(ReadPortNumber("23abc"), 23u);
    EXPECT_EQ(ReadPortNumber("abc"), 0u);
    EXPECT_EQ(ReadPortNumber("65535"), 65535u);
    EXPECT_EQ(ReadPortNumber("65536"), 0u);
    EXPECT_EQ(ReadPortNumber("99999999999999999999"), 0u);
}

} // namespace
} // namespace steward
