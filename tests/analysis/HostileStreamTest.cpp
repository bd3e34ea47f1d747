#include "PipelineFixture.h"

#include <algorithm>
#include <random>

namespace steward::testing {
namespace {

// Pieces that steer random bytes into every branch of decoding and analysis: colour tokens
// and their halves, record starts, star lines, thoughts, exit lists and line ends.
// clang-format off
const std::string PIECES[] = {
    "\x1B", "\0331", "\0330", "\x1B\x1B>", "\r\n", "\r", "\n", "\x07", "\t", " ** ",
    "Obvious exits: north, up*.", " just arrived in the world.", " has left the world.",
    " thinks to you, \"", "You pick up ", "'s thoughts, \"", " says, \"", " whispers, \"",
    " ** Current hit points: ", " of ", "[3 sec. delay]", "...wait ", "...wait", " seconds.", "\"",
    "Mara", "salmon", "0064", "FFFF", "8000"};
// clang-format on

std::string HostileBlock(std::mt19937& random)
{
    std::string block;
    const std::size_t size = 1 + random() % 2048;
    while (block.size() < size) {
        if (random() % 3 == 0)
            block += PIECES[random() % std::size(PIECES)];
        else
            block.push_back(static_cast<char>(random() % 256));
    }
    return block;
}

bool HoldsColorCode(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](unsigned char c) { return IsColorCode(c); });
}

// Whatever the server sends, the receive path stores and logs it within its buffers (the
// sanitizer build watches every write), the plain copy holds no colour code, and only the
// listed sound is ever asked for.
TEST_F(PipelineTest, AHostileStreamNeverBreaksTheReceivePath)
{
    highlights.StringHighlights.Add("{Chime}salmon", 12);
    highlights.StringHighlights.Add("$*Obvious", 0x1E);
    highlights.NameHighlights.Add("Mara", 14);
    windows.ThoughtWindow = Thought();
    windows.ArrivalWindow = Arrival();
    std::mt19937 random(4097);
    for (int round = 0; round < 400; ++round) {
        options.CompressThoughtMessages = round % 2;
        options.OnlyListedArrivals = round % 3 == 0;
        options.ShowStatusPrompt = round % 5 == 0;
        link.SetHoldPartialLines(round % 4 != 0);
        const std::string block = HostileBlock(random);
        link.ReceiveBlock(block.data(), block.size());
        ASSERT_FALSE(HoldsColorCode(pipeline.Plain())) << "round " << round;
    }
    EXPECT_FALSE(sounds.played.empty());
    for (const std::string& played : sounds.played)
        EXPECT_EQ(played, "Chime");
    EXPECT_FALSE(In(Game()).empty());
}

} // namespace
} // namespace steward::testing
