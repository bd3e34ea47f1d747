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

    // White text on the frame's grey, each gauge with its own bar colour.
    static constexpr std::uint32_t GaugeText = 0xFFFFFF;
    static constexpr std::uint32_t GaugeBack = 0x5F5F5F;

    Gauge Hp{"Hp:", BoxGaugeFlags, true, {GaugeText, 0x5ADC5A, GaugeBack}};
    Gauge Ftg{"Ftg:", BoxGaugeFlags, true, {GaugeText, 0x6E6EE6, GaugeBack}};
    Gauge Weight{"Weight:", BoxGaugeFlags, true, {GaugeText, 0x82F0DC, GaugeBack}};
    Gauge Psi{"Psi:", BoxGaugeFlags, true, {GaugeText, 0xF0A0C8, GaugeBack}};
    Gauge Web{"Web:", BoxGaugeFlags, true, {GaugeText, 0x558CE6, GaugeBack}};
    Gauge RT{"RT:", TimeGaugeFlags, false, {GaugeText, 0x5A5AFA, GaugeBack}};
    Gauge Pause{"Pause:", TimeGaugeFlags, false, {GaugeText, 0xBE78C8, GaugeBack}};
    PanelText Silver;
    PanelText Gold;
    FigureState BodyFigure;
    IconState WeaponIcon;
    IconState ShieldIcon;
    CompassState Compass;
};

} // namespace steward
