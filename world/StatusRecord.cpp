#include "StatusRecord.h"

#include <algorithm>

namespace {

void AppendHex(QByteArray& out, qint64 value, int digits)
{
    const qint64 largest = (qint64(1) << (digits * 4 - 1)) - 1;
    const qint64 clamped = std::clamp<qint64>(value, 0, largest);
    out.append(QByteArray::number(clamped, 16).toUpper().rightJustified(digits, '0'));
}

char Flag(bool on)
{
    return on ? '1' : '0';
}

} // namespace

QByteArray FormatStatusRecord(const StatusFields& f)
{
    QByteArray out("\x1b\x1b");
    out.append(f.promptCharacter);
    for (int value :
         {f.hitPoints, f.hitPointsMax, f.fatigue, f.fatigueMax, f.psi, f.psiMax, f.web, f.webMax})
        AppendHex(out, value, 4);
    AppendHex(out, f.silver, 8);
    AppendHex(out, f.gold, 8);
    AppendHex(out, f.weight, 4);
    AppendHex(out, f.weightMax, 4);
    out.append("00");
    out.append(char('0' + std::clamp(f.posture, 0, 2)));
    out.append(Flag(f.weaponReady));
    out.append(Flag(f.shieldReady));
    AppendHex(out, f.roundTimeSeconds > 0 ? f.roundTimeSeconds + 1 : 0, 2);
    out.append("0\x1b\r\n");
    return out;
}
