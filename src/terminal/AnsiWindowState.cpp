#include "terminal/AnsiWindow.h"

#include "config/IniStore.h"
#include "config/LittleEndian.h"

#include <array>

namespace steward {
namespace {

// StateInfo holds TextColor, then BackColor, as little-endian 32-bit values.
constexpr std::size_t STATE_INFO_SIZE = 8;

} // namespace

void AnsiWindow::LoadColors(const char* profilePath)
{
    std::array<std::uint8_t, STATE_INFO_SIZE> state{};
    if (profilePath &&
        ReadBinary(profilePath, SectionName, "StateInfo", state.data(), state.size())) {
        TextColor = GetU32(state.data());
        BackColor = GetU32(state.data() + 4);
        return;
    }
    TextColor = options_.DefaultTextColor;
    BackColor = options_.DefaultBackColor;
}

void AnsiWindow::LoadFont(const char* profilePath)
{
    if (profilePath)
        ReadFont(profilePath, SectionName, "Font", *this);
    else
        SetFont(nullptr, true);
}

bool AnsiWindow::SaveState(const std::string& profilePath)
{
    const char* path = profilePath.c_str();
    const bool font = WriteFont(path, SectionName, "Font", &Font);
    const bool position = WritePlacement(path, SectionName, "Position", host_);
    std::array<std::uint8_t, STATE_INFO_SIZE> state{};
    PutU32(state.data(), TextColor);
    PutU32(state.data() + 4, BackColor);
    return WriteBinary(path, SectionName, "StateInfo", state.data(), state.size()) && font &&
           position;
}

} // namespace steward
