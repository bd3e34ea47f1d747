#pragma once

#include "panels/Gauge.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace steward {

// A font as the profile stores it: the 60-byte LOGFONTA layout, little-endian.
constexpr std::size_t LOGFONT_SIZE = 60;
constexpr std::size_t LF_FACESIZE = 32;
using LogFontBytes = std::array<std::uint8_t, LOGFONT_SIZE>;

struct LogFontRecord {
    std::int32_t lfHeight = 0;
    std::int32_t lfWidth = 0;
    std::int32_t lfEscapement = 0;
    std::int32_t lfOrientation = 0;
    std::int32_t lfWeight = 0;
    std::uint8_t lfItalic = 0;
    std::uint8_t lfUnderline = 0;
    std::uint8_t lfStrikeOut = 0;
    std::uint8_t lfCharSet = 0;
    std::uint8_t lfOutPrecision = 0;
    std::uint8_t lfClipPrecision = 0;
    std::uint8_t lfQuality = 0;
    std::uint8_t lfPitchAndFamily = 0;
    // NUL-terminated unless all 32 bytes are used; readers must not run past it.
    char lfFaceName[LF_FACESIZE] = {};

    LogFontBytes ToBytes() const;
    static LogFontRecord FromBytes(const LogFontBytes& bytes);
};
static_assert(sizeof(LogFontRecord) == LOGFONT_SIZE, "LOGFONTA is 60 bytes");
static_assert(offsetof(LogFontRecord, lfItalic) == 20);
static_assert(offsetof(LogFontRecord, lfFaceName) == 28);

// A window's position as the profile stores it: the 44-byte WINDOWPLACEMENT layout.
constexpr std::size_t WINDOWPLACEMENT_SIZE = 44;
using WindowPlacementBytes = std::array<std::uint8_t, WINDOWPLACEMENT_SIZE>;

// Show commands of a stored placement.
constexpr std::uint32_t SW_SHOWNORMAL = 1;
constexpr std::uint32_t SW_SHOWMINIMIZED = 2;
constexpr std::uint32_t SW_SHOWMAXIMIZED = 3;

struct PointRecord {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

struct RectRecord {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

struct WindowPlacementRecord {
    std::uint32_t length = WINDOWPLACEMENT_SIZE;
    std::uint32_t flags = 0;
    std::uint32_t showCmd = SW_SHOWNORMAL;
    PointRecord ptMinPosition;
    PointRecord ptMaxPosition;
    RectRecord rcNormalPosition;

    WindowPlacementBytes ToBytes() const;
    static WindowPlacementRecord FromBytes(const WindowPlacementBytes& bytes);
};
static_assert(sizeof(WindowPlacementRecord) == WINDOWPLACEMENT_SIZE, "WINDOWPLACEMENT is 44 bytes");
static_assert(offsetof(WindowPlacementRecord, rcNormalPosition) == 28);

// A gauge's colours as the profile stores them: 20 bytes, of which the first 12 hold the text,
// bar and background colours and the rest is written as 0 and ignored when read.
constexpr std::size_t GAUGE_COLOR_RECORD_SIZE = 20;
constexpr std::size_t GAUGE_COLOR_USED_SIZE = 12;
using GaugeColorBytes = std::array<std::uint8_t, GAUGE_COLOR_RECORD_SIZE>;
static_assert(sizeof(GaugeColors) == GAUGE_COLOR_USED_SIZE);

GaugeColorBytes GaugeColorsToBytes(const GaugeColors& colors);
GaugeColors GaugeColorsFromBytes(const GaugeColorBytes& bytes);

} // namespace steward
