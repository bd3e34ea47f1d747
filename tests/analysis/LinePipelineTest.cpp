#include "PipelineFixture.h"

#include "base/FrameCommand.h"

namespace steward::testing {
namespace {

TEST_F(PipelineTest, ObviousTriggerPostsOnTheNextLineAndOnlyOnce)
{
    pipeline.ProcessGameLine("Obvious exits: north\r\n");
    EXPECT_TRUE(queue.commands.empty());
    pipeline.ProcessGameLine("");
    EXPECT_EQ(queue.commands, std::vector<int>{CMD_RESET_STEWARD_MODE});
    pipeline.ProcessGameLine("Obvious exits: south\r\n");
    pipeline.ProcessGameLine("x\r\n");
    EXPECT_EQ(queue.commands.size(), 1u);
}

TEST_F(PipelineTest, ObviousTriggerIsCaseSensitiveAndSeesThroughColours)
{
    pipeline.ProcessGameLine("obvious exits: north\r\n");
    pipeline.ProcessGameLine("x\r\n");
    EXPECT_TRUE(queue.commands.empty());
    pipeline.ProcessGameLine("Obv\x82ious exits\r\n");
    pipeline.ProcessGameLine("x\r\n");
    EXPECT_EQ(queue.commands.size(), 1u);
}

TEST_F(PipelineTest, AConnectAsksForTheModeAgain)
{
    pipeline.ProcessGameLine("Obvious exits: north\r\n");
    pipeline.ProcessGameLine("x\r\n");
    ASSERT_EQ(link.ConnectToGame("/H127.0.0.1/P34283"), CONNECT_OK);
    pipeline.ProcessGameLine("Obvious exits: north\r\n");
    pipeline.ProcessGameLine("x\r\n");
    EXPECT_EQ(queue.commands.size(), 2u);
}

TEST_F(PipelineTest, ARecordBeforeAnyExitListMeansTheCommandIsNeverPosted)
{
    pipeline.ProcessGameLine("\x1B\x1Bshort\r\n");
    EXPECT_TRUE(pipeline.StatusModeWasRequested());
    pipeline.ProcessGameLine("Obvious exits: north\r\n");
    pipeline.ProcessGameLine("x\r\n");
    EXPECT_TRUE(queue.commands.empty());
    EXPECT_EQ(In(Game()), "Obvious exits: north\nx\n") << "the short record shows nothing";
    EXPECT_EQ(Logged(), "Obvious exits: north\r\nx\r\n")
        << "only the two ordinary lines are logged";
}

TEST_F(PipelineTest, OnlyColoursAndBellsLeaveNoTrace)
{
    pipeline.ProcessGameLine("\x82\x07\xA0");
    EXPECT_EQ(Logged(), "");
    EXPECT_EQ(In(Game()), "");
}

TEST_F(PipelineTest, TheLogGetsPlainTextAndTheWindowTheColours)
{
    pipeline.ProcessGameLine("a\x82red\xA0 bell\x07 line\r\n");
    EXPECT_EQ(Logged(), "ared bell line\r\n");
    EXPECT_EQ(In(Game()), "a\x82red\xA0 bell line\n");
}

TEST_F(PipelineTest, ABareLineEndIsLoggedAndShownWithoutFiltering)
{
    pipeline.ProcessGameLine("\r\n");
    EXPECT_EQ(Logged(), "\r\n");
    EXPECT_EQ(In(Game()), "\n");
}

TEST_F(PipelineTest, VitalsLinesAreLoggedButNotShown)
{
    pipeline.ProcessGameLine(" ** Current hit points: 45 of 100\r\n");
    EXPECT_EQ(Logged(), " ** Current hit points: 45 of 100\r\n");
    EXPECT_EQ(In(Game()), "");
}

TEST_F(PipelineTest, ShowGameLineReleasesAWaitForTextOnTheColouredText)
{
    script.ScriptWait = WAIT_TEXT;
    std::strcpy(script.WaitText, "gate opens");
    pipeline.ProcessGameLine("The gate \x82opens\xA0.\r\n");
    EXPECT_EQ(script.ScriptWait, WAIT_TEXT) << "a colour inside the awaited text hides it";
    pipeline.ProcessGameLine("The gate opens.\r\n");
    EXPECT_EQ(script.ScriptWait, WAIT_NONE);
}

TEST_F(PipelineTest, PrintedTextDoesNotReleaseAWaitForText)
{
    script.ScriptWait = WAIT_TEXT;
    std::strcpy(script.WaitText, "Script");
    pipeline.PrintToWindow(Game(), "\r\n[Script aborted.]\r\n");
    EXPECT_EQ(script.ScriptWait, WAIT_TEXT);
    EXPECT_EQ(In(Game()), "\n[Script aborted.]\n");
}

TEST_F(PipelineTest, ShowGameLineClearsEchoPending)
{
    pipeline.Prompt().EchoPending = true;
    pipeline.ProcessGameLine("You see a tree.\r\n");
    EXPECT_FALSE(pipeline.Prompt().EchoPending);
}

TEST_F(PipelineTest, AClosedWindowRunsNoFilterAndShowsNothing)
{
    pipeline.PrintToWindow(nullptr, "[12 sec. delay]\r\n");
    EXPECT_EQ(In(Game()), "");
    EXPECT_FALSE(panel.RT.IsCounting());
}

TEST_F(PipelineTest, PrintToWindowLeavesTheCallersTextAlone)
{
    const char text[] = "Bob says, \"hi\"\r\n";
    pipeline.PrintToWindow(Game(), text);
    EXPECT_STREQ(text, "Bob says, \"hi\"\r\n");
    EXPECT_EQ(In(Game()), On(10) + "Bob says," + Off(10) + " \"hi\"\n")
        << "the window gets the filtered copy";
}

TEST_F(PipelineTest, PrintToWindowCutsAnOverlongTextInsideItsBuffer)
{
    std::string longText(PRINT_BUFFER_SIZE + 100, 'x');
    pipeline.PrintToWindow(Game(), longText.c_str());
    EXPECT_EQ(In(Game()), std::string(PRINT_BUFFER_SIZE - 1, 'x'));
}

TEST_F(PipelineTest, EchoCommandGoesRoundTheFilters)
{
    highlights.StringHighlights.Add("hi", 12);
    pipeline.EchoCommand("say hi");
    EXPECT_EQ(In(Game()), "say hi\n");
    EXPECT_EQ(Logged(), "say hi");
    EXPECT_TRUE(pipeline.Prompt().EchoPending);
}

TEST_F(PipelineTest, EchoCommandDoesNothingWithLocalEchoOff)
{
    options.LocalEcho = false;
    pipeline.EchoCommand("say hi");
    EXPECT_EQ(In(Game()), "");
    EXPECT_EQ(Logged(), "");
    EXPECT_FALSE(pipeline.Prompt().EchoPending);
}

struct PromptCase {
    const char* name;
    bool promptPending;
    bool echoPending;
    const char* text;
    PromptAction action;
    bool promptAfter;
    bool echoAfter;
};

class PromptRuleTest : public ::testing::TestWithParam<PromptCase> {};

TEST_P(PromptRuleTest, DecidesHowTheGameWindowAppends)
{
    const PromptCase& c = GetParam();
    PromptState state{c.promptPending, c.echoPending};
    EXPECT_EQ(ApplyPromptRule(state, c.text), c.action);
    EXPECT_EQ(state.PromptPending, c.promptAfter);
    EXPECT_EQ(state.EchoPending, c.echoAfter);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PromptRuleTest,
    ::testing::Values(
        PromptCase{"NoPrompt", false, false, "text\r\n", PromptAction::Append, false, false},
        PromptCase{"EchoWithoutPrompt", false, true, "look", PromptAction::Append, false, true},
        PromptCase{"EmptyLineBehindPrompt", true, false, "\r\n", PromptAction::Drop, true, false},
        PromptCase{"EchoOnPromptLine", true, true, "look", PromptAction::Append, false, false},
        PromptCase{"OutputAfterPrompt", true, false, "A tree.\r\n", PromptAction::BreakThenAppend,
                   false, false},
        PromptCase{"PromptAfterPrompt", true, false, ">", PromptAction::BreakThenAppend, false,
                   false}),
    [](const ::testing::TestParamInfo<PromptCase>& info) { return info.param.name; });

} // namespace
} // namespace steward::testing
