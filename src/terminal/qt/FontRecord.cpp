#include "terminal/qt/FontRecord.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <cstring>

namespace steward {
namespace {

constexpr std::uint8_t ANSI_CHARSET = 0;
constexpr std::uint8_t FIXED_PITCH = 0x01;
constexpr std::uint8_t FF_MODERN = 0x30;
constexpr std::int32_t FW_NORMAL = 400;

} // namespace

QFont FontFromRecord(const LogFontRecord& record)
{
    QFont font(QString::fromLatin1(record.lfFaceName,
                                   static_cast<int>(strnlen(record.lfFaceName, LF_FACESIZE))));
    if (record.lfHeight != 0)
        font.setPixelSize(std::max(1, std::abs(record.lfHeight)));
    const std::int32_t weight = record.lfWeight == 0 ? FW_NORMAL : record.lfWeight;
    font.setWeight(static_cast<QFont::Weight>(std::clamp(weight, 1, 1000)));
    font.setItalic(record.lfItalic != 0);
    font.setUnderline(record.lfUnderline != 0);
    font.setStrikeOut(record.lfStrikeOut != 0);
    if (record.lfPitchAndFamily & FIXED_PITCH) {
        font.setFixedPitch(true);
        font.setStyleHint(QFont::TypeWriter);
    }
    return font;
}

LogFontRecord RecordFromFont(const QFont& font)
{
    const QFontInfo info(font);
    LogFontRecord record;
    record.lfHeight = -info.pixelSize();
    record.lfWeight = info.weight();
    record.lfItalic = info.italic() ? 1 : 0;
    record.lfUnderline = font.underline() ? 1 : 0;
    record.lfStrikeOut = font.strikeOut() ? 1 : 0;
    record.lfCharSet = ANSI_CHARSET;
    record.lfPitchAndFamily = info.fixedPitch() ? (FIXED_PITCH | FF_MODERN) : 0;
    const QByteArray family = info.family().toLatin1();
    const std::size_t length = std::min<std::size_t>(family.size(), LF_FACESIZE - 1);
    std::memcpy(record.lfFaceName, family.constData(), length);
    return record;
}

QFont SystemFixedFont()
{
    return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

} // namespace steward
