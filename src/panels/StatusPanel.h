#pragma once

#include "panels/CompassState.h"
#include "panels/Gauge.h"
#include "panels/PanelStates.h"

namespace steward {

// The controls of the status panel that the line analysis feeds, with their creation flags.
struct StatusPanel {
    static constexpr std::uint32_t BoxGaugeFlags = GF_BOXES | GF_SHOWVALUE | GF_SHOWMAX;
    static constexpr std::uint32_t TimeGaugeFlags =
        GF_SHOWVALUE | GF_HIDEATMIN | GF_NOLABELPAINT | GF_NOTICKS;

    Gauge Hp{"Hp:", BoxGaugeFlags, true, {}};
    Gauge Ftg{"Ftg:", BoxGaugeFlags, true, {}};
    Gauge Weight{"Weight:", BoxGaugeFlags, true, {}};
    Gauge Psi{"Psi:", BoxGaugeFlags, true, {}};
    Gauge Web{"Web:", BoxGaugeFlags, true, {}};
    Gauge RT{"RT:", TimeGaugeFlags, false, {}};
    Gauge Pause{"Pause:", TimeGaugeFlags, false, {}};
    PanelText Silver;
    PanelText Gold;
    FigureState BodyFigure;
    IconState WeaponIcon;
    IconState ShieldIcon;
    CompassState Compass;
};

} // namespace steward
