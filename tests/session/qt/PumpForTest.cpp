#include "session/qt/QtKeyboardHost.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <gtest/gtest.h>

#include <climits>

namespace steward {
namespace {

class PumpForTest : public ::testing::TestWithParam<int> {};

// A count below one waits one second and ends by itself, long before the guard would end it.
TEST_P(PumpForTest, ACountBelowOneWaitsOneSecond)
{
    bool guardEnded = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&] {
        guardEnded = true;
        QCoreApplication::exit(1);
    });
    guard.start(8000);
    QElapsedTimer elapsed;
    elapsed.start();
    PumpFor(GetParam());
    EXPECT_FALSE(guardEnded);
    EXPECT_GE(elapsed.elapsed(), 900);
}

INSTANTIATE_TEST_SUITE_P(Counts, PumpForTest, ::testing::Values(0, -1, INT_MIN),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return info.param == 0    ? std::string("Zero")
                                    : info.param == -1 ? std::string("MinusOne")
                                                       : std::string("Lowest");
                         });

} // namespace
} // namespace steward
