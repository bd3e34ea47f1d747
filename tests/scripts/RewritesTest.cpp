#include "scripts/Rewrites.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace steward {
namespace {

struct RewriteCase {
    std::string input;
    std::string output;
};

void PrintTo(const RewriteCase& c, std::ostream* out)
{
    *out << ::testing::PrintToString(c.input) << " becomes " << ::testing::PrintToString(c.output);
}

std::string Contact(const std::string& text)
{
    char buffer[512];
    std::strcpy(buffer, text.c_str());
    ContactRewrite(buffer, sizeof buffer);
    return buffer;
}

std::string Drag(const std::string& text, const char* target)
{
    char buffer[512];
    std::strcpy(buffer, text.c_str());
    DragRewrite(buffer, sizeof buffer, target);
    return buffer;
}

class ContactRewriteTest : public ::testing::TestWithParam<RewriteCase> {};

TEST_P(ContactRewriteTest, RewritesNameColonMessage)
{
    EXPECT_EQ(Contact(GetParam().input), GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ContactRewriteTest,
    ::testing::Values(RewriteCase{"bob:hi there", "contact bob hi there"},
                      RewriteCase{":hi", "contact  hi"}, RewriteCase{"12:30", "contact 12 30"},
                      RewriteCase{"bob:", "contact bob "}, RewriteCase{"bob :hi", "bob :hi"},
                      RewriteCase{".cmd a:b", ".cmd a:b"}, RewriteCase{"look", "look"},
                      RewriteCase{"", ""},
                      RewriteCase{std::string(25, 'x') + ":m",
                                  "contact " + std::string(25, 'x') + " m"},
                      RewriteCase{std::string(26, 'x') + ":m", std::string(26, 'x') + ":m"}));

TEST(ContactRewriteLimit, CutsAtTheBufferEnd)
{
    char buffer[16] = "bob:0123456789";
    ContactRewrite(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "contact bob 012");
}

class DragRewriteTest : public ::testing::TestWithParam<RewriteCase> {};

TEST_P(DragRewriteTest, DragsTheTargetAlongOnMoves)
{
    EXPECT_EQ(Drag(GetParam().input, "bob"), GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DragRewriteTest,
    ::testing::Values(RewriteCase{"n", "drag bob n"}, RewriteCase{"N now", "drag bob N now"},
                      RewriteCase{"SouthWest", "drag bob SouthWest"}, RewriteCase{"nod", "nod"},
                      RewriteCase{"drag bob n", "drag bob n"}, RewriteCase{"", ""}));

TEST(DragRewriteTarget, NoTargetNoRewrite)
{
    EXPECT_EQ(Drag("n", ""), "n");
}

} // namespace
} // namespace steward
