#include "analysis/LinePipeline.h"

#include "analysis/SpeechQueue.h"
#include "base/ByteText.h"

#include "config/Settings.h"
#include "highlights/HighlightStore.h"
#include "panels/StatusPanel.h"
#include "scripts/Tokenizer.h"
#include "terminal/ChildWindows.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace steward {

namespace {

constexpr std::size_t STAR_PREFIX = 4; // behind " ** "

std::int32_t ReadDecimal(const char* from)
{
    return static_cast<std::int32_t>(std::strtol(from, nullptr, 10));
}

void NameUpTo(char* out, const char* start, const char* end)
{
    std::size_t length = start < end ? static_cast<std::size_t>(end - start) : 0;
    if (length >= STAR_NAME_SIZE)
        length = STAR_NAME_SIZE - 1;
    std::memcpy(out, start, length);
    out[length] = '\0';
}

} // namespace

void TrimLineEnd(char* text)
{
    std::size_t length = std::strlen(text);
    while (length > 0 && (text[length - 1] == '\r' || text[length - 1] == '\n'))
        text[--length] = '\0';
}

void LinePipeline::HpChanged()
{
    if (speech_)
        speech_->WatchHp(panel_.Hp.GetValue(), panel_.Hp.GetMax());
}

const char* LinePipeline::ClockText()
{
    const TimeOfDay now = clock_.Now();
    const int hour = now.Hour % 12 == 0 ? 12 : now.Hour % 12;
    std::snprintf(clockText_, sizeof clockText_, "%d:%02d %cm", hour, now.Minute,
                  now.Hour < 12 ? 'a' : 'p');
    return clockText_;
}

bool LinePipeline::HandleStarLine(char* line, std::size_t capacity)
{
    if (StartsWith(line, " ** Current ")) {
        const char* colon = std::strchr(line, ':');
        const char* blank = std::strrchr(line, ' ');
        // The number stands one blank behind the colon; a colon at the very end reads nothing.
        const std::int32_t current = !colon ? 0 : colon[1] ? ReadDecimal(colon + 2) : 0;
        const std::int32_t maximum = blank ? ReadDecimal(blank + 1) : 0;
        // "**" and "Current" are the first two words.
        const char* word = words_.NthToken(line, 3);
        if (!word)
            return true;
        if (EqualNoCase(word, "hit")) {
            SetGaugeValues(panel_.Hp, 0, maximum, current);
            HpChanged();
        } else if (EqualNoCase(word, "fatigue:")) {
            SetGaugeValues(panel_.Ftg, 0, maximum, current);
        }
        return true;
    }
    if (Contains(line, "You are fully healed.")) {
        panel_.Hp.Fill();
        HpChanged();
        AppendCut(line, capacity, ">");
        return false;
    }
    if (Contains(line, "You are fully rested.")) {
        panel_.Ftg.Fill();
        AppendCut(line, capacity, ">");
        return false;
    }
    char name[STAR_NAME_SIZE];
    char built[STAR_TEXT_SIZE];
    if (const char* phrase = std::strstr(line, " just arrived in the world.")) {
        TrimLineEnd(line);
        const char* start = line + STAR_PREFIX;
        while (*start == ' ')
            ++start;
        NameUpTo(name, start, phrase);
        JoinCut(built, sizeof built, {"\r\n", name, " arrived at ", ClockText(), "."});
        RouteStarText(line, name, built);
        return true;
    }
    if (const char* phrase = std::strstr(line, " has left the world")) {
        const char* verb = Contains(line, "unexpectedly.") ? "disco'd" : "left";
        TrimLineEnd(line);
        NameUpTo(name, line + STAR_PREFIX, phrase);
        JoinCut(built, sizeof built, {"\r\n", name, " ", verb, " at ", ClockText(), "."});
        RouteStarText(line, name, built);
        return true;
    }
    return false;
}

void LinePipeline::RouteStarText(char* line, const char* name, const char* built)
{
    if (options_.OnlyListedArrivals && !highlights_.IsNameListed(name))
        return;
    if (speech_)
        speech_->Say(built);
    if (windows_.ArrivalWindow) {
        PrintToWindow(windows_.ArrivalWindow, built);
        return;
    }
    PrintToWindow(windows_.GameWindow, line);
    PrintToWindow(windows_.GameWindow, "\n");
}

} // namespace steward
