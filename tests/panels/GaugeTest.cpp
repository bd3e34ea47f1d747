#include "panels/Gauge.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

using Texts = std::vector<std::string>;

class RecordingTimer : public GaugeTimer {
  public:
    void StartTimer(Gauge&, int periodMs) override
    {
        events.push_back("start " + std::to_string(periodMs));
    }
    void StopTimer(Gauge&) override { events.push_back("stop"); }
    Texts events;
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

TEST(GaugeTextTest, ShowsTheChosenNumbersOrTheCutCustomText)
{
    Gauge gauge("Hp:", BoxFlags, true, {});
    gauge.SetMax(100);
    gauge.SetValue(45);
    EXPECT_EQ(TextOf(gauge), "45/100");
    gauge.SetFlags(GF_SHOWVALUE | GF_SHOWMIN | GF_SHOWMAX);
    gauge.SetMin(-5);
    EXPECT_EQ(TextOf(gauge), "45/-5/100");
    gauge.SetFlags(GF_SHOWVALUE | GF_CUSTOMTEXT);
    gauge.SetText("custom");
    EXPECT_EQ(TextOf(gauge), "custom");
    gauge.SetText(std::string(500, 'x').c_str());
    EXPECT_EQ(std::string(gauge.Text()).size(), GAUGE_CUSTOM_TEXT_SIZE - 1);
    gauge.SetFlags(GF_SHOWVALUE | GF_NOTEXT);
    EXPECT_EQ(TextOf(gauge), "");

    Gauge seconds("RT:", TimeFlags | GF_SECONDS, false, {});
    seconds.SetMax(5000);
    seconds.SetValue(2999);
    EXPECT_EQ(TextOf(seconds), "2");
    seconds.SetValue(0);
    EXPECT_EQ(TextOf(seconds), "");
    char untouched[] = "x";
    EXPECT_STREQ(gauge.BuildText(untouched, 0), "x") << "no room: nothing written";
}

TEST(GaugeGeometryTest, AnUprightBarGrowsUpwardsAndTicksShowWhileAboveMinimum)
{
    Gauge upright("RT:", TimeFlags, false, {});
    upright.SetMax(4000);
    upright.SetValue(1000);
    const Rect bar = upright.BarRect({0, 0, 10, 40});
    EXPECT_EQ(bar.top, 30);
    EXPECT_EQ(bar.bottom, 40);
    upright.SetValue(100);
    EXPECT_EQ(upright.BarRect({0, 0, 10, 40}).top, 39) << "one pixel is drawn";
    upright.SetValue(0);
    const Rect empty = upright.BarRect({0, 0, 10, 40});
    EXPECT_EQ(empty.right, empty.left) << "a bar at its minimum has no width";

    Gauge gauge("Hp:", BoxFlags, true, {});
    gauge.SetMax(100);
    gauge.SetValue(1);
    EXPECT_TRUE(gauge.HasTicks());
    gauge.SetFlags(BoxFlags | GF_NOTICKS);
    EXPECT_FALSE(gauge.HasTicks());
    // Three ticks at the quarters of the long side, and nothing written behind them.
    int ticks[4] = {0, 0, 0, -1};
    gauge.TickPositions({2, 0, 62, 16}, ticks);
    EXPECT_EQ(std::vector<int>(ticks, ticks + 4), (std::vector<int>{17, 32, 47, -1}));
}

class RecordingView : public GaugeView {
  public:
    void Repaint(bool erase) override { erases.push_back(erase); }
    std::vector<bool> erases;
};

TEST(GaugeViewTest, ANewValueRepaintsAndNewColoursEraseFirst)
{
    RecordingView view;
    Gauge gauge("Hp:", BoxFlags, true, {});
    gauge.SetView(&view);
    gauge.SetValue(5);
    gauge.SetColors({1, 2, 3});
    gauge.SetText("x");
    EXPECT_EQ(view.erases, (std::vector<bool>{false, true, false}));
}

TEST(GaugeCountdownTest, CountsDownBySecondsRestartsAndStops)
{
    RecordingTimer timer;
    RecordingListener listener;
    Gauge gauge("RT:", TimeFlags, false, {});
    gauge.SetTimer(&timer);
    gauge.SetMax(3000);
    gauge.StartCountdown(&listener);
    Texts texts{TextOf(gauge)};
    for (int i = 0; i < 3; ++i) {
        gauge.Tick();
        texts.push_back(TextOf(gauge));
    }
    EXPECT_EQ(texts, (Texts{"3", "2", "1", ""}));
    EXPECT_EQ(listener.done, std::vector<Gauge*>{&gauge});
    EXPECT_EQ(timer.events, (Texts{"start 1000", "stop"}));

    // A new countdown replaces the running one; a stop sets the minimum without telling.
    timer.events.clear();
    gauge.SetMax(5000);
    gauge.StartCountdown(&listener);
    gauge.Tick();
    gauge.SetMax(2000);
    gauge.StartCountdown(&listener);
    EXPECT_EQ(gauge.GetValue(), 2000);
    gauge.StopCountdown(&listener);
    EXPECT_EQ(timer.events, (Texts{"start 1000", "stop", "start 1000", "stop"}));
    EXPECT_EQ(gauge.GetValue(), 0);
    EXPECT_EQ(listener.done.size(), 1u);
    gauge.StopCountdown(&listener);
    EXPECT_EQ(timer.events.size(), 4u) << "a stopped gauge has no timer to stop";
}

} // namespace
} // namespace steward
