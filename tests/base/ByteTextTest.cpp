#include "base/ByteText.h"
#include "base/ColorCode.h"

#include <gtest/gtest.h>

#include <cstring>

namespace steward::testing {
namespace {

TEST(ByteText, InsertTextMovesTheRestUpAndReturnsTheNewEnd)
{
    const struct {
        const char* text;
        std::size_t at;
        const char* piece;
        const char* expected;
    } cases[] = {
        {"", 0, "abc", "abc"},   {"world", 0, "hello ", "hello world"},
        {"ab", 1, "XY", "aXYb"}, {"ab", 2, "!", "ab!"},
        {"ab", 1, "", "ab"},
    };
    for (const auto& c : cases) {
        char buffer[32];
        std::strcpy(buffer, c.text);
        char* end = InsertText(buffer + c.at, c.piece);
        EXPECT_STREQ(buffer, c.expected);
        EXPECT_EQ(end, buffer + std::strlen(c.expected));
    }
}

// Whatever the piece, the result ends inside the buffer; no room at all leaves it untouched.
TEST(ByteText, CutHelpersEndInsideTheBuffer)
{
    const struct {
        bool copy; // CopyCut, else InsertCut at the end
        std::size_t capacity;
        const char* piece;
        const char* expected;
    } cases[] = {
        {true, 4, "abcdef", "abc"}, {true, 1, "abc", ""},  {false, 6, "defg", "xydef"},
        {false, 3, "d", "xy"},      {false, 0, "d", "xy"},
    };
    for (const auto& c : cases) {
        char buffer[16] = "xy";
        if (c.copy)
            CopyCut(buffer, c.capacity, c.piece);
        else
            InsertCut(buffer, c.capacity, 2, c.piece);
        EXPECT_STREQ(buffer, c.expected) << c.capacity << " " << c.piece;
    }
}

TEST(ByteText, RemovePrefixDropsTheFirstBytes)
{
    char buffer[16] = "abcdef";
    RemovePrefix(buffer, 2);
    EXPECT_STREQ(buffer, "cdef");
    RemovePrefix(buffer, 4);
    EXPECT_STREQ(buffer, "");
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

TEST(ByteText, FindNoCaseFoldsOnlyAsciiLetters)
{
    const struct {
        const char* text;
        const char* wanted;
        int at; // -1: not found
    } cases[] = {
        {"the MARA sleeps", "mara", 4},
        {"mara", "MARA", 0},
        {"abc", "", 0},
        {"", "a", -1},
        {"abc", "abcd", -1},
        {"x\x8Ay", "\x8A", 1},
        {"x\xAAy", "\x8A", -1},
        {"[a]", "{A}", -1},
        {"aab", "ab", 1},
    };
    for (const auto& c : cases) {
        const char* found = FindNoCase(c.text, c.wanted);
        EXPECT_EQ(found ? found - c.text : -1, c.at) << c.text << " / " << c.wanted;
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
