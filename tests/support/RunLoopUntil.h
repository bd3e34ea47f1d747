#pragma once

#include <QEventLoop>
#include <QObject>
#include <QTimer>

namespace steward::testing {

// Runs an event loop as the program's own does, turning with no pause, until `done` or the
// limit; a test's waiting helpers sleep between turns, which hides per-turn behaviour.
template <typename Done> bool RunLoopUntil(Done done, int limitMs)
{
    QEventLoop loop;
    QTimer check;
    QObject::connect(&check, &QTimer::timeout, &loop, [&] {
        if (done())
            loop.quit();
    });
    check.start(1);
    QTimer::singleShot(limitMs, &loop, &QEventLoop::quit);
    loop.exec();
    return done();
}

} // namespace steward::testing
