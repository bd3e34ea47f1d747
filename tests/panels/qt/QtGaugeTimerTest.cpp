#include "panels/qt/QtGaugeTimer.h"
#include "panels/StatusPanel.h"

#include <QTest>
#include <gtest/gtest.h>

#include <vector>

namespace steward {
namespace {

constexpr int WAIT_MS = 10000;

class RecordingListener : public CountdownListener {
  public:
    void CountdownDone(Gauge& gauge) override { done.push_back(&gauge); }
    std::vector<Gauge*> done;
};

TEST(QtGaugeTimer, CountdownsRunBySecondsEachOnItsOwnTimerUntilDoneOrStopped)
{
    QtGaugeTimer timer;
    RecordingListener listener;
    Gauge shortOne("RT:", StatusPanel::TimeGaugeFlags, false, {});
    Gauge longOne("Pause:", StatusPanel::TimeGaugeFlags, false, {});
    Gauge stopped("RT:", StatusPanel::TimeGaugeFlags, false, {});
    for (Gauge* gauge : {&shortOne, &longOne, &stopped})
        gauge->SetTimer(&timer);
    shortOne.SetMax(2000);
    longOne.SetMax(3000);
    stopped.SetMax(1000);
    shortOne.StartCountdown(&listener);
    longOne.StartCountdown(&listener);
    // A restart replaces the running timer instead of adding a second one.
    longOne.StartCountdown(&listener);
    stopped.StartCountdown(&listener);
    stopped.StopCountdown(&listener);

    ASSERT_TRUE(QTest::qWaitFor([&] { return !listener.done.empty(); }, WAIT_MS));
    EXPECT_EQ(listener.done, std::vector<Gauge*>{&shortOne});
    EXPECT_EQ(shortOne.GetValue(), 0);
    EXPECT_FALSE(shortOne.IsCounting());
    EXPECT_GE(longOne.GetValue(), 1000);
    EXPECT_TRUE(longOne.IsCounting());

    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.done.size() == 2; }, WAIT_MS));
    EXPECT_EQ(listener.done.back(), &longOne);
    QTest::qWait(1200);
    EXPECT_EQ(listener.done.size(), 2u) << "a finished or stopped countdown ticks no more";
    EXPECT_EQ(stopped.GetValue(), 0);
}

} // namespace
} // namespace steward
