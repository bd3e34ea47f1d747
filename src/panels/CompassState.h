#pragma once

#include "panels/PanelStates.h"

#include <cstddef>
#include <cstdint>

namespace steward {

constexpr std::size_t COMPASS_ZONES = 11;

enum ExitState : std::uint8_t { EXIT_NONE = 0, EXIT_OPEN = 1, EXIT_SPECIAL = 2 };

// The lit zones of the compass; zone i stands for exit bit 1 << i.
class CompassState {
  public:
    void SetView(PanelView* view) { view_ = view; }
    // CM_SETEXITS: low 16 bits the exits, high 16 bits the special ones among them.
    void SetExits(std::uint32_t masks);
    ExitState Zone(std::size_t index) const
    {
        return index < COMPASS_ZONES ? ExitStates[index] : EXIT_NONE;
    }
    std::uint32_t LastMasks() const { return lastMasks_; }
    // The lit exits in the order of the zones, such as "north, up (special)", or "no exits";
    // cut to size.
    void ExitsText(char* out, std::size_t size) const;

  private:
    ExitState ExitStates[COMPASS_ZONES] = {};
    std::uint32_t lastMasks_ = 0;
    PanelView* view_ = nullptr;
};

} // namespace steward
