#include "config/ProfileHost.h"

namespace steward {

Gauge& GaugeFor(StatusPanel& panel, ProfileGauge gauge)
{
    Gauge* const gauges[PROFILE_GAUGE_COUNT] = {
        &panel.Hp, &panel.Ftg, &panel.Weight, &panel.Psi, &panel.Web, &panel.RT, &panel.Pause,
    };
    return *gauges[gauge];
}

} // namespace steward
