#include "analysis/LinePipeline.h"

#include "analysis/SpeechQueue.h"
#include "base/HexDigits.h"
#include "config/BufferedLog.h"
#include "config/Settings.h"
#include "connection/EscapeByte.h"
#include "panels/StatusPanel.h"
#include "scripts/ScriptWait.h"
#include "terminal/ChildWindows.h"

#include <charconv>
#include <cstdio>
#include <cstring>

namespace steward {

namespace {

// Offsets of the fields of a status record.
enum RecordOffset : int {
    PROMPT_CHAR = 2,
    HP_NOW = 3,
    HP_MAX = 7,
    FTG_NOW = 11,
    FTG_MAX = 15,
    PSI_NOW = 19,
    PSI_MAX = 23,
    WEB_NOW = 27,
    WEB_MAX = 31,
    SILVER = 35,
    GOLD = 43,
    WEIGHT_NOW = 51,
    WEIGHT_MAX = 55,
    POSTURE = 61,
    WEAPON = 62,
    SHIELD = 63,
    ROUND_TIME = 64,
};

std::int32_t Field(const char* text, int offset, int n)
{
    return static_cast<std::int32_t>(ReadHexField(text + offset, n));
}

void SetPair(Gauge& gauge, const char* text, int now, int max)
{
    SetGaugeValues(gauge, 0, Field(text, max, 4), Field(text, now, 4));
}

// The money boxes take the amount in decimal; a status record comes with every prompt, so
// this stays off printf.
const char* DecimalText(char (&out)[16], std::uint32_t value)
{
    *std::to_chars(out, out + sizeof out - 1, value).ptr = '\0';
    return out;
}

std::uint32_t PostureState(char posture)
{
    switch (posture) {
    case '0':
        return FIGURE_STANDING;
    case '1':
        return FIGURE_SITTING;
    case '2':
        return FIGURE_LYING;
    default:
        return static_cast<std::uint32_t>(static_cast<unsigned char>(posture) - 0x30);
    }
}

} // namespace

std::uint32_t ReadHexField(const char* place, int n)
{
    std::uint32_t value = 0;
    for (int i = 0; i < n; ++i) {
        value |= std::uint32_t{HexDigitValue(place[i])} << (4 * (n - 1 - i));
    }
    const std::uint32_t sign = 1u << (4 * n - 1);
    return (value & sign) ? 0 : value;
}

void SetGaugeValues(Gauge& gauge, std::int32_t minimum, std::int32_t maximum, std::int32_t value)
{
    gauge.SetMin(minimum);
    gauge.SetMax(maximum);
    gauge.SetValue(value);
}

void LinePipeline::StartRoundTime(std::int32_t seconds)
{
    if (seconds > ROUND_TIME_LIMIT)
        seconds = ROUND_TIME_LIMIT;
    panel_.RT.SetMin(0);
    panel_.RT.SetMax(seconds * 1000);
    panel_.RT.StartCountdown(frame_);
}

void LinePipeline::ParseStatusRecord(const char* text)
{
    const std::size_t length = std::strlen(text);
    if (length < STATUS_RECORD_MIN_LENGTH || text[length - 3] != ESC)
        return;

    SetPair(panel_.Hp, text, HP_NOW, HP_MAX);
    HpChanged();
    SetPair(panel_.Ftg, text, FTG_NOW, FTG_MAX);
    SetPair(panel_.Psi, text, PSI_NOW, PSI_MAX);
    SetPair(panel_.Web, text, WEB_NOW, WEB_MAX);
    char money[16];
    panel_.Silver.SetText(DecimalText(money, ReadHexField(text + SILVER, 8)));
    panel_.Gold.SetText(DecimalText(money, ReadHexField(text + GOLD, 8)));
    SetPair(panel_.Weight, text, WEIGHT_NOW, WEIGHT_MAX);
    panel_.BodyFigure.SetState(PostureState(text[POSTURE]));
    panel_.WeaponIcon.SetState(text[WEAPON] == '1' ? 1 : 0);
    panel_.ShieldIcon.SetState(text[SHIELD] == '1' ? 1 : 0);
    const std::int32_t roundTime = Field(text, ROUND_TIME, 2) - 1;
    if (roundTime > 0)
        StartRoundTime(roundTime);

    char prompt[96];
    if (options_.ShowStatusPrompt) {
        std::snprintf(prompt, sizeof prompt, "[%ld/%ld hp, %ld/%ld ftg] %c",
                      static_cast<long>(Field(text, HP_NOW, 4)),
                      static_cast<long>(Field(text, HP_MAX, 4)),
                      static_cast<long>(Field(text, FTG_NOW, 4)),
                      static_cast<long>(Field(text, FTG_MAX, 4)), text[PROMPT_CHAR]);
    } else {
        prompt[0] = text[PROMPT_CHAR];
        prompt[1] = '\0';
    }
    PrintToWindow(windows_.GameWindow, prompt);
    prompt_.PromptPending = true;
    sessionLog_.Write(prompt);
    if (script_.ScriptWait == WAIT_PROMPT)
        script_.ScriptWait = WAIT_NONE;
}

} // namespace steward
