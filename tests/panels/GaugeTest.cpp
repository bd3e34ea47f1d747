#include "panels/Gauge.h"
#include "panels/CompassState.h"
#include "panels/PanelStates.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

class RecordingTimer : public GaugeTimer {
  public:
    void StartTimer(Gauge&, int periodMs) override
    {
        events.push_back("start " + std::to_string(periodMs));
    }
    void StopTimer(Gauge&) override { events.push_back("stop"); }
    std::vector<std::string> events;
};

class RecordingListener : public CountdownListener {
  public:
    void CountdownDone(Gauge& gauge) override { done.push_back(&gauge); }
    std::vector<Gauge*> done;
};

std::string TextOf(const Gauge& gauge)
{
    char text[GAUGE_TEXT_SIZE];
    return gauge.BuildText(text, sizeof text);
}

constexpr std::uint32_t BoxFlags = GF_BOXES | GF_SHOWVALUE | GF_SHOWMAX;
constexpr std::uint32_t TimeFlags = GF_SHOWVALUE | GF_HIDEATMIN | GF_NOLABELPAINT | GF_NOTICKS;

TEST(GaugeTextTest, ShowsTheChosenNumbers)
{
    Gauge gauge("Hp:", BoxFlags, true, {});
    EXPECT_EQ(TextOf(gauge), "0/0");
    gauge.SetMax(100);
    gauge.SetValue(45);
    EXPECT_EQ(TextOf(gauge), "45/100");
    gauge.SetFlags(GF_SHOWVALUE | GF_SHOWMIN | GF_SHOWMAX);
    gauge.SetMin(-5);
    EXPECT_EQ(TextOf(gauge), "45/-5/100");
    gauge.SetFlags(GF_SHOWVALUE | GF_CUSTOMTEXT);
    gauge.SetText("custom");
    EXPECT_EQ(TextOf(gauge), "custom");
    gauge.SetFlags(GF_SHOWVALUE | GF_NOTEXT);
    EXPECT_EQ(TextOf(gauge), "");
}

TEST(GaugeTextTest, SecondsTruncateAndHideAtMinimum)
{
    Gauge gauge("RT:", TimeFlags | GF_SECONDS, false, {});
    gauge.SetMax(5000);
    gauge.SetValue(2999);
    EXPECT_EQ(TextOf(gauge), "2");
    gauge.SetValue(0);
    EXPECT_EQ(TextOf(gauge), "");
}

TEST(GaugeTextTest, LongCustomTextIsCut)
{
    Gauge gauge("Hp:", GF_CUSTOMTEXT, true, {});
    gauge.SetText(std::string(500, 'x').c_str());
    EXPECT_EQ(std::string(gauge.Text()).size(), GAUGE_CUSTOM_TEXT_SIZE - 1);
}

TEST(GaugeGeometryTest, BarLengthFollowsTheValue)
{
    Gauge wide("Hp:", BoxFlags, true, {});
    const Rect client{0, 0, 60, 10};
    wide.SetMax(100);
    const struct {
        std::int32_t value;
        int right;
    } cases[] = {{30, 18}, {1, 0}, {0, 0}, {100, 60}, {150, 60}, {-5, 0}};
    for (const auto& c : cases) {
        wide.SetValue(c.value);
        EXPECT_EQ(wide.BarRect(client).right, c.right) << c.value;
    }
}

TEST(GaugeGeometryTest, UprightBarGrowsUpwards)
{
    Gauge upright("RT:", TimeFlags, false, {});
    upright.SetMax(4000);
    upright.SetValue(1000);
    const Rect bar = upright.BarRect({0, 0, 10, 40});
    EXPECT_EQ(bar.top, 30);
    EXPECT_EQ(bar.bottom, 40);
}

TEST(GaugeGeometryTest, EqualEndsFillWithoutDividing)
{
    Gauge gauge("Hp:", BoxFlags, true, {});
    gauge.SetMin(5);
    gauge.SetMax(5);
    gauge.SetValue(6);
    EXPECT_EQ(gauge.BarRect({0, 0, 60, 10}).right, 60);
}

TEST(GaugeGeometryTest, TicksAtTheQuartersWhileAboveMinimum)
{
    Gauge gauge("Hp:", BoxFlags, true, {});
    gauge.SetMax(100);
    EXPECT_FALSE(gauge.HasTicks());
    gauge.SetValue(1);
    EXPECT_TRUE(gauge.HasTicks());
    int at[3];
    gauge.TickPositions({0, 0, 60, 10}, at);
    EXPECT_EQ(at[0], 15);
    EXPECT_EQ(at[1], 30);
    EXPECT_EQ(at[2], 45);
    gauge.SetFlags(BoxFlags | GF_NOTICKS);
    EXPECT_FALSE(gauge.HasTicks());
}

TEST(GaugeCountdownTest, CountsDownBySecondsAndTellsTheListener)
{
    RecordingTimer timer;
    RecordingListener listener;
    Gauge gauge("RT:", TimeFlags, false, {});
    gauge.SetTimer(&timer);
    gauge.SetMax(3000);
    gauge.StartCountdown(&listener);
    std::vector<std::string> texts{TextOf(gauge)};
    for (int i = 0; i < 3; ++i) {
        gauge.Tick();
        texts.push_back(TextOf(gauge));
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"3", "2", "1", ""}));
    EXPECT_EQ(listener.done, std::vector<Gauge*>{&gauge});
    EXPECT_EQ(timer.events, (std::vector<std::string>{"start 1000", "stop"}));
    EXPECT_FALSE(gauge.IsCounting());
    EXPECT_TRUE(gauge.GetFlags() & GF_SECONDS);
}

TEST(GaugeCountdownTest, ANewCountdownReplacesTheRunningOne)
{
    RecordingTimer timer;
    Gauge gauge("RT:", TimeFlags, false, {});
    gauge.SetTimer(&timer);
    gauge.SetMax(5000);
    gauge.StartCountdown(nullptr);
    gauge.Tick();
    gauge.SetMax(2000);
    gauge.StartCountdown(nullptr);
    EXPECT_EQ(gauge.GetValue(), 2000);
    EXPECT_EQ(timer.events, (std::vector<std::string>{"start 1000", "stop", "start 1000"}));
}

TEST(GaugeCountdownTest, StopSetsTheMinimumWithoutTelling)
{
    RecordingTimer timer;
    RecordingListener listener;
    Gauge gauge("RT:", TimeFlags, false, {});
    gauge.SetTimer(&timer);
    gauge.SetMax(5000);
    gauge.StartCountdown(&listener);
    gauge.StopCountdown(&listener);
    EXPECT_EQ(gauge.GetValue(), 0);
    EXPECT_TRUE(listener.done.empty());
    EXPECT_FALSE(gauge.IsCounting());
}

TEST(CompassStateTest, SetExitsLightsZonesFromBothMasks)
{
    CompassState compass;
    compass.SetExits(0x00080209);
    EXPECT_EQ(compass.Zone(0), EXIT_OPEN);
    EXPECT_EQ(compass.Zone(3), EXIT_SPECIAL);
    EXPECT_EQ(compass.Zone(9), EXIT_OPEN);
    EXPECT_EQ(compass.Zone(1), EXIT_NONE);
    compass.SetExits(0x00400000);
    for (std::size_t zone = 0; zone < COMPASS_ZONES; ++zone)
        EXPECT_EQ(compass.Zone(zone), EXIT_NONE) << "a special bit alone lights nothing";
}

TEST(FigureStateTest, PicksBaseAndOverlays)
{
    FigureState figure;
    EXPECT_EQ(figure.BaseBitmap(), FIGURE_BITMAP_STANDING);
    const struct {
        std::uint32_t state;
        FigureBitmap base;
        std::size_t overlays;
    } cases[] = {
        {2, FIGURE_BITMAP_SITTING, 0},        {4, FIGURE_BITMAP_LYING, 0},
        {8, FIGURE_BITMAP_STANDING, 1},       {0x100 | 0x8, FIGURE_BITMAP_GRAVE, 0},
        {0x40000, FIGURE_BITMAP_KNEELING, 0}, {0x80000 | 0x40 | 0x4, FIGURE_BITMAP_LYING, 2}};
    for (const auto& c : cases) {
        figure.SetState(c.state);
        FigureBitmap overlays[4];
        EXPECT_EQ(figure.BaseBitmap(), c.base) << c.state;
        EXPECT_EQ(figure.Overlays(overlays), c.overlays) << c.state;
    }
}

} // namespace
} // namespace steward
