#pragma once

#include "analysis/LocalClock.h"

#include <ctime>

namespace steward {

// The hour and minute of the system's local time. Asked for every arrival line, so it reads
// the time zone once (localtime_r), not at every call as QTime::currentTime does.
class QtLocalClock : public LocalClock {
  public:
    TimeOfDay Now() const override
    {
        const std::time_t now = std::time(nullptr);
        std::tm local{};
        if (!localtime_r(&now, &local))
            return {};
        return {local.tm_hour, local.tm_min};
    }
};

} // namespace steward
