#include "panels/CompassState.h"

#include "base/ByteText.h"

namespace steward {

namespace {

// The exit that each zone shows.
constexpr const char* ZONE_EXITS[COMPASS_ZONES] = {
    "north", "northeast", "east", "southeast", "south", "southwest",
    "west",  "northwest", "out",  "up",        "down",
};

} // namespace

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

void CompassState::ExitsText(char* out, std::size_t size) const
{
    CopyCut(out, size, "");
    for (std::size_t zone = 0; zone < COMPASS_ZONES; ++zone) {
        if (ExitStates[zone] == EXIT_NONE)
            continue;
        if (out[0])
            AppendCut(out, size, ", ");
        AppendCut(out, size, ZONE_EXITS[zone]);
        if (ExitStates[zone] == EXIT_SPECIAL)
            AppendCut(out, size, " (special)");
    }
    if (!out[0])
        CopyCut(out, size, "no exits");
}

} // namespace steward
