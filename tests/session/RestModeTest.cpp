#include "session/RestMode.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

class RecordingSender : public RestSender {
  public:
    void SendCommand(const char* text) override { sent.emplace_back(text); }
    std::vector<std::string> sent;
};

void Tick(RestState& rest, RecordingSender& sender, int times)
{
    for (int i = 0; i < times; ++i)
        rest.OnTimer(sender);
}

// Resting sends on the hundred and twenty-first tick, a silent rest only asks for experience,
// entering again starts the count afresh, and nothing is sent when not resting.
TEST(RestMode, SendsOnTheHundredAndTwentyFirstTick)
{
    RestState rest;
    RecordingSender sender;
    rest.Enter(false);
    Tick(rest, sender, 120);
    EXPECT_TRUE(sender.sent.empty());
    Tick(rest, sender, 1);
    EXPECT_EQ(sender.sent, (std::vector<std::string>{"exper", "act snores softly"}));
    Tick(rest, sender, 120);
    EXPECT_EQ(sender.sent.size(), 2u);
    Tick(rest, sender, 1);
    EXPECT_EQ(sender.sent.size(), 4u);

    sender.sent.clear();
    rest.Enter(true);
    Tick(rest, sender, 121);
    EXPECT_EQ(sender.sent, (std::vector<std::string>{"exper"}));

    sender.sent.clear();
    rest.Enter(false);
    Tick(rest, sender, 100);
    rest.Enter(false);
    Tick(rest, sender, 100);
    EXPECT_TRUE(sender.sent.empty());
    EXPECT_TRUE(rest.Leave());
    Tick(rest, sender, 500);
    EXPECT_TRUE(sender.sent.empty());
    EXPECT_FALSE(rest.Leave());
}

} // namespace
} // namespace steward
