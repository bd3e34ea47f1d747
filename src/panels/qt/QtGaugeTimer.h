#pragma once

#include "panels/Gauge.h"

#include <QObject>

#include <vector>

namespace steward {

// Drives the countdowns of gauges with one Qt timer per counting gauge.
class QtGaugeTimer : public QObject, public GaugeTimer {
  public:
    ~QtGaugeTimer() override;

    void StartTimer(Gauge& gauge, int periodMs) override;
    void StopTimer(Gauge& gauge) override;

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    struct Running {
        int Id;
        Gauge* Target;
    };
    std::vector<Running> running_;
};

} // namespace steward
