#include "PipelineFixture.h"

namespace steward::testing {
namespace {

TEST_F(PipelineTest, VitalsLinesSetTheirGaugeAndAreSwallowed)
{
    const struct {
        const char* line;
        std::int32_t hp;
        std::int32_t hpMax;
        std::int32_t ftg;
        std::int32_t ftgMax;
    } cases[] = {
        {" ** Current hit points: 45 of 100\r\n", 45, 100, 0, 0},
        {" ** Current HIT points: 12 of 90\r\n", 12, 90, 0, 0},
        {" ** Current fatigue: 7 of 30\r\n", 0, 0, 7, 30},
        {" ** Current fatigue 7 of 30\r\n", 0, 0, 0, 0},
        {" ** Current mana: 7 of 30\r\n", 0, 0, 0, 0},
        {" ** Current \r\n", 0, 0, 0, 0},
        {" ** Current hit points:", 0, 0, 0, 0},
        {" ** Current \"fatigue:\" 7 of 30\r\n", 0, 0, 7, 30},
    };
    for (const auto& c : cases) {
        StatusPanel fresh;
        LinePipeline local{{options, sessionLog, highlights, sounds, windows, queue, script, fresh,
                            words, clock, nullptr}};
        local.ProcessGameLine(c.line);
        EXPECT_EQ(fresh.Hp.GetValue(), c.hp) << c.line;
        EXPECT_EQ(fresh.Hp.GetMax(), c.hpMax) << c.line;
        EXPECT_EQ(fresh.Ftg.GetValue(), c.ftg) << c.line;
        EXPECT_EQ(fresh.Ftg.GetMax(), c.ftgMax) << c.line;
    }
    EXPECT_EQ(In(Game()), "");
    std::string all;
    for (const auto& c : cases)
        all += c.line;
    EXPECT_EQ(Logged(), all);
}

TEST_F(PipelineTest, RecoveryLinesFillTheGaugeAndGainAMark)
{
    SetGaugeValues(panel.Hp, 0, 100, 10);
    SetGaugeValues(panel.Ftg, 0, 50, 10);
    pipeline.ProcessGameLine(" ** You are fully healed.\r\n");
    pipeline.ProcessGameLine(" ** You are fully rested.\r\n");
    EXPECT_EQ(panel.Hp.GetValue(), 100);
    EXPECT_EQ(panel.Ftg.GetValue(), 50);
    EXPECT_EQ(In(Game()), " ** You are fully healed.\n> ** You are fully rested.\n>");
    EXPECT_FALSE(pipeline.Prompt().PromptPending);
}

TEST_F(PipelineTest, HealedWinsOverAnArrivalOnTheSameLine)
{
    windows.ArrivalWindow = Arrival();
    pipeline.ProcessGameLine(" ** You are fully healed. Bo just arrived in the world.\r\n");
    EXPECT_EQ(In(Arrival()), "");
    EXPECT_EQ(In(Game()), " ** You are fully healed. Bo just arrived in the world.\n>");
}

TEST_F(PipelineTest, ArrivalsGoToTheArrivalWindowWithTheClock)
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
}

TEST_F(PipelineTest, ArrivalsWithoutTheWindowShowTheGameWordingTrimmed)
{
    pipeline.ProcessGameLine("\x82 ** Mara just arrived in the world.\r\n");
    EXPECT_EQ(In(Game()), "\x82 ** Mara just arrived in the world.\n");
}

TEST_F(PipelineTest, OnlyListedArrivalsShowsListedNamesOnly)
{
    options.OnlyListedArrivals = true;
    windows.ArrivalWindow = Arrival();
    pipeline.ProcessGameLine(" ** Mara just arrived in the world.\r\n");
    pipeline.ProcessGameLine(" ** Mara has left the world.\r\n");
    EXPECT_EQ(In(Arrival()) + In(Game()), "") << "an empty name list shows nothing";
    highlights.NameHighlights.Add("Mara", 14);
    pipeline.ProcessGameLine(" ** Mara just arrived in the world.\r\n");
    pipeline.ProcessGameLine(" ** Bo just arrived in the world.\r\n");
    EXPECT_EQ(In(Arrival()), "\n" + On(14) + "Mara" + Off(14) + " arrived at 5:30 pm.");
}

TEST_F(PipelineTest, OtherStarLinesAreShownAsTheyCame)
{
    pipeline.ProcessGameLine(" ** The server restarts soon.\r\n");
    EXPECT_EQ(In(Game()), " ** The server restarts soon.\n");
}

TEST_F(PipelineTest, LongNamesAreCutInsideTheirBuffers)
{
    windows.ArrivalWindow = Arrival();
    const std::string name(300, 'n');
    pipeline.ProcessGameLine((" ** " + name + " just arrived in the world.\r\n").c_str());
    // The built text fills its buffer; its leading carriage return is not stored.
    EXPECT_EQ(In(Arrival()), "\n" + std::string(STAR_TEXT_SIZE - 3, 'n'));
}

TEST(TrimLineEndTest, RemovesOnlyTrailingLineEnds)
{
    const char* const cases[][2] = {
        {"ab\r\n\r\n", "ab"}, {"a\rb\n", "a\rb"}, {"\r\n", ""}, {"", ""}};
    for (const auto& c : cases) {
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "%s", c[0]);
        TrimLineEnd(buffer);
        EXPECT_STREQ(buffer, c[1]);
    }
}

} // namespace
} // namespace steward::testing
