#pragma once

namespace steward {

// The local time of day, for the arrival texts.
struct TimeOfDay {
    int Hour = 0;
    int Minute = 0;
};

class LocalClock {
  public:
    virtual ~LocalClock() = default;
    virtual TimeOfDay Now() const = 0;
};

} // namespace steward
