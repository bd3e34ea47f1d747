#include "config/BinaryRecords.h"

#include "config/LittleEndian.h"

#include <cstring>

namespace steward {

namespace {

constexpr std::size_t LOGFONT_BYTES_OFFSET = 20;
constexpr std::size_t LOGFONT_BYTE_FIELDS = 8;

void PutPoint(std::uint8_t* at, const PointRecord& p)
{
    PutI32(at, p.x);
    PutI32(at + 4, p.y);
}

PointRecord GetPoint(const std::uint8_t* at)
{
    return {GetI32(at), GetI32(at + 4)};
}

void PutRect(std::uint8_t* at, const RectRecord& r)
{
    PutI32(at, r.left);
    PutI32(at + 4, r.top);
    PutI32(at + 8, r.right);
    PutI32(at + 12, r.bottom);
}

RectRecord GetRect(const std::uint8_t* at)
{
    return {GetI32(at), GetI32(at + 4), GetI32(at + 8), GetI32(at + 12)};
}

} // namespace

LogFontBytes LogFontRecord::ToBytes() const
{
    LogFontBytes bytes{};
    PutI32(&bytes[0], lfHeight);
    PutI32(&bytes[4], lfWidth);
    PutI32(&bytes[8], lfEscapement);
    PutI32(&bytes[12], lfOrientation);
    PutI32(&bytes[16], lfWeight);
    const std::uint8_t small[LOGFONT_BYTE_FIELDS] = {lfItalic,  lfUnderline,     lfStrikeOut,
                                                     lfCharSet, lfOutPrecision,  lfClipPrecision,
                                                     lfQuality, lfPitchAndFamily};
    std::memcpy(&bytes[LOGFONT_BYTES_OFFSET], small, sizeof small);
    std::memcpy(&bytes[offsetof(LogFontRecord, lfFaceName)], lfFaceName, LF_FACESIZE);
    return bytes;
}

LogFontRecord LogFontRecord::FromBytes(const LogFontBytes& bytes)
{
    LogFontRecord f;
    f.lfHeight = GetI32(&bytes[0]);
    f.lfWidth = GetI32(&bytes[4]);
    f.lfEscapement = GetI32(&bytes[8]);
    f.lfOrientation = GetI32(&bytes[12]);
    f.lfWeight = GetI32(&bytes[16]);
    const std::uint8_t* small = &bytes[LOGFONT_BYTES_OFFSET];
    f.lfItalic = small[0];
    f.lfUnderline = small[1];
    f.lfStrikeOut = small[2];
    f.lfCharSet = small[3];
    f.lfOutPrecision = small[4];
    f.lfClipPrecision = small[5];
    f.lfQuality = small[6];
    f.lfPitchAndFamily = small[7];
    std::memcpy(f.lfFaceName, &bytes[offsetof(LogFontRecord, lfFaceName)], LF_FACESIZE);
    return f;
}

WindowPlacementBytes WindowPlacementRecord::ToBytes() const
{
    WindowPlacementBytes bytes{};
    PutU32(&bytes[0], length);
    PutU32(&bytes[4], flags);
    PutU32(&bytes[8], showCmd);
    PutPoint(&bytes[12], ptMinPosition);
    PutPoint(&bytes[20], ptMaxPosition);
    PutRect(&bytes[28], rcNormalPosition);
    return bytes;
}

WindowPlacementRecord WindowPlacementRecord::FromBytes(const WindowPlacementBytes& bytes)
{
    WindowPlacementRecord p;
    p.length = GetU32(&bytes[0]);
    p.flags = GetU32(&bytes[4]);
    p.showCmd = GetU32(&bytes[8]);
    p.ptMinPosition = GetPoint(&bytes[12]);
    p.ptMaxPosition = GetPoint(&bytes[20]);
    p.rcNormalPosition = GetRect(&bytes[28]);
    return p;
}

GaugeColorBytes GaugeColorsToBytes(const GaugeColors& colors)
{
    GaugeColorBytes bytes{};
    PutU32(&bytes[0], colors.GaugeTextColor);
    PutU32(&bytes[4], colors.BarColor);
    PutU32(&bytes[8], colors.GaugeBackColor);
    return bytes;
}

GaugeColors GaugeColorsFromBytes(const GaugeColorBytes& bytes)
{
    return {GetU32(&bytes[0]), GetU32(&bytes[4]), GetU32(&bytes[8])};
}

} // namespace steward
