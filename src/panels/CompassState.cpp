#include "panels/CompassState.h"

namespace steward {

void CompassState::SetExits(std::uint32_t masks)
{
    const std::uint32_t exits = masks & 0xFFFF;
    const std::uint32_t special = masks >> 16;
    for (std::size_t zone = 0; zone < COMPASS_ZONES; ++zone) {
        const std::uint32_t bit = 1u << zone;
        ExitStates[zone] = !(exits & bit) ? EXIT_NONE : (special & bit) ? EXIT_SPECIAL : EXIT_OPEN;
    }
    lastMasks_ = masks;
    if (view_)
        view_->Repaint();
}

} // namespace steward
