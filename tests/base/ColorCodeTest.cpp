#include "base/ColorCode.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

TEST(ColorCode, RangeIsExactlyEightyToA3)
{
    EXPECT_FALSE(IsColorCode(0x7F));
    EXPECT_TRUE(IsColorCode(0x80));
    EXPECT_TRUE(IsColorCode(0xA3));
    EXPECT_FALSE(IsColorCode(0xA4));
}

} // namespace
} // namespace steward
