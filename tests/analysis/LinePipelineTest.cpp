#include "PipelineFixture.h"

#include "base/FrameCommand.h"

#include <functional>

namespace steward::testing {
namespace {

enum Where { GAME, THOUGHT, ARRIVAL, LOG };

struct LineRow {
    const char* name;
    std::function<void(PipelineRig&)> setup;
    std::vector<std::string> lines;
    std::vector<std::pair<Where, std::string>> expected;
};

std::string Seen(PipelineRig& rig, Where where)
{
    switch (where) {
    case GAME:
        return rig.In(rig.Game());
    case THOUGHT:
        return rig.In(rig.Thought());
    case ARRIVAL:
        return rig.In(rig.Arrival());
    case LOG:
        return rig.Logged();
    }
    return {};
}

void ThoughtWindow(PipelineRig& rig)
{
    rig.windows.ThoughtWindow = rig.Thought();
}
void ArrivalWindow(PipelineRig& rig)
{
    rig.windows.ArrivalWindow = rig.Arrival();
}
void Compress(PipelineRig& rig)
{
    rig.options.CompressThoughtMessages = true;
}

// Game lines through a fresh pipeline: what each window keeps and what the log gets.
TEST(LinePipelineTest, EachLineReachesItsWindowAndTheLog)
{
    const std::string longName(300, 'n');
    // clang-format off
    const LineRow rows[] = {
        {"only colours and bells", {}, {"\x82\x07\xA0"}, {{GAME, ""}, {LOG, ""}}},
        {"colours to the window, plain text to the log", {}, {"a\x82red\xA0 bell\x07 line\r\n"},
         {{GAME, "a\x82red\xA0 bell line\n"}, {LOG, "ared bell line\r\n"}}},
        {"a bare line end", {}, {"\r\n"}, {{GAME, "\n"}, {LOG, "\r\n"}}},
        {"other star lines", {}, {" ** Restart soon.\r\n"}, {{GAME, " ** Restart soon.\n"}}},
        {"an arrival without its window", {}, {"\x82 ** Mara just arrived in the world.\r\n"},
         {{GAME, "\x82 ** Mara just arrived in the world.\n"}}},
        {"a thought to its window, trimmed, without its bell", ThoughtWindow,
         {"You pick up Mara's thoughts, \"Hel\x07lo\"\r\n"},
         {{GAME, ""}, {THOUGHT, "\n[Mara]: \"Hello\""},
          {LOG, "You pick up Mara's thoughts, \"Hello\"\r\n"}}},
        {"the thought patterns' compact forms", ThoughtWindow,
         {"Mara thinks to you, \"Hello\"\r\n", "You pick up Mara's Psycian link, \"Hello\"\r\n",
          "You pick up Mara's Thornmere link, \"Hi\"\r\n", "You pick up Mara's old link, \"Hi\"\r\n",
          "You pick up Joe thinks to you, \"x\"\r\n"},
         {{THOUGHT, "\n[Mara (Private)]: \"Hello\"\n[Mara (Psycian link)]: \"Hello\"\n"
                    "[Mara (Thornmere link)]: \"Hi\"\n[Mara (link)]: \"Hi\"\n[You (Private)]: \"x\""}}},
        {"a compressed thought in colour in the game window", Compress,
         {"\x83You pick up Mara's thoughts, \"Hi\"\r\n"},
         {{GAME, On(40) + "[Mara]: \"Hi\"\n" + Off(40) + "\n"}}},
        {"an uncompressed thought plain, with an extra line break", {},
         {"You pick up Ma\x82ra's thoughts, \"Hi\x07\"\r\n"},
         {{GAME, "You pick up Mara's thoughts, \"Hi\"\n\n"}}},
        {"lines that are no thoughts", ThoughtWindow,
         {"You pick up a sword.\r\n", "Mara thinks about you.\r\n"},
         {{GAME, "You pick up a sword.\nMara thinks about you.\n"}, {THOUGHT, ""}}},
        {"recovery lines gain a prompt mark", {},
         {" ** You are fully healed.\r\n", " ** You are fully rested.\r\n"},
         {{GAME, " ** You are fully healed.\n> ** You are fully rested.\n>"}}},
        {"healed wins over an arrival on the same line", ArrivalWindow,
         {" ** You are fully healed. Bo just arrived in the world.\r\n"},
         {{GAME, " ** You are fully healed. Bo just arrived in the world.\n>"}, {ARRIVAL, ""}}},
        {"a long name is cut inside its buffer", ArrivalWindow,
         {" ** " + longName + " just arrived in the world.\r\n"},
         {{GAME, ""}, {ARRIVAL, "\n" + std::string(STAR_TEXT_SIZE - 3, 'n')}}},
        {"a record before any exit list shows nothing and is not logged", {},
         {"\x1B\x1Bshort\r\n", "Obvious exits: north\r\n", "x\r\n"},
         {{GAME, "Obvious exits: north\nx\n"}, {LOG, "Obvious exits: north\r\nx\r\n"}}},
        {"one escape byte starts no record", {}, {"\x1Bshort\r\n"}, {{LOG, "\x1Bshort\r\n"}}},
    };
    // clang-format on
    for (const LineRow& row : rows) {
        SCOPED_TRACE(row.name);
        auto rig = std::make_unique<PipelineRig>();
        if (row.setup)
            row.setup(*rig);
        for (const std::string& line : row.lines)
            rig->pipeline.ProcessGameLine(line.c_str());
        for (const auto& [where, text] : row.expected)
            EXPECT_EQ(Seen(*rig, where), text) << where;
    }
}

TEST(LinePipelineTest, VitalsLinesSetTheirGaugeAndAreLoggedButNotShown)
{
    const std::pair<const char*, const char*> rows[] = {
        {" ** Current hit points: 45 of 100\r\n", "45/100 0/0 "},
        {" ** Current HIT points: 12 of 90\r\n", "12/90 0/0 "},
        {" ** Current fatigue: 7 of 30\r\n", "0/0 7/30 "},
        {" ** Current fatigue 7 of 30\r\n", "0/0 0/0 "},
        {" ** Current mana: 7 of 30\r\n", "0/0 0/0 "},
        {" ** Current \r\n", "0/0 0/0 "},
        {" ** Current hit points:", "0/0 0/0 "},
        {" ** Current \"fatigue:\" 7 of 30\r\n", "0/0 7/30 "},
    };
    for (const auto& [line, gauges] : rows) {
        SCOPED_TRACE(line);
        PipelineRig rig;
        rig.pipeline.ProcessGameLine(line);
        EXPECT_EQ(PanelText(rig.panel).substr(0, std::strlen(gauges)), gauges);
        EXPECT_EQ(rig.panel.Ftg.GetMin(), 0);
        EXPECT_EQ(rig.In(rig.Game()), "");
        EXPECT_EQ(rig.Logged(), line);
    }
    // The line buffer still holds the longer line before; a colon at the end reads none of it.
    PipelineRig rig;
    rig.pipeline.ProcessGameLine(" ** Current hit points: 45 of 100\r\n");
    rig.pipeline.ProcessGameLine(" ** Current hit points:");
    EXPECT_EQ(PanelText(rig.panel).substr(0, 4), "0/0 ");
}

TEST_F(PipelineTest, RecoveryLinesFillTheirGauge)
{
    SetGaugeValues(panel.Hp, 0, 100, 10);
    SetGaugeValues(panel.Ftg, 0, 50, 10);
    pipeline.ProcessGameLine(" ** You are fully healed.\r\n");
    pipeline.ProcessGameLine(" ** You are fully rested.\r\n");
    EXPECT_EQ(panel.Hp.GetValue(), 100);
    EXPECT_EQ(panel.Ftg.GetValue(), 50);
    EXPECT_FALSE(pipeline.Prompt().PromptPending);
}

TEST_F(PipelineTest, ArrivalsGoToTheArrivalWindowWithTheClockAndOnlyListedNamesWhenAsked)
{
    windows.ArrivalWindow = Arrival();
    pipeline.ProcessGameLine(" **   Mara just arrived in the world.\r\n");
    clock.time = {0, 5};
    pipeline.ProcessGameLine(" **  Bo has left the world unexpectedly.\r\n");
    clock.time = {12, 0};
    pipeline.ProcessGameLine(" ** Cy has left the world unexpectedly\r\n");
    EXPECT_EQ(In(Arrival()),
              "\nMara arrived at 5:30 pm.\n Bo disco'd at 12:05 am.\nCy left at 12:00 pm.");
    EXPECT_EQ(In(Game()), "");

    PipelineRig listed;
    listed.options.OnlyListedArrivals = true;
    listed.windows.ArrivalWindow = listed.Arrival();
    listed.pipeline.ProcessGameLine(" ** Mara just arrived in the world.\r\n");
    listed.pipeline.ProcessGameLine(" ** Mara has left the world.\r\n");
    EXPECT_EQ(listed.In(listed.Arrival()) + listed.In(listed.Game()), "")
        << "an empty name list shows nothing";
    listed.highlights.NameHighlights.Add("Mara", 14);
    listed.pipeline.ProcessGameLine(" ** Mara just arrived in the world.\r\n");
    listed.pipeline.ProcessGameLine(" ** Bo just arrived in the world.\r\n");
    // A name is cut to its buffer before the list sees it: this one ends in "Mar".
    listed.pipeline.ProcessGameLine(
        (" ** " + std::string(STAR_NAME_SIZE - 5, 'x') + " Mara just arrived in the world.\r\n")
            .c_str());
    EXPECT_EQ(listed.In(listed.Arrival()),
              "\n" + On(14) + "Mara" + Off(14) + " arrived at 5:30 pm.");
}

// The prompt and echo flags around one line: a thought leaves both as they were.
TEST(LinePipelineTest, OnlyShownGameLinesEndAPendingEcho)
{
    const struct {
        const char* line;
        bool echoAfter;
    } rows[] = {{"You see a tree.\r\n", false},
                {"You pick up Mara's thoughts, \"Hi\"\r\n", true},
                {" ** Current fatigue: 7 of 30\r\n", true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        PipelineRig rig;
        rig.windows.ThoughtWindow = rig.Thought();
        rig.pipeline.Prompt() = {true, true};
        rig.pipeline.ProcessGameLine(row.line);
        EXPECT_EQ(rig.pipeline.Prompt().EchoPending, row.echoAfter);
        EXPECT_EQ(rig.pipeline.Prompt().PromptPending, row.echoAfter);
    }
}

// "Obvious exits" asks for the status mode once per connection, on the line after it, unless a
// record came first.
TEST(LinePipelineTest, TheExitListAsksForTheStatusModeOncePerConnection)
{
    const struct {
        const char* name;
        std::vector<const char*> lines;
        std::size_t posted;
    } rows[] = {
        {"not before the next line", {"Obvious exits: north\r\n"}, 0},
        {"on the next line, once",
         {"Obvious exits: north\r\n", "", "Obvious exits: south\r\n", "x\r\n"},
         1},
        {"case sensitive", {"obvious exits: north\r\n", "x\r\n"}, 0},
        {"through colours", {"Obv\x82ious exits\r\n", "x\r\n"}, 1},
        {"never after a record", {"\x1B\x1Bshort\r\n", "Obvious exits: north\r\n", "x\r\n"}, 0},
        {"again after a connect",
         {"Obvious exits: north\r\n", "x\r\n", "connect", "Obvious exits: north\r\n", "x\r\n"},
         2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        PipelineRig rig;
        for (const char* line : row.lines) {
            if (std::string(line) == "connect")
                ASSERT_EQ(rig.link.ConnectToGame("/H127.0.0.1/P34283"), CONNECT_OK);
            else
                rig.pipeline.ProcessGameLine(line);
        }
        EXPECT_EQ(rig.queue.commands, std::vector<int>(row.posted, CMD_RESET_STEWARD_MODE));
    }
}

// Which of the text, room and prompt waits each line releases.
TEST(LinePipelineTest, EachWaitIsReleasedOnlyByItsOwnEvent)
{
    const std::string record = StatusLine(">");
    const std::pair<std::string, const char*> rows[] = {
        {"The rat squeals once and lies still.\r\n", "text"},
        {"The rat lies\r\n", ""},
        {"The rat lies \x82still\xA0.\r\n", ""},
        {"You pick up Mara's thoughts, \"lies still\"\r\n", ""},
        {"Obvious exits: north.\r\n", "room"},
        {"Obvious exits: none\r\n", "room"},
        {"Obvious things\r\n", ""},
        {record, "prompt"},
        {"\x82" + record, "prompt"},
    };
    for (const auto& [line, releases] : rows) {
        for (const auto& [wait, name] : {std::pair{WAIT_TEXT, "text"}, std::pair{WAIT_ROOM, "room"},
                                         std::pair{WAIT_PROMPT, "prompt"}}) {
            SCOPED_TRACE(line + name);
            PipelineRig rig;
            std::strcpy(rig.script.WaitText, "lies still");
            rig.script.ScriptWait = wait;
            rig.pipeline.ProcessGameLine(line.c_str());
            EXPECT_EQ(rig.script.ScriptWait, std::string(name) == releases ? WAIT_NONE : wait);
        }
    }
}

TEST_F(PipelineTest, PrintToWindowFiltersACopyCutToItsBufferAndReleasesNoWait)
{
    script.ScriptWait = WAIT_TEXT;
    std::strcpy(script.WaitText, "Script");
    const char text[] = "Bob says, \"hi\"\r\n[Script aborted.]\r\n";
    pipeline.PrintToWindow(Game(), text);
    EXPECT_STREQ(text, "Bob says, \"hi\"\r\n[Script aborted.]\r\n");
    EXPECT_EQ(In(Game()), On(10) + "Bob says," + Off(10) + " \"hi\"\n[Script aborted.]\n");
    EXPECT_EQ(script.ScriptWait, WAIT_TEXT);

    PipelineRig cut;
    cut.pipeline.PrintToWindow(cut.Game(), std::string(PRINT_BUFFER_SIZE + 100, 'x').c_str());
    EXPECT_EQ(cut.In(cut.Game()), std::string(PRINT_BUFFER_SIZE - 1, 'x'));

    pipeline.PrintToWindow(nullptr, "[12 sec. delay]\r\n");
    EXPECT_FALSE(panel.RT.IsCounting()) << "a closed window runs no filter";
}

TEST(LinePipelineTest, EchoCommandGoesRoundTheFiltersWhenLocalEchoIsOn)
{
    for (const bool echo : {true, false}) {
        PipelineRig rig;
        rig.options.LocalEcho = echo;
        rig.highlights.StringHighlights.Add("hi", 12);
        rig.pipeline.EchoCommand("say hi");
        EXPECT_EQ(rig.In(rig.Game()), echo ? "say hi\n" : "");
        EXPECT_EQ(rig.Logged(), echo ? "say hi" : "");
        EXPECT_EQ(rig.pipeline.Prompt().EchoPending, echo);
    }
}

TEST(PromptRuleTest, DecidesHowTheGameWindowAppends)
{
    const struct {
        bool promptPending, echoPending;
        const char* text;
        PromptAction action;
        bool promptAfter, echoAfter;
    } rows[] = {
        {false, false, "text\r\n", PromptAction::Append, false, false},
        {false, true, "look", PromptAction::Append, false, true},
        {true, false, "\r\n", PromptAction::Drop, true, false},
        {true, true, "look", PromptAction::Append, false, false},
        {true, false, "A tree.\r\n", PromptAction::BreakThenAppend, false, false},
        {true, false, ">", PromptAction::BreakThenAppend, false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        PromptState state{row.promptPending, row.echoPending};
        EXPECT_EQ(ApplyPromptRule(state, row.text), row.action);
        EXPECT_EQ(state.PromptPending, row.promptAfter);
        EXPECT_EQ(state.EchoPending, row.echoAfter);
    }
}

TEST(TrimLineEndTest, RemovesOnlyTrailingLineEnds)
{
    const char* const rows[][2] = {
        {"ab\r\n\r\n", "ab"}, {"a\rb\n", "a\rb"}, {"\r\n", ""}, {"", ""}};
    for (const auto& row : rows) {
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "%s", row[0]);
        TrimLineEnd(buffer);
        EXPECT_STREQ(buffer, row[1]);
    }
}

} // namespace
} // namespace steward::testing
