#include "connection/ColorCode.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

std::string On(unsigned char color)
{
    char out[4];
    return std::string(out, AppendColorOn(out, color));
}

std::string Off(unsigned char color)
{
    char out[4];
    return std::string(out, AppendColorOff(out, color));
}

TEST(ColorCode, SequencesPutBackgroundFirstOnlyWhenHighNibbleIsSet)
{
    EXPECT_EQ(On(0x0A), "\x8A");
    EXPECT_EQ(On(0x1A), "\x91\x8A");
    EXPECT_EQ(On(0x00), "\x80");
    EXPECT_EQ(Off(0x0A), "\xA0");
    EXPECT_EQ(Off(0x1A), "\xA1\xA0");
    EXPECT_EQ(Off(0x00), "\xA0");
}

TEST(ColorCode, RangeIsExactlyEightyToA3)
{
    EXPECT_FALSE(IsColorCode(0x7F));
    EXPECT_TRUE(IsColorCode(0x80));
    EXPECT_TRUE(IsColorCode(0xA3));
    EXPECT_FALSE(IsColorCode(0xA4));
}

} // namespace
} // namespace steward
