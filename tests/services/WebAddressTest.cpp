#include "services/WebAddress.h"
#include "support/RecordingBrowser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

std::string Escaped(const std::string& source, bool plusForSpace = true,
                    std::size_t capacity = URL_BUFFER_SIZE)
{
    std::vector<char> target(URL_BUFFER_SIZE, '#');
    EscapeUrl(source.c_str(), target.data(), capacity, plusForSpace);
    return target.data();
}

TEST(EscapeUrl, EachClassOfByte)
{
    const struct {
        std::string source;
        bool plusForSpace;
        std::string expected;
    } cases[] = {
        {"AZaz09", true, "AZaz09"},
        {"http://a.b/c?d=e&f-g", true, "http://a.b/c?d=e&f-g"},
        {"a b", true, "a+b"},
        {"a b", false, "a b"},
        {"100%", true, "100%25"},
        {"a_b", true, "a%5Fb"},
        {"a+b", true, "a%2Bb"},
        {"caf\xE9", true, "caf%E9"},
        {"\xFF", true, "%FF"},
        {"\x01\x7F", true, "%01%7F"},
        {"", true, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Escaped(c.source, c.plusForSpace), c.expected) << c.source;
}

// Every byte of these addresses takes three bytes escaped; a long one is cut before a whole
// escape.
TEST(EscapeUrl, LongAddressesAreCutBeforeAWholeEscape)
{
    for (std::size_t length : {URL_ESCAPABLE_LENGTH, URL_ESCAPABLE_LENGTH + 1, std::size_t(5000)}) {
        const std::string escaped = Escaped(std::string(length, '_'));
        EXPECT_EQ(escaped.size(), URL_ESCAPABLE_LENGTH * 3) << length;
        EXPECT_EQ(escaped.substr(escaped.size() - 3), "%5F") << length;
    }
    // The NUL stays inside the target: a byte or escape that would take its place is left out.
    EXPECT_EQ(Escaped("abcdef", true, 4), "abc");
    EXPECT_EQ(Escaped("ab_", true, 5), "ab");
    EXPECT_EQ(Escaped("_", true, 4), "%5F");
    EXPECT_EQ(Escaped("abc", true, 1), "");
}

TEST(OpenUrl, TemplateWordsInAnyCaseAndGrowthCutAtTheBuffer)
{
    const std::pair<const char*, const char*> cases[] = {
        {"http://x/{GAME}/", "http://x/THORNMERE/"},
        {"http://x/{game}", "http://x/THORNMERE"},
        {"{Game}-{gAME}", "THORNMERE-THORNMERE"},
        {"http://x/?k={KEY}&g={key}", "http://x/?k=&g="},
        {"a{KE{KEY}Y}b", "ab"},
        {"{GAME", "%7BGAME"},
        {"{GAME} now", "THORNMERE+now"},
    };
    for (const auto& [address, opened] : cases) {
        test::RecordingBrowser browser;
        EXPECT_TRUE(OpenUrl(browser, address));
        EXPECT_EQ(browser.opened, std::vector<std::string>{opened});
    }
    char text[16] = "{GAME}x{GAME}";
    ExpandUrlWords(text, sizeof text);
    EXPECT_STREQ(text, "THORNMEREx{GAME");
}

} // namespace
} // namespace steward
