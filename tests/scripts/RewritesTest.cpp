#include "scripts/Rewrites.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace steward {
namespace {

TEST(RewritesTest, ContactTakesNameColonMessageAndDragTakesMoves)
{
    const std::string x25(25, 'x'), x26(26, 'x');
    // target "" is the contact rewrite, else the drag rewrite with that target
    const struct {
        const char* target;
        std::string input, output;
    } rows[] = {{"", "bob:hi there", "contact bob hi there"},
                {"", ":hi", "contact  hi"},
                {"", "12:30", "contact 12 30"},
                {"", "bob:", "contact bob "},
                {"", "bob :hi", "bob :hi"},
                {"", ".cmd a:b", ".cmd a:b"},
                {"", "look", "look"},
                {"", "", ""},
                {"", x25 + ":m", "contact " + x25 + " m"},
                {"", x26 + ":m", x26 + ":m"},
                {"bob", "n", "drag bob n"},
                {"bob", "N now", "drag bob N now"},
                {"bob", "SouthWest", "drag bob SouthWest"},
                {"bob", "nod", "nod"},
                {"bob", "drag bob n", "drag bob n"},
                {"bob", "", ""}};
    for (const auto& row : rows) {
        char buffer[512];
        std::strcpy(buffer, row.input.c_str());
        if (*row.target)
            DragRewrite(buffer, sizeof buffer, row.target);
        else
            ContactRewrite(buffer, sizeof buffer);
        EXPECT_EQ(buffer, row.output) << row.target << " " << row.input;
    }
    char buffer[16] = "bob:0123456789";
    ContactRewrite(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "contact bob 012") << "cut at the buffer's end";
    std::strcpy(buffer, "n");
    DragRewrite(buffer, sizeof buffer, "");
    EXPECT_STREQ(buffer, "n") << "no target, no rewrite";
}

} // namespace
} // namespace steward
