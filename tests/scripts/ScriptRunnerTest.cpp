#include "ScriptDoubles.h"

#include <gtest/gtest.h>

namespace steward::testing {
namespace {

using Events = std::vector<std::string>;

std::string Joined(const Events& events)
{
    std::string out;
    for (const std::string& event : events)
        out += event + "\n";
    return out;
}

TEST(ScriptStepTest, SendsPrintsAndEndsAsTheLinesSay)
{
    const std::string a506(506, 'a'), a255(255, 'a'); // a rest of line is cut at 255
    const struct {
        std::string script;
        const char* parameters;
        std::string events; // one a line, the closing beep left out
    } rows[] = {
        {"put look\n\n# put no\n  # put no\nstart:\nlook\nput  say \"hi\"  \nput\n", "",
         "send:look\nsend:say \"hi\"  \n"},
        {"PUT a\nPuT b\nEcHo c\n", "", "send:a\nsend:b\nprint:c\\r\\n\n"},
        {"put a\r\nput b\r\n", "", "send:a\nsend:b\n"},
        {"put look\r\r\n", "", "send:look\\r\n"},
        {"put look\rx\n", "", "send:look\\rx\n"},
        {"if_0 put zero\nif_1 put one\nif_2 put two\nIF_3 put three\nif_/ put slash\nif_1\n"
         "if_ put none\n",
         "a b", "send:zero\nsend:one\nsend:two\n"},
        {"if_0 put zero\nif_1 put one\n", "", ""},
        {"goto B\nput skipped\na:\nput a\nexit\nb:\nput b\ngoto A\nb:\nput second\n", "",
         "send:b\nsend:a\n"},
        {"goto \"my place\"\nput no\n\"my place:\"\nput yes\n", "", "send:yes\n"},
        {"put a\ngoto nowhere\nput b\n", "", "send:a\nprint:\\r\\nGOTO label not found!\\r\\n\n"},
        {"goto\nput b\n", "", "print:\\r\\nGOTO with no label specified!\\r\\n\n"},
        {"put " + a506 + "\nput b\n", "", "send:" + a255 + "\nsend:b\n"},
        {"put " + a506 + "x\nput b\n", "", "send:" + a255 + "\nsend:b\n"},
        {"put " + a506 + "put b\n", "", "send:" + a255 + "\nsend:b\n"},
        {"again:\nif_1 put get %1\nif_1 shift\nif_1 goto again\necho %0.\n", "\"big rat\" 3",
         "send:get big rat\nsend:get 3\nprint:.\\r\\n\n"},
        {"shift\nput %1|%2|%0|\n", "a \"b c\" d", "send:b c|d|b c d |\n"},
        {"put <%s>\nsave \"x y\" z\nput <%s>\nsave\nput <%s>\n", "",
         "send:<>\nsend:<x y>\nsend:<>\n"},
        {"pause\npause 0\npause x\npause 29\npause -3\n", "",
         "pump:1\npump:1\npump:1\npump:29\npump:1\n"},
        {"echo\necho  say \"hi\" \n", "", "print:\\r\\n\nprint:say \"hi\" \\r\\n\n"},
        {"echo " + a255 + "b\n", "", "print:" + a255 + "\\r\\n\n"},
        {"WaitFor\nput on\n", "", "send:on\n"},
        {"put a\nexit\nput b\n", "", "send:a\n"},
        {std::string("put a\nput \0b\nput c\n", 19), "",
         "send:a\nprint:\\r\\n*** Script stopped: the file is not a text file.\\r\\n\\r\\n\n"},
        {"put a\x1b\x07\x85z\n", "", "send:a???z\n"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script.substr(0, 60));
        ScriptRig rig;
        rig.Start(row.script, row.parameters);
        rig.Steps(100);
        EXPECT_EQ(Joined(rig.host.events), row.events + "beep\n");
        EXPECT_FALSE(rig.runner.Running());
        EXPECT_FALSE(rig.host.busyCursor);
    }
}

TEST(ScriptWaitTest, WaitingCommandsHoldTheScriptUntilReleased)
{
    const struct {
        const char* line;
        ScriptWaitKind wait;
        const char* sent;
    } cases[] = {
        {"NextRoom", WAIT_ROOM, nullptr},
        {"Wait", WAIT_PROMPT, nullptr},
        {"waitfor  a \"b\" ", WAIT_TEXT, nullptr},
        {"go n", WAIT_ROOM, "send:n"},
        {"move go gate", WAIT_ROOM, "send:go gate"},
    };
    for (const auto& c : cases) {
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
    rig.runner.AbortScript();
    rig.host.events.clear();
    rig.Start("echo a\n");
    rig.roundTime.SetMax(3000);
    rig.roundTime.SetValue(2000);
    rig.Steps(5);
    EXPECT_TRUE(rig.host.events.empty());
    rig.roundTime.SetValue(0);
    rig.Steps(1);
    EXPECT_EQ(rig.host.events, Events{"print:a\\r\\n"}) << "round time holds every line";
}

TEST(ScriptRunnerTest, OnlyCommandLinesPostAWakeUpAndADeletedFileRunsToItsEnd)
{
    ScriptRig rig;
    rig.Start("# comment\n\nstart:\nput a\n");
    const int afterStart = rig.host.wakeUps;
    EXPECT_EQ(afterStart, 1) << "a start wakes the loop for the first line";
    rig.Steps(2);
    EXPECT_EQ(rig.host.wakeUps, afterStart);
    rig.Steps(2);
    EXPECT_EQ(rig.host.wakeUps, afterStart + 2);
    rig.host.events.clear();
    rig.Start("put a\nput b\n");
    std::filesystem::remove(rig.folder.File("Test.Cmd"));
    rig.Steps(5);
    EXPECT_EQ(rig.host.events, (Events{"send:a", "send:b", "beep"}));
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
    rig.runner.ScriptStep();
    rig.runner.ExecuteFile(rig.folder.File("Missing.Stw").c_str());
    EXPECT_FALSE(rig.runner.Running());
    EXPECT_FALSE(rig.host.busyCursor) << "the script it replaced is stopped";

    rig.Start(std::string("put \0\n", 6));
    rig.Steps(5);
    rig.host.events.clear();
    rig.Start("put a\n");
    rig.Steps(5);
    EXPECT_EQ(rig.host.events, (Events{"send:a", "beep"})) << "a text file after a binary one";
}

} // namespace
} // namespace steward::testing
