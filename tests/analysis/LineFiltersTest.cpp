#include "PipelineFixture.h"

#include "base/ColorCode.h"

namespace steward::testing {
namespace {

std::string Filter(PipelineRig& rig, const std::string& text, std::size_t size = LINE_COPY_SIZE)
{
    std::vector<char> buffer(size);
    std::snprintf(buffer.data(), size, "%s", text.c_str());
    rig.pipeline.FilterLine(buffer.data(), size);
    return buffer.data();
}

TEST(LineFiltersTest, SpeechWhispersYellsAndHighlightsColourTheLine)
{
    const std::string hi = On(12) + "hi" + Off(12);
    const struct {
        const char* name;
        bool lists; // "hi" and the name "ab" highlighted, yells ignored
        const char* line;
        std::string filtered;
        std::size_t size = LINE_COPY_SIZE;
    } rows[] = {
        {"speech up to the first comma", false, "Bob, the smith, asks, \"why?\"\r\n",
         On(10) + "Bob," + Off(10) + " the smith, asks, \"why?\"\r\n"},
        {"a whisper ends before the quote", false, "Ann whispers, \"psst\"\r\n",
         On(11) + "Ann whispers, " + Off(11) + "\"psst\"\r\n"},
        {"the whisper pair outside the speech pair", false, "Bo says, \"Ann whispers, \"hi\"\"\r\n",
         On(11) + On(10) + "Bo says," + Off(10) + " " + Off(11) + "\"Ann whispers, \"hi\"\"\r\n"},
        {"speech closing inside a whisper phrase", false, "Ann whispers, \"Bo says, \"hi\"\"\r\n",
         On(10) + "Ann whispers," + Off(10) + " \"Bo says, \"hi\"\"\r\n"},
        {"a yell is speech", false, "Tom yells, \"hey\"\r\n",
         On(10) + "Tom yells," + Off(10) + " \"hey\"\r\n"},
        {"an ignored yell, unhighlighted", true, "Tom yells, \"hey\"\r\n",
         "You ignore a yell.\r\n"},
        {"an ignored scream", true, "Tom screams, \"hey\"\r\n", "You ignore a yell.\r\n"},
        {"our own yell is kept", true, "We yell, \"hey\"\r\n",
         On(10) + "We yell," + Off(10) + " \"hey\"\r\n"},
        {"highlights after speech", true, "Bob says, \"hi\"\r\n",
         On(10) + "Bob says," + Off(10) + " \"" + hi + "\"\r\n"},
        {"no first word", true, "  \t\r\n", "  \t\r\n"},
        {"under three bytes", true, "ab", "ab"},
        {"a name", true, "ab!", On(13) + "ab" + Off(13) + "!"},
        {"insertions into a full buffer are cut", false, "A says, \"hello",
         On(10) + "A says," + Off(10) + " \"hell", 16},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        PipelineRig rig;
        if (row.lists) {
            rig.highlights.StringHighlights.Add("hi", 12);
            rig.highlights.StringHighlights.Add("ignore", 12);
            rig.highlights.NameHighlights.Add("ab", 13);
            rig.options.IgnoreYells = true;
        }
        EXPECT_EQ(Filter(rig, row.line, row.size), row.filtered);
    }
}

TEST(LineFiltersTest, DelayLinesStartTheRoundTime)
{
    const struct {
        const char* line;
        std::int32_t ms;
    } rows[] = {{"[12 sec. delay]\r\n", 12000},   {"[90 sec. delay]\r\n", 60000},
                {"...wait 3 seconds.\r\n", 3000}, {"...wait", 0},
                {"...Wait 3 seconds.\r\n", 0},    {"[x sec. delay]\r\n", 0},
                {"[-5 sec. delay]\r\n", 60000},   {"\x82[12 sec. delay]\r\n", 0}};
    PipelineRig rig;
    // One buffer for all lines, so a short line lies in front of the bytes of the one before.
    char buffer[64];
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        StatusPanel fresh;
        LinePipeline local{{rig.options, rig.sessionLog, rig.highlights, rig.sounds, rig.windows,
                            rig.queue, rig.script, fresh, rig.words, rig.clock, nullptr}};
        std::snprintf(buffer, sizeof buffer, "%s", row.line);
        local.FilterLine(buffer, sizeof buffer);
        EXPECT_EQ(fresh.RT.GetMax(), row.ms);
        EXPECT_EQ(fresh.RT.IsCounting(), row.ms != 0);
    }
}

TEST(LineFiltersTest, ExitListsSetTheCompassAndOtherLinesLeaveIt)
{
    const struct {
        const char* line;
        std::uint32_t masks;
    } rows[] = {{"\"Obvious\" exits: \"north\", up\r\n", 0x00000201},
                {"Exits: south\r\n", 0x00000201},
                {"Obvious exits south\r\n", 0x00000201},
                // A colour in front of the first word hides the list, as it hides a delay.
                {"\x8A"
                 "Obvious exits: west\r\n",
                 0x00000201},
                {"Obvious exits: north, southeast*, up\r\n", 0x00080209},
                {"obvious exits: NorthEast, west.\r\n", 0x00000042},
                {"Obvious exits: out, down, southwest*\r\n", 0x00200520},
                {"Obvious exits: none\r\n", 0}};
    PipelineRig rig;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        Filter(rig, row.line);
        EXPECT_EQ(rig.panel.Compass.LastMasks(), row.masks);
        if (row.masks == 0x00200520) {
            EXPECT_EQ(rig.panel.Compass.Zone(5), EXIT_SPECIAL);
            EXPECT_EQ(rig.panel.Compass.Zone(10), EXIT_OPEN);
        }
    }
    EXPECT_EQ(rig.panel.Compass.Zone(0), EXIT_NONE);
}

} // namespace
} // namespace steward::testing
