#include "terminal/AnsiWindow.h"

#include "config/IniStore.h"
#include "config/LittleEndian.h"

#include <array>

namespace steward {
namespace {

// StateInfo holds TextColor, then BackColor, as little-endian 32-bit values.
constexpr std::size_t STATE_INFO_SIZE = 8;

} // namespace

void AnsiWindow::LoadColors()
{
    std::array<std::uint8_t, STATE_INFO_SIZE> state{};
    if (profilePath_ &&
        ReadBinary(profilePath_, SectionName, "StateInfo", state.data(), state.size())) {
        TextColor = GetU32(state.data());
        BackColor = GetU32(state.data() + 4);
        return;
    }
    TextColor = options_.DefaultTextColor;
    BackColor = options_.DefaultBackColor;
}

void AnsiWindow::LoadFont()
{
    if (profilePath_)
        ReadFont(profilePath_, SectionName, "Font", *this);
    else
        SetFont(nullptr, true);
}

void AnsiWindow::SaveState()
{
    if (!profilePath_)
        return;
    WriteFont(profilePath_, SectionName, "Font", &Font);
    WritePlacement(profilePath_, SectionName, "Position", host_);
    std::array<std::uint8_t, STATE_INFO_SIZE> state{};
    PutU32(state.data(), TextColor);
    PutU32(state.data() + 4, BackColor);
    WriteBinary(profilePath_, SectionName, "StateInfo", state.data(), state.size());
}

} // namespace steward
