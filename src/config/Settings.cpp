#include "config/Settings.h"

#include "config/LittleEndian.h"

#include <algorithm>
#include <cstring>

namespace steward {

namespace {

struct ByteField {
    std::size_t offset;
    std::uint8_t Settings::*field;
};

// The one-byte options and colours, each at its file offset.
constexpr ByteField BYTE_FIELDS[] = {
    {8, &Settings::BufferedUpdates},
    {9, &Settings::ShowStatusPrompt},
    {10, &Settings::AutoLog},
    {11, &Settings::SquelchSounds},
    {12, &Settings::ShowCursor},
    {13, &Settings::AutoArrange},
    {15, &Settings::CompressThoughtMessages},
    {16, &Settings::OnlyListedArrivals},
    {17, &Settings::HonorNumLock},
    {18, &Settings::Reserved18},
    {19, &Settings::DisplayMode},
    {24, &Settings::IgnoreYells},
    {25, &Settings::LocalEcho},
    {26, &Settings::SaysColor},
    {27, &Settings::WhispersColor},
    {28, &Settings::ThoughtColor},
    {29, &Settings::CompressedThoughtColor},
};

constexpr std::size_t COMMAND_PREFIX_OFFSET = 14;
constexpr std::size_t RESERVED30_OFFSET = 30;
constexpr std::size_t RESERVED38_OFFSET = 38;

} // namespace

SettingsBytes Settings::ToBytes() const
{
    SettingsBytes bytes{};
    PutU32(&bytes[0], DefaultBackColor);
    PutU32(&bytes[4], DefaultTextColor);
    for (const ByteField& f : BYTE_FIELDS)
        bytes[f.offset] = this->*f.field;
    bytes[COMMAND_PREFIX_OFFSET] = static_cast<std::uint8_t>(CommandPrefix);
    PutI32(&bytes[20], ReceiveChunkSize);
    std::memcpy(&bytes[RESERVED30_OFFSET], Reserved30.data(), Reserved30.size());
    PutU16(&bytes[36], static_cast<std::uint16_t>(MinCommandLength));
    std::memcpy(&bytes[RESERVED38_OFFSET], Reserved38.data(), Reserved38.size());
    return bytes;
}

Settings Settings::FromBytes(const SettingsBytes& bytes)
{
    Settings s;
    s.DefaultBackColor = GetU32(&bytes[0]);
    s.DefaultTextColor = GetU32(&bytes[4]);
    for (const ByteField& f : BYTE_FIELDS)
        s.*f.field = bytes[f.offset];
    s.CommandPrefix = static_cast<char>(bytes[COMMAND_PREFIX_OFFSET]);
    s.ReceiveChunkSize = GetI32(&bytes[20]);
    std::memcpy(s.Reserved30.data(), &bytes[RESERVED30_OFFSET], s.Reserved30.size());
    s.MinCommandLength = static_cast<std::int16_t>(GetU16(&bytes[36]));
    std::memcpy(s.Reserved38.data(), &bytes[RESERVED38_OFFSET], s.Reserved38.size());
    return s;
}

void CheckSettings(Settings& settings)
{
    if (settings.DisplayMode > DISPLAY_FULL_SCREEN)
        settings.DisplayMode = DISPLAY_GRAPHICS_TOP;
    if (settings.MinCommandLength < 0)
        settings.MinCommandLength = 0;
    settings.ReceiveChunkSize =
        std::clamp(settings.ReceiveChunkSize, RECEIVE_CHUNK_MIN, RECEIVE_CHUNK_MAX);
}

} // namespace steward
