#include "PipelineFixture.h"

#include <functional>

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
    pipeline.ProcessGameLine(("\x82" + StatusLine(Fields)).c_str());
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
    EXPECT_EQ(In(Game()), ">");
    EXPECT_EQ(Logged(), ">");
    EXPECT_TRUE(pipeline.Prompt().PromptPending);
}

// A record is taken when it is at least 70 bytes long and its closing ESC stands in place.
TEST(StatusRecordTest, BadRecordsAreDroppedSilently)
{
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
        EXPECT_EQ(rig.panel.Hp.GetMax(), row.taken ? 100 : 0);
        EXPECT_EQ(rig.pipeline.Prompt().PromptPending, row.taken);
        EXPECT_EQ(rig.In(rig.Game()), row.taken ? ">" : "");
        EXPECT_TRUE(rig.pipeline.StatusModeWasRequested());
    }
}

TEST(StatusRecordTest, FieldsMapToThePanels)
{
    using Check = std::function<void(const StatusPanel&)>;
    const auto Figure = [](std::uint32_t state) {
        return [=](const StatusPanel& panel) { EXPECT_EQ(panel.BodyFigure.GetState(), state); };
    };
    const auto RoundTime = [](std::int32_t ms) {
        return [=](const StatusPanel& panel) {
            EXPECT_EQ(panel.RT.IsCounting(), ms != 0);
            EXPECT_EQ(panel.RT.GetMax(), ms);
        };
    };
    const struct {
        std::string fields;
        Check check;
    } rows[] = {
        {With(59, "0"), Figure(1)},
        {With(59, "1"), Figure(2)},
        {With(59, "2"), Figure(4)},
        {With(59, "3"), Figure(3)},
        {With(59, "8"), Figure(8)},
        {With(62, "00"), RoundTime(0)},
        {With(62, "01"), RoundTime(0)},
        {With(62, "02"), RoundTime(1000)},
        {With(62, "3D"), RoundTime(60000)},
        {With(62, "7F"), RoundTime(60000)},
        {With(62, "80"), RoundTime(0)},
        {With(33, "80000000"),
         [](const StatusPanel& panel) { EXPECT_STREQ(panel.Silver.Text(), "0"); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fields);
        PipelineRig rig;
        rig.pipeline.ProcessGameLine(StatusLine(row.fields).c_str());
        row.check(rig.panel);
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
