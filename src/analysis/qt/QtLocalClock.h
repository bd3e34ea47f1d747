#pragma once

#include "analysis/LocalClock.h"

#include <QTime>

namespace steward {

// The hour and minute of the system's local time.
class QtLocalClock : public LocalClock {
  public:
    TimeOfDay Now() const override
    {
        const QTime now = QTime::currentTime();
        return {now.hour(), now.minute()};
    }
};

} // namespace steward
