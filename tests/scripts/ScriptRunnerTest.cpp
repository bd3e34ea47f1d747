#include "ScriptDoubles.h"

#include <gtest/gtest.h>

namespace steward::testing {
namespace {

using Events = std::vector<std::string>;

struct StepCase {
    const char* name;
    std::string script;
    const char* parameters;
    Events events;
};

void PrintTo(const StepCase& c, std::ostream* out)
{
    *out << c.name;
}

const std::string A506(506, 'a');
// A rest of line is cut at the token buffer's 255 characters.
const std::string A255(255, 'a');

class ScriptStepTest : public ::testing::TestWithParam<StepCase> {};

TEST_P(ScriptStepTest, SendsPrintsAndEndsAsTheLinesSay)
{
    ScriptRig rig;
    rig.Start(GetParam().script, GetParam().parameters);
    rig.Steps(100);
    EXPECT_EQ(rig.host.events, GetParam().events);
    EXPECT_FALSE(rig.runner.Running());
    EXPECT_FALSE(rig.host.busyCursor);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ScriptStepTest,
    ::testing::Values(
        StepCase{"PutLinesCommentsEmptyLinesAndUnknownWords",
                 "put look\n\n# put no\n  # put no\nstart:\nlook\nput  say \"hi\"  \nput\n",
                 "",
                 {"send:look", "send:say \"hi\"  ", "beep"}},
        StepCase{"CommandWordsIgnoreCase",
                 "PUT a\nPuT b\nEcHo c\n",
                 "",
                 {"send:a", "send:b", "print:c\\r\\n", "beep"}},
        StepCase{"WindowsLineEnds", "put a\r\nput b\r\n", "", {"send:a", "send:b", "beep"}},
        StepCase{
            "RecordedLineKeepsItsCarriageReturn", "put look\r\r\n", "", {"send:look\\r", "beep"}},
        StepCase{"ConditionsOnParameters",
                 "if_0 put zero\nif_1 put one\nif_2 put two\nIF_3 put three\nif_/ put slash\n"
                 "if_1\nif_ put none\n",
                 "a b",
                 {"send:zero", "send:one", "send:two", "beep"}},
        StepCase{"IfZeroFailsWithoutParameters", "if_0 put zero\nif_1 put one\n", "", {"beep"}},
        StepCase{"GotoJumpsForwardAndBackFirstLabelWins",
                 "goto B\nput skipped\na:\nput a\nexit\nb:\nput b\ngoto A\nb:\nput second\n",
                 "",
                 {"send:b", "send:a", "beep"}},
        StepCase{"GotoQuotedLabel",
                 "goto \"my place\"\nput no\n\"my place:\"\nput yes\n",
                 "",
                 {"send:yes", "beep"}},
        StepCase{"GotoMissingLabel",
                 "put a\ngoto nowhere\nput b\n",
                 "",
                 {"send:a", "print:\\r\\nGOTO label not found!\\r\\n", "beep"}},
        StepCase{"GotoWithoutLabel",
                 "goto\nput b\n",
                 "",
                 {"print:\\r\\nGOTO with no label specified!\\r\\n", "beep"}},
        StepCase{"LineOf510CharactersAndItsLineFeed",
                 "put " + A506 + "\nput b\n",
                 "",
                 {"send:" + A255, "send:b", "beep"}},
        StepCase{"LineOf511CharactersLeavesOneCharacter",
                 "put " + A506 + "x\nput b\n",
                 "",
                 {"send:" + A255, "send:b", "beep"}},
        StepCase{"RemainderOfALongLineIsALineOfItsOwn",
                 "put " + A506 + "put b\n",
                 "",
                 {"send:" + A255, "send:b", "beep"}},
        StepCase{"ShiftLoopsOverParameters",
                 "again:\nif_1 put get %1\nif_1 shift\nif_1 goto again\necho %0.\n",
                 "\"big rat\" 3",
                 {"send:get big rat", "send:get 3", "print:.\\r\\n", "beep"}},
        StepCase{"ShiftKeepsQuotedParametersWhole",
                 "shift\nput %1|%2|%0|\n",
                 "a \"b c\" d",
                 {"send:b c|d|b c d |", "beep"}},
        StepCase{"SaveKeepsAWord",
                 "put <%s>\nsave \"x y\" z\nput <%s>\nsave\nput <%s>\n",
                 "",
                 {"send:<>", "send:<x y>", "send:<>", "beep"}},
        StepCase{"PauseReadsItsSeconds",
                 "pause\npause 0\npause x\npause 29\npause -3\n",
                 "",
                 {"pump:1", "pump:1", "pump:1", "pump:29", "pump:1", "beep"}},
        StepCase{"EchoPrintsTheRestAsItStands",
                 "echo\necho  say \"hi\" \n",
                 "",
                 {"print:\\r\\n", "print:say \"hi\" \\r\\n", "beep"}},
        StepCase{"EchoOfALongLineKeepsItsLineEnd",
                 "echo " + A255 + "b\n",
                 "",
                 {"print:" + A255 + "\\r\\n", "beep"}},
        StepCase{"WaitForWithoutTextGoesOn", "WaitFor\nput on\n", "", {"send:on", "beep"}},
        StepCase{"ExitEndsAtTheNextStep", "put a\nexit\nput b\n", "", {"send:a", "beep"}},
        StepCase{"BinaryFileStops",
                 std::string("put a\nput \0b\nput c\n", 19),
                 "",
                 {"send:a",
                  "print:\\r\\n*** Script stopped: the file is not a text file.\\r\\n\\r\\n",
                  "beep"}},
        StepCase{
            "ControlBytesReadAsQuestionMarks", "put a\x1b\x07\x85z\n", "", {"send:a???z", "beep"}}),
    [](const ::testing::TestParamInfo<StepCase>& info) { return std::string(info.param.name); });

struct WaitCase {
    const char* line;
    ScriptWaitKind wait;
    const char* sent;
};

TEST(ScriptWaitTest, WaitingCommandsHoldTheScriptUntilReleased)
{
    const WaitCase cases[] = {
        {"NextRoom", WAIT_ROOM, nullptr},
        {"Wait", WAIT_PROMPT, nullptr},
        {"waitfor  a \"b\" ", WAIT_TEXT, nullptr},
        {"go n", WAIT_ROOM, "send:n"},
        {"move go gate", WAIT_ROOM, "send:go gate"},
    };
    for (const WaitCase& c : cases) {
        ScriptRig rig;
        rig.Start(std::string(c.line) + "\nput after\n");
        rig.Steps(5);
        EXPECT_EQ(rig.wait.ScriptWait, c.wait) << c.line;
        EXPECT_EQ(rig.host.events, c.sent ? Events{c.sent} : Events{}) << c.line;
        EXPECT_TRUE(rig.host.busyCursor);
        rig.wait.ScriptWait = WAIT_NONE;
        rig.Steps(5);
        EXPECT_EQ(rig.host.events.back(), "beep") << c.line;
    }
    ScriptRig rig;
    rig.Start("waitfor  a \"b\" \n");
    rig.Steps(1);
    EXPECT_STREQ(rig.wait.WaitText, "a \"b\" ");
}

TEST(ScriptWaitTest, RoundTimeHoldsEveryLine)
{
    ScriptRig rig;
    rig.Start("echo a\n");
    rig.roundTime.SetMax(3000);
    rig.roundTime.SetValue(2000);
    rig.Steps(5);
    EXPECT_TRUE(rig.host.events.empty());
    rig.roundTime.SetValue(0);
    rig.Steps(1);
    EXPECT_EQ(rig.host.events, Events{"print:a\\r\\n"});
}

TEST(ScriptRunnerTest, OnlyCommandLinesPostAWakeUp)
{
    ScriptRig rig;
    rig.Start("# comment\n\nstart:\nput a\n");
    const int afterStart = rig.host.wakeUps;
    rig.Steps(2);
    EXPECT_EQ(rig.host.wakeUps, afterStart);
    rig.Steps(2);
    EXPECT_EQ(rig.host.wakeUps, afterStart + 2);
}

TEST(ScriptRunnerTest, StartsStopsAndSaysWhatFailed)
{
    ScriptRig rig;
    rig.Start("put a\n", "p");
    rig.runner.ScriptStep();
    rig.wait.ScriptWait = WAIT_TEXT;
    rig.runner.AbortScript();
    EXPECT_FALSE(rig.runner.Running());
    EXPECT_EQ(rig.wait.ScriptWait, WAIT_NONE);

    std::snprintf(rig.names.ScriptName, sizeof rig.names.ScriptName, "Missing.Cmd");
    rig.runner.RunScript(rig.folder.Path().c_str());
    rig.runner.ExecuteFile(rig.folder.File("Missing.Stw").c_str());
    rig.runner.ExecuteFile(rig.folder.File("Test.Cmd").c_str());
    EXPECT_STREQ(rig.names.ScriptParameters, "");
    std::snprintf(rig.names.ScriptName, sizeof rig.names.ScriptName, "test.cmd");
    rig.runner.RunScript(rig.folder.Path().c_str());
    EXPECT_TRUE(rig.runner.Running());
    const Events expected = {"send:a",
                             "print:\\r\\n*** Error opening script \"" +
                                 rig.folder.File("Missing.Cmd") + "\"\\r\\n\\r\\n",
                             "print:\\r\\n*** Error opening script file!\\r\\n\\r\\n"};
    EXPECT_EQ(rig.host.events, expected);
    EXPECT_TRUE(rig.runner.Running());
}

TEST(ScriptRunnerTest, AFileDeletedWhileItRunsRunsToItsEnd)
{
    ScriptRig rig;
    rig.Start("put a\nput b\n");
    std::filesystem::remove(rig.folder.File("Test.Cmd"));
    rig.Steps(5);
    EXPECT_EQ(rig.host.events, (Events{"send:a", "send:b", "beep"}));
}

} // namespace
} // namespace steward::testing
