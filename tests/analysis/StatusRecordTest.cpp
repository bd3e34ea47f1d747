#include "PipelineFixture.h"

namespace steward::testing {
namespace {

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

const std::string FULL = "45/100 7/30 1/2 3/4 10/200 rt 5000/5000+ $255/4096 figure 2 weapon";

std::string With(std::size_t at, const std::string& field)
{
    std::string fields = Fields;
    return fields.replace(at, field.size(), field);
}

TEST(ReadHexFieldTest, ReadsDigitsAndDropsNegativeNumbers)
{
    const struct {
        const char* text;
        int n;
        std::uint32_t value;
    } rows[] = {
        {"7FFF", 4, 32767}, {"8000", 4, 0}, {"00fF", 4, 255},   {"12G4", 4, 0x1204},
        {"7F", 2, 127},     {"80", 2, 0},   {"80000000", 8, 0}, {"7FFFFFFF", 8, 0x7FFFFFFF},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ReadHexField(row.text, row.n), row.value) << row.text;
}

TEST_F(PipelineTest, AWellFormedRecordFeedsEveryPanelAndPrintsAndLogsItsPrompt)
{
    const std::string empty = PanelText(panel);
    pipeline.ProcessGameLine(("\x82" + StatusLine(Fields)).c_str());
    EXPECT_EQ(PanelText(panel), FULL);
    EXPECT_EQ(In(Game()), ">");
    EXPECT_EQ(Logged(), ">");
    EXPECT_TRUE(pipeline.Prompt().PromptPending);

    // A record is taken when it is at least 70 bytes long and its closing ESC stands in place.
    std::string noEsc = StatusLine(Fields);
    noEsc[67] = '0';
    const struct {
        std::string line;
        bool taken;
    } rows[] = {{StatusLine(Fields, 70), true},
                {StatusLine(Fields, 69), false},
                {StatusLine(Fields, 100), true},
                {StatusLine(Fields, 70, "ab"), true},
                {noEsc, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        PipelineRig rig;
        rig.pipeline.ProcessGameLine(row.line.c_str());
        EXPECT_EQ(PanelText(rig.panel), row.taken ? FULL : empty);
        EXPECT_EQ(rig.pipeline.Prompt().PromptPending, row.taken);
        EXPECT_EQ(rig.In(rig.Game()), row.taken ? ">" : "");
        EXPECT_TRUE(rig.pipeline.StatusModeWasRequested());
    }
}

// The posture field gives the figure's state; the round time field counts seconds from 2 on.
TEST(StatusRecordTest, FieldsMapToThePanels)
{
    const struct {
        std::string fields;
        std::string shown;
    } rows[] = {
        {With(59, "0"), "figure 1 weapon"},  {With(59, "1"), "figure 2 weapon"},
        {With(59, "2"), "figure 4 weapon"},  {With(59, "3"), "figure 3 weapon"},
        {With(59, "8"), "figure 8 weapon"},  {With(62, "00"), "rt 0/0 "},
        {With(62, "01"), "rt 0/0 "},         {With(62, "02"), "rt 1000/1000+"},
        {With(62, "3D"), "rt 60000/60000+"}, {With(62, "7F"), "rt 60000/60000+"},
        {With(62, "80"), "rt 0/0 "},         {With(33, "80000000"), "$0/4096"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fields);
        PipelineRig rig;
        rig.pipeline.ProcessGameLine(StatusLine(row.fields).c_str());
        EXPECT_NE(PanelText(rig.panel).find(row.shown), std::string::npos) << PanelText(rig.panel);
    }
}

TEST_F(PipelineTest, TheLongPromptShowsHitPointsAndFatigueThroughTheFilters)
{
    options.ShowStatusPrompt = true;
    highlights.StringHighlights.Add("ftg", 12);
    pipeline.ProcessGameLine(StatusLine(Fields).c_str());
    EXPECT_EQ(In(Game()), "[45/100 hp, 7/30 " + On(12) + "ftg" + Off(12) + "] >");
}

} // namespace
} // namespace steward::testing
