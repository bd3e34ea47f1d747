#include "session/qt/QtKeyboardHost.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <gtest/gtest.h>

#include <climits>

namespace steward {
namespace {

// A count below one waits one second and ends by itself, long before the guard would end it.
TEST(PumpFor, ACountBelowOneWaitsOneSecond)
{
    for (int count : {0, -1, INT_MIN}) {
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
        PumpFor(count);
        EXPECT_FALSE(guardEnded) << count;
        EXPECT_GE(elapsed.elapsed(), 900) << count;
    }
}

} // namespace
} // namespace steward
