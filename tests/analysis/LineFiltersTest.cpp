#include "PipelineFixture.h"

#include "base/ColorCode.h"

namespace steward::testing {
namespace {

class FilterTest : public PipelineTest {
  protected:
    std::string Filter(const std::string& text)
    {
        char buffer[LINE_COPY_SIZE];
        std::snprintf(buffer, sizeof buffer, "%s", text.c_str());
        pipeline.FilterLine(buffer, sizeof buffer);
        return buffer;
    }
};

TEST_F(FilterTest, SpeechColoursTheSpeakerUpToTheFirstComma)
{
    EXPECT_EQ(Filter("Bob says, \"hi\"\r\n"), On(10) + "Bob says," + Off(10) + " \"hi\"\r\n");
    EXPECT_EQ(Filter("Bob, the smith, asks, \"why?\"\r\n"),
              On(10) + "Bob," + Off(10) + " the smith, asks, \"why?\"\r\n");
}

TEST_F(FilterTest, WhisperEndsItsColourBeforeTheQuote)
{
    EXPECT_EQ(Filter("Ann whispers, \"psst\"\r\n"),
              On(11) + "Ann whispers, " + Off(11) + "\"psst\"\r\n");
}

TEST_F(FilterTest, SpeechAndWhisperColourTheSameLineInTurn)
{
    const std::string cases[][2] = {
        // The whisper pair goes outside the speech pair.
        {"Bo says, \"Ann whispers, \"hi\"\"\r\n",
         On(11) + On(10) + "Bo says," + Off(10) + " " + Off(11) + "\"Ann whispers, \"hi\"\"\r\n"},
        // The speech colour closes inside the whisper phrase, which then is no whisper.
        {"Ann whispers, \"Bo says, \"hi\"\"\r\n",
         On(10) + "Ann whispers," + Off(10) + " \"Bo says, \"hi\"\"\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Filter(c[0]), c[1]) << c[0];
}

TEST_F(FilterTest, YellsAreReplacedOnlyWhenIgnored)
{
    EXPECT_EQ(Filter("Tom yells, \"hey\"\r\n"), On(10) + "Tom yells," + Off(10) + " \"hey\"\r\n");
    // The replacement would show this highlight if the lists ran on it.
    highlights.StringHighlights.Add("ignore", 12);
    options.IgnoreYells = true;
    EXPECT_EQ(Filter("Tom yells, \"hey\"\r\n"), "You ignore a yell.\r\n");
    EXPECT_EQ(Filter("Tom screams, \"hey\"\r\n"), "You ignore a yell.\r\n");
    EXPECT_EQ(Filter("We yell, \"hey\"\r\n"), On(10) + "We yell," + Off(10) + " \"hey\"\r\n");
}

TEST_F(FilterTest, DelayLinesStartTheRoundTime)
{
    const struct {
        const char* line;
        std::int32_t ms;
    } cases[] = {{"[12 sec. delay]\r\n", 12000},   {"[90 sec. delay]\r\n", 60000},
                 {"...wait 3 seconds.\r\n", 3000}, {"...wait", 0},
                 {"...Wait 3 seconds.\r\n", 0},    {"[x sec. delay]\r\n", 0},
                 {"[-5 sec. delay]\r\n", 60000},   {"\x82[12 sec. delay]\r\n", 0}};
    // One buffer for all lines, so a short line lies in front of the bytes of the one before.
    char buffer[64];
    for (const auto& c : cases) {
        StatusPanel fresh;
        LinePipeline local{{options, sessionLog, highlights, sounds, windows, queue, script, fresh,
                            words, clock, nullptr}};
        std::snprintf(buffer, sizeof buffer, "%s", c.line);
        local.FilterLine(buffer, sizeof buffer);
        EXPECT_EQ(fresh.RT.GetMax(), c.ms) << c.line;
        EXPECT_EQ(fresh.RT.IsCounting(), c.ms != 0) << c.line;
    }
}

TEST_F(FilterTest, ExitListsSetTheCompass)
{
    const struct {
        const char* line;
        std::uint32_t masks;
    } cases[] = {{"\"Obvious\" exits: \"north\", up\r\n", 0x00000201},
                 {"Obvious exits: north, southeast*, up\r\n", 0x00080209},
                 {"obvious exits: NorthEast, west.\r\n", 0x00000042},
                 {"Obvious exits: out, down, southwest*\r\n", 0x00200520}};
    for (const auto& c : cases) {
        Filter(c.line);
        EXPECT_EQ(panel.Compass.LastMasks(), c.masks) << c.line;
    }
    EXPECT_EQ(panel.Compass.Zone(5), EXIT_SPECIAL);
    EXPECT_EQ(panel.Compass.Zone(10), EXIT_OPEN);
}

TEST_F(FilterTest, AnEmptyExitListClearsTheCompassAndReleasesAWaitForRoom)
{
    Filter("Obvious exits: north\r\n");
    script.ScriptWait = WAIT_ROOM;
    Filter("Obvious exits: none\r\n");
    EXPECT_EQ(panel.Compass.LastMasks(), 0u);
    EXPECT_EQ(panel.Compass.Zone(0), EXIT_NONE);
    EXPECT_EQ(script.ScriptWait, WAIT_NONE);
}

TEST_F(FilterTest, LinesThatAreNoExitListLeaveTheCompass)
{
    Filter("Obvious exits: north\r\n");
    Filter("Exits: south\r\n");
    Filter("Obvious exits south\r\n");
    // A colour in front of the first word hides the list, as it hides a delay.
    Filter("\x8A"
           "Obvious exits: west\r\n");
    EXPECT_EQ(panel.Compass.LastMasks(), 0x1u);
}

TEST_F(FilterTest, HighlightsRunOnEveryTextWithAWord)
{
    highlights.StringHighlights.Add("hi", 12);
    highlights.NameHighlights.Add("ab", 13);
    EXPECT_EQ(Filter("Bob says, \"hi\"\r\n"),
              On(10) + "Bob says," + Off(10) + " \"" + On(12) + "hi" + Off(12) + "\"\r\n");
    EXPECT_EQ(Filter("  \t\r\n"), "  \t\r\n") << "no first word";
    EXPECT_EQ(Filter("ab"), "ab") << "under three bytes";
    EXPECT_EQ(Filter("ab!"), On(13) + "ab" + Off(13) + "!");
}

TEST_F(FilterTest, InsertionsIntoAFullBufferAreCut)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%s", "A says, \"hello");
    pipeline.FilterLine(buffer, sizeof buffer);
    EXPECT_EQ(std::string(buffer), On(10) + "A says," + Off(10) + " \"hell");
}

TEST_F(PipelineTest, ThoughtsGoToTheThoughtWindowTrimmedAndWithoutTheirBell)
{
    windows.ThoughtWindow = Thought();
    pipeline.Prompt().PromptPending = true;
    pipeline.ProcessGameLine("You pick up Mara's thoughts, \"Hel\x07lo\"\r\n");
    EXPECT_EQ(In(Thought()), "\n[Mara]: \"Hello\"");
    EXPECT_EQ(In(Game()), "");
    EXPECT_TRUE(pipeline.Prompt().PromptPending);
    EXPECT_EQ(Logged(), "You pick up Mara's thoughts, \"Hello\"\r\n");
}

TEST_F(PipelineTest, ThoughtPatternsBuildTheirCompactForms)
{
    windows.ThoughtWindow = Thought();
    const char* const lines[][2] = {
        {"Mara thinks to you, \"Hello\"\r\n", "[Mara (Private)]: \"Hello\""},
        {"You pick up Mara's Psycian link, \"Hello\"\r\n", "[Mara (Psycian link)]: \"Hello\""},
        {"You pick up Mara's Thornmere link, \"Hi\"\r\n", "[Mara (Thornmere link)]: \"Hi\""},
        {"You pick up Mara's old link, \"Hi\"\r\n", "[Mara (link)]: \"Hi\""},
        {"You pick up Joe thinks to you, \"x\"\r\n", "[You (Private)]: \"x\""},
    };
    for (const auto& line : lines) {
        const std::size_t before = In(Thought()).size();
        pipeline.ProcessGameLine(line[0]);
        EXPECT_EQ(In(Thought()).substr(before), "\n" + std::string(line[1])) << line[0];
    }
}

TEST_F(PipelineTest, CompressedThoughtsShowInColourInTheGameWindow)
{
    options.CompressThoughtMessages = true;
    pipeline.ProcessGameLine("\x83You pick up Mara's thoughts, \"Hi\"\r\n");
    EXPECT_EQ(In(Game()), On(40) + "[Mara]: \"Hi\"\n" + Off(40) + "\n");
}

TEST_F(PipelineTest, UncompressedThoughtsShowPlainWithAnExtraLineBreak)
{
    script.ScriptWait = WAIT_TEXT;
    std::strcpy(script.WaitText, "Hi");
    pipeline.Prompt().EchoPending = true;
    pipeline.ProcessGameLine("You pick up Ma\x82ra's thoughts, \"Hi\x07\"\r\n");
    EXPECT_EQ(In(Game()), "You pick up Mara's thoughts, \"Hi\"\n\n");
    EXPECT_EQ(script.ScriptWait, WAIT_TEXT) << "a thought never satisfies a wait for text";
    EXPECT_TRUE(pipeline.Prompt().EchoPending);
}

TEST_F(PipelineTest, OrdinaryLinesAreNoThoughts)
{
    EXPECT_FALSE(pipeline.CompressThought("You pick up a sword.\r\n"));
    EXPECT_FALSE(pipeline.CompressThought("Mara thinks about you.\r\n"));
}

} // namespace
} // namespace steward::testing
