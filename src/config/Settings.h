#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace steward {

// The user's options, stored in a profile as one binary value; the byte layout is a file format.
constexpr std::size_t SETTINGS_SIZE = 160;
using SettingsBytes = std::array<std::uint8_t, SETTINGS_SIZE>;

// DisplayMode values: graphics at the top, at the bottom, or full-screen mode.
constexpr std::uint8_t DISPLAY_GRAPHICS_TOP = 0;
constexpr std::uint8_t DISPLAY_GRAPHICS_BOTTOM = 1;
constexpr std::uint8_t DISPLAY_FULL_SCREEN = 2;

// Bounds of the largest single read from the socket; the receive buffers hold RECEIVE_CHUNK_MAX.
constexpr std::int32_t RECEIVE_CHUNK_MIN = 256;
constexpr std::int32_t RECEIVE_CHUNK_MAX = 2048;

// One field per stored byte range, at its file offset; the member initialisers are the defaults
// of a new profile, and the Reserved arrays carry unknown bytes through a load and a save.
struct Settings {
    std::uint32_t DefaultBackColor = 0x000000;
    std::uint32_t DefaultTextColor = 0xFFFFFF;
    std::uint8_t BufferedUpdates = 1;
    std::uint8_t ShowStatusPrompt = 0;
    std::uint8_t AutoLog = 0;
    std::uint8_t SquelchSounds = 0;
    std::uint8_t ShowCursor = 1;
    std::uint8_t AutoArrange = 1;
    char CommandPrefix = '.';
    std::uint8_t CompressThoughtMessages = 0;
    std::uint8_t OnlyListedArrivals = 0;
    std::uint8_t HonorNumLock = 0;
    // Written as 1 in a new profile and never read.
    std::uint8_t Reserved18 = 1;
    std::uint8_t DisplayMode = DISPLAY_GRAPHICS_TOP;
    std::int32_t ReceiveChunkSize = 1024;
    std::uint8_t IgnoreYells = 0;
    std::uint8_t LocalEcho = 1;
    std::uint8_t SaysColor = 10;
    std::uint8_t WhispersColor = 11;
    std::uint8_t ThoughtColor = 40;
    std::uint8_t CompressedThoughtColor = 40;
    std::array<std::uint8_t, 6> Reserved30 = {};
    std::int16_t MinCommandLength = 4;
    std::array<std::uint8_t, 122> Reserved38 = {};

    SettingsBytes ToBytes() const;
    static Settings FromBytes(const SettingsBytes& bytes);
};

static_assert(sizeof(Settings) == SETTINGS_SIZE, "Settings mirrors its 160-byte stored form");
static_assert(offsetof(Settings, DefaultTextColor) == 4);
static_assert(offsetof(Settings, BufferedUpdates) == 8);
static_assert(offsetof(Settings, CommandPrefix) == 14);
static_assert(offsetof(Settings, HonorNumLock) == 17);
static_assert(offsetof(Settings, DisplayMode) == 19);
static_assert(offsetof(Settings, ReceiveChunkSize) == 20);
static_assert(offsetof(Settings, IgnoreYells) == 24);
static_assert(offsetof(Settings, CompressedThoughtColor) == 29);
static_assert(offsetof(Settings, MinCommandLength) == 36);
static_assert(offsetof(Settings, Reserved38) == 38);

// Brings loaded values into range: an unknown DisplayMode becomes 0, a negative
// MinCommandLength 0, and ReceiveChunkSize is clamped to RECEIVE_CHUNK_MIN..RECEIVE_CHUNK_MAX.
void CheckSettings(Settings& settings);

} // namespace steward
