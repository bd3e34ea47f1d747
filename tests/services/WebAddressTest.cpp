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
    std::vector<char> target(capacity, '#');
    EscapeUrl(source.c_str(), target.data(), capacity, plusForSpace);
    return target.data();
}

struct EscapeCase {
    const char* name;
    std::string source;
    bool plusForSpace;
    std::string expected;
};

class EscapeUrlBytes : public ::testing::TestWithParam<EscapeCase> {};

TEST_P(EscapeUrlBytes, EachClassOfByte)
{
    EXPECT_EQ(Escaped(GetParam().source, GetParam().plusForSpace), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Classes, EscapeUrlBytes,
                         ::testing::Values(EscapeCase{"LettersAndDigits", "AZaz09", true, "AZaz09"},
                                           EscapeCase{"SevenKeptMarks", "http://a.b/c?d=e&f-g",
                                                      true, "http://a.b/c?d=e&f-g"},
                                           EscapeCase{"SpaceAsPlus", "a b", true, "a+b"},
                                           EscapeCase{"SpaceKept", "a b", false, "a b"},
                                           EscapeCase{"PercentSign", "100%", true, "100%25"},
                                           EscapeCase{"Underscore", "a_b", true, "a%5Fb"},
                                           EscapeCase{"PlusSign", "a+b", true, "a%2Bb"},
                                           EscapeCase{"HighByteUnsigned", "caf\xE9", true,
                                                      "caf%E9"},
                                           EscapeCase{"ByteFF", "\xFF", true, "%FF"},
                                           EscapeCase{"ControlByte", "\x01\x7F", true, "%01%7F"},
                                           EscapeCase{"Empty", "", true, ""}),
                         [](const auto& info) { return std::string(info.param.name); });

struct LimitCase {
    const char* name;
    std::size_t length;
    std::size_t expectedLength;
};

class EscapeUrlLimit : public ::testing::TestWithParam<LimitCase> {};

// Every byte of these addresses takes three bytes escaped.
TEST_P(EscapeUrlLimit, LongAddressesAreCutBeforeAWholeEscape)
{
    const std::string escaped = Escaped(std::string(GetParam().length, '_'));
    EXPECT_EQ(escaped.size(), GetParam().expectedLength);
    EXPECT_EQ(escaped.substr(escaped.size() >= 3 ? escaped.size() - 3 : 0), "%5F");
}

INSTANTIATE_TEST_SUITE_P(
    Lengths, EscapeUrlLimit,
    ::testing::Values(LimitCase{"FitsWhole", URL_ESCAPABLE_LENGTH, URL_ESCAPABLE_LENGTH * 3},
                      LimitCase{"OneMoreIsCut", URL_ESCAPABLE_LENGTH + 1, URL_ESCAPABLE_LENGTH * 3},
                      LimitCase{"FarTooLong", 5000, URL_ESCAPABLE_LENGTH * 3}),
    [](const auto& info) { return std::string(info.param.name); });

using test::RecordingBrowser;

struct WordCase {
    const char* name;
    const char* address;
    const char* opened;
};

class OpenUrlWords : public ::testing::TestWithParam<WordCase> {};

TEST_P(OpenUrlWords, TemplateWordsInAnyCase)
{
    RecordingBrowser browser;
    EXPECT_TRUE(OpenUrl(browser, GetParam().address));
    EXPECT_EQ(browser.opened, std::vector<std::string>{GetParam().opened});
}

INSTANTIATE_TEST_SUITE_P(
    Words, OpenUrlWords,
    ::testing::Values(WordCase{"GameUpper", "http://x/{GAME}/", "http://x/THORNMERE/"},
                      WordCase{"GameLower", "http://x/{game}", "http://x/THORNMERE"},
                      WordCase{"GameTwice", "{Game}-{gAME}", "THORNMERE-THORNMERE"},
                      WordCase{"KeyRemoved", "http://x/?k={KEY}&g={key}", "http://x/?k=&g="},
                      WordCase{"KeyInsideKey", "a{KE{KEY}Y}b", "ab"},
                      WordCase{"BrokenWordEscaped", "{GAME", "%7BGAME"},
                      WordCase{"SpaceAfterWords", "{GAME} now", "THORNMERE+now"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ExpandUrlWords, GrowthIsCutAtTheBuffer)
{
    char text[16] = "{GAME}x{GAME}";
    ExpandUrlWords(text, sizeof text);
    EXPECT_STREQ(text, "THORNMEREx{GAME");
}

} // namespace
} // namespace steward
