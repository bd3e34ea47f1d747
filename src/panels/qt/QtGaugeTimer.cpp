#include "panels/qt/QtGaugeTimer.h"

#include <QTimerEvent>

#include <algorithm>

namespace steward {

QtGaugeTimer::~QtGaugeTimer()
{
    for (const Running& running : running_)
        killTimer(running.Id);
}

void QtGaugeTimer::StartTimer(Gauge& gauge, int periodMs)
{
    StopTimer(gauge);
    running_.push_back({startTimer(periodMs), &gauge});
}

void QtGaugeTimer::StopTimer(Gauge& gauge)
{
    const auto found = std::find_if(running_.begin(), running_.end(),
                                    [&](const Running& r) { return r.Target == &gauge; });
    if (found == running_.end())
        return;
    killTimer(found->Id);
    running_.erase(found);
}

void QtGaugeTimer::timerEvent(QTimerEvent* event)
{
    const auto found = std::find_if(running_.begin(), running_.end(),
                                    [&](const Running& r) { return r.Id == event->timerId(); });
    // The tick may stop this very timer, so the entry is not used after it.
    if (found != running_.end())
        found->Target->Tick();
}

} // namespace steward
