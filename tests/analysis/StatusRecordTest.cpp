#include "PipelineFixture.h"

namespace steward::testing {
namespace {

// Builds a record: fields in order, then filler up to the closing ESC and the line end.
std::string Record(const std::string& fields, std::size_t length = 70, const char* end = "\r\n")
{
    std::string text = "\x1B\x1B" + fields;
    text.resize(length - 3, '0');
    text += '\x1B';
    text += end;
    return text;
}

// Prompt ">", Hp 45/100, Ftg 7/30, Psi 1/2, Web 3/4, Silver 255, Gold 4096, Weight 10/200,
// two unread bytes, sitting, weapon held, no shield, round time field 06.
const std::string Fields = ">002D0064"
                           "0007001E"
                           "00010002"
                           "00030004"
                           "000000FF00001000"
                           "000A00C8"
                           "xx110"
                           "06";

struct HexCase {
    const char* text;
    int n;
    std::uint32_t value;
};

TEST(ReadHexFieldTest, ReadsDigitsAndDropsNegativeNumbers)
{
    const HexCase cases[] = {
        {"7FFF", 4, 32767},      {"8000", 4, 0},     {"00fF", 4, 255},
        {"12G4", 4, 0x1204},     {"7F", 2, 127},     {"80", 2, 0},
        {"3D", 2, 61},           {"80000000", 8, 0}, {"7FFFFFFF", 8, 0x7FFFFFFF},
        {"0000abcd", 8, 0xABCD},
    };
    for (const HexCase& c : cases)
        EXPECT_EQ(ReadHexField(c.text, c.n), c.value) << c.text;
}

TEST_F(PipelineTest, AWellFormedRecordFeedsEveryPanel)
{
    pipeline.ProcessGameLine(Record(Fields).c_str());
    EXPECT_EQ(panel.Hp.GetValue(), 45);
    EXPECT_EQ(panel.Hp.GetMax(), 100);
    EXPECT_EQ(panel.Ftg.GetValue(), 7);
    EXPECT_EQ(panel.Ftg.GetMax(), 30);
    EXPECT_EQ(panel.Psi.GetMax(), 2);
    EXPECT_EQ(panel.Web.GetValue(), 3);
    EXPECT_STREQ(panel.Silver.Text(), "255");
    EXPECT_STREQ(panel.Gold.Text(), "4096");
    EXPECT_EQ(panel.Weight.GetValue(), 10);
    EXPECT_EQ(panel.Weight.GetMax(), 200);
    EXPECT_EQ(panel.BodyFigure.GetState(), 2u);
    EXPECT_TRUE(panel.WeaponIcon.Held());
    EXPECT_FALSE(panel.ShieldIcon.Held());
    EXPECT_TRUE(panel.RT.IsCounting());
    EXPECT_EQ(panel.RT.GetValue(), 5000);
}

TEST_F(PipelineTest, RecordLengthDecidesAcceptance)
{
    struct Case {
        std::size_t length;
        const char* end;
        bool accepted;
    } cases[] = {{70, "\r\n", true}, {69, "\r\n", false}, {100, "\r\n", true}, {70, "ab", true}};
    for (const Case& c : cases) {
        panel.Hp.SetMax(0);
        pipeline.Prompt().PromptPending = false;
        pipeline.ProcessGameLine(Record(Fields, c.length, c.end).c_str());
        EXPECT_EQ(panel.Hp.GetMax(), c.accepted ? 100 : 0) << c.length;
        EXPECT_EQ(pipeline.Prompt().PromptPending, c.accepted) << c.length;
    }
}

TEST_F(PipelineTest, ARecordWithoutTheClosingEscIsDroppedSilently)
{
    std::string text = Record(Fields);
    text[67] = '0';
    script.ScriptWait = WAIT_PROMPT;
    pipeline.ProcessGameLine(text.c_str());
    EXPECT_EQ(In(Game()), "");
    EXPECT_EQ(Logged(), "");
    EXPECT_EQ(script.ScriptWait, WAIT_PROMPT);
    EXPECT_TRUE(pipeline.StatusModeWasRequested());
}

TEST_F(PipelineTest, TheRecordPrintsAndLogsItsPrompt)
{
    script.ScriptWait = WAIT_PROMPT;
    std::string line = "\x82";
    line += Record(Fields);
    pipeline.ProcessGameLine(line.c_str());
    EXPECT_EQ(In(Game()), ">");
    EXPECT_EQ(Logged(), ">");
    EXPECT_TRUE(pipeline.Prompt().PromptPending);
    EXPECT_EQ(script.ScriptWait, WAIT_NONE);
}

TEST_F(PipelineTest, TheLongPromptShowsHitPointsAndFatigue)
{
    options.ShowStatusPrompt = true;
    highlights.StringHighlights.Add("ftg", 12);
    pipeline.ProcessGameLine(Record(Fields).c_str());
    EXPECT_EQ(In(Game()), "[45/100 hp, 7/30 " + On(12) + "ftg" + Off(12) + "] >")
        << "the prompt runs through the filters";
}

TEST_F(PipelineTest, PostureBytesMapToFigureStates)
{
    const struct {
        char posture;
        std::uint32_t state;
    } cases[] = {{'0', 1}, {'1', 2}, {'2', 4}, {'3', 3}, {'8', 8}};
    for (const auto& c : cases) {
        std::string fields = Fields;
        fields[59] = c.posture;
        pipeline.ProcessGameLine(Record(fields).c_str());
        EXPECT_EQ(panel.BodyFigure.GetState(), c.state) << c.posture;
    }
}

TEST_F(PipelineTest, RoundTimeFieldHoldsSecondsPlusOneCappedAtSixty)
{
    const struct {
        const char* field;
        bool starts;
        std::int32_t ms;
    } cases[] = {{"00", false, 0},    {"01", false, 0},    {"02", true, 1000},
                 {"3D", true, 60000}, {"7F", true, 60000}, {"80", false, 0}};
    for (const auto& c : cases) {
        StatusPanel fresh;
        LinePipeline local{{options, sessionLog, highlights, sounds, windows, queue, script, fresh,
                            words, clock, nullptr}};
        std::string fields = Fields;
        fields.replace(62, 2, c.field);
        local.ProcessGameLine(Record(fields).c_str());
        EXPECT_EQ(fresh.RT.IsCounting(), c.starts) << c.field;
        EXPECT_EQ(fresh.RT.GetMax(), c.ms) << c.field;
    }
}

TEST_F(PipelineTest, NegativeMoneyReadsAsZero)
{
    std::string fields = Fields;
    fields.replace(33, 8, "80000000");
    pipeline.ProcessGameLine(Record(fields).c_str());
    EXPECT_STREQ(panel.Silver.Text(), "0");
}

} // namespace
} // namespace steward::testing
