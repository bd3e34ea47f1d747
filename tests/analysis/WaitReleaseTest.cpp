#include "PipelineFixture.h"

namespace steward::testing {
namespace {

const std::string Record = "\x1B\x1B>" + std::string(64, '0') + "\x1B\r\n";

struct WaitCase {
    ScriptWaitKind wait;
    const char* line;
    bool released;
};

TEST_F(PipelineTest, EachWaitIsReleasedOnlyByItsOwnEvent)
{
    const WaitCase cases[] = {
        {WAIT_TEXT, "The rat squeals once and lies still.\r\n", true},
        {WAIT_TEXT, "The rat lies\r\n", false},
        {WAIT_TEXT, "Obvious exits: north.\r\n", false},
        {WAIT_TEXT, Record.c_str(), false},
        {WAIT_ROOM, "Obvious exits: north.\r\n", true},
        {WAIT_ROOM, "Obvious things\r\n", false},
        {WAIT_ROOM, "The rat squeals once and lies still.\r\n", false},
        {WAIT_ROOM, Record.c_str(), false},
        {WAIT_PROMPT, Record.c_str(), true},
        {WAIT_PROMPT, "Obvious exits: north.\r\n", false},
        {WAIT_PROMPT, "The rat squeals once and lies still.\r\n", false},
    };
    std::strcpy(script.WaitText, "lies still");
    for (const WaitCase& c : cases) {
        script.ScriptWait = c.wait;
        pipeline.ProcessGameLine(c.line);
        EXPECT_EQ(script.ScriptWait, c.released ? WAIT_NONE : c.wait) << c.wait << " " << c.line;
    }
}

} // namespace
} // namespace steward::testing
