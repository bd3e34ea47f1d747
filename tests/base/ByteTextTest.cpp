#include "base/ByteText.h"
#include "base/ColorCode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace steward::testing {
namespace {

// Every string of up to four bytes from a small alphabet of letters, case pairs, bytes next
// to the letters and colour codes; each helper is compared with the same edit on a std::string.
std::vector<std::string> SmallStrings(std::size_t longest)
{
    static const std::string alphabet = "aAb[{\x8A\xAA";
    std::vector<std::string> all{""};
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].size() < longest)
            for (const char c : alphabet)
                all.push_back(all[i] + c);
    return all;
}

char Fold(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

TEST(ByteText, EditsAndSearchesMatchTheSameEditOnAString)
{
    const std::vector<std::string> pieces = SmallStrings(2);
    for (const std::string& text : SmallStrings(4)) {
        for (const std::string& piece : pieces) {
            SCOPED_TRACE(::testing::Message() << "text '" << text << "' piece '" << piece << "'");
            for (std::size_t at = 0; at <= text.size(); ++at) {
                char buffer[16] = {};
                text.copy(buffer, text.size());
                const std::string inserted = std::string(text).insert(at, piece);
                EXPECT_EQ(InsertText(buffer + at, piece.c_str()), buffer + inserted.size());
                ASSERT_EQ(buffer, inserted);
                text.copy(buffer, text.size());
                buffer[text.size()] = '\0';
                RemovePrefix(buffer, at);
                ASSERT_EQ(buffer, text.substr(at));
                // The text fits its buffer; no room at all leaves everything untouched.
                for (std::size_t capacity = 0; capacity < 9;
                     capacity = std::max(capacity + 1, text.size() + 1)) {
                    char cut[16];
                    std::snprintf(cut, sizeof cut, "%s", text.c_str());
                    InsertCut(cut, capacity, at, piece.c_str());
                    ASSERT_EQ(cut, capacity ? inserted.substr(0, capacity - 1) : text) << capacity;
                    CopyCut(cut, capacity, piece.c_str());
                    ASSERT_EQ(cut, capacity ? piece.substr(0, capacity - 1) : text) << capacity;
                }
            }
            if (text.empty() || piece.empty())
                continue;
            const auto found = std::search(text.begin(), text.end(), piece.begin(), piece.end(),
                                           [](char a, char b) { return Fold(a) == Fold(b); });
            const char* at = FindNoCase(text.c_str(), piece.c_str());
            ASSERT_EQ(at ? at - text.c_str() : -1, found == text.end() ? -1 : found - text.begin());
        }
    }
    const char* text = "abc";
    EXPECT_EQ(FindNoCase(text, ""), text);
    EXPECT_EQ(FindNoCase("", "a"), nullptr);
    char line[] = "  x  ";
    TrimTrailingBlanks(line);
    EXPECT_STREQ(line, "  x");
    line[2] = ' ';
    TrimTrailingBlanks(line + 1);
    EXPECT_STREQ(line, " ") << "an all-blank text stops at its own start";
}

TEST(ByteText, ColourSequencesCarryTheBackgroundOnlyWhenSet)
{
    const struct {
        unsigned char color;
        const char* on;
        const char* off;
        std::size_t length;
    } cases[] = {
        {0x1E, "\x91\x8E", "\xA1\xA0", 2},
        {0x00, "\x80", "\xA0", 1},
        {0xF7, "\x9F\x87", "\xA1\xA0", 2},
    };
    for (const auto& c : cases) {
        EXPECT_STREQ(ColorOnText(c.color), c.on);
        EXPECT_STREQ(ColorOffText(c.color), c.off);
        EXPECT_EQ(ColorOnLength(c.color), c.length);
    }
}

TEST(ByteText, WordBoundariesAreEverythingButLettersAndDigits)
{
    for (int c = 0; c < 256; ++c) {
        const bool alnum =
            (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        EXPECT_EQ(IsWordBoundary(static_cast<unsigned char>(c)), !alnum) << c;
    }
}

TEST(ColorCode, RangeIsExactlyEightyToA3)
{
    EXPECT_FALSE(IsColorCode(0x7F));
    EXPECT_TRUE(IsColorCode(0x80));
    EXPECT_TRUE(IsColorCode(0xA3));
    EXPECT_FALSE(IsColorCode(0xA4));
}

} // namespace
} // namespace steward::testing
