#include "analysis/LinePipeline.h"

#include "analysis/SpeechQueue.h"
#include "base/ByteText.h"
#include "config/Settings.h"
#include "highlights/HighlightStore.h"
#include "panels/StatusPanel.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"
#include "terminal/ChildWindows.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace steward {

namespace {

constexpr std::string_view SpeechVerbs[] = {
    " says, \"",   " say, \"",   " asks, \"",  " ask, \"",  " screams, \"",  " scream, \"",
    " shouts, \"", " shout, \"", " yells, \"", " yell, \"", " belt out, \"", " signals, \"",
};
constexpr std::string_view Yells[] = {" yells, \"", " screams, \""};
constexpr std::string_view Whisper[] = {" whispers, \""};

struct ExitName {
    const char* name;
    std::uint32_t bit;
};

// Longer names first: a word is compared by its start only.
const ExitName ExitNames[] = {
    {"northeast", 0x002}, {"southeast", 0x008}, {"northwest", 0x080}, {"southwest", 0x020},
    {"north", 0x001},     {"south", 0x010},     {"east", 0x004},      {"west", 0x040},
    {"up", 0x200},        {"down", 0x400},      {"out", 0x100},
};

// Every phrase of the lists above ends in a quote, which most lines lack: the phrases are only
// compared where a line has one, against the bytes that lead up to it.
template <std::size_t N> bool ContainsAny(const char* text, const std::string_view (&phrases)[N])
{
    for (const char* quote = std::strchr(text, '"'); quote; quote = std::strchr(quote + 1, '"')) {
        const std::string_view upToQuote(text, static_cast<std::size_t>(quote - text) + 1);
        for (const std::string_view phrase : phrases)
            if (upToQuote.ends_with(phrase))
                return true;
    }
    return false;
}

// Reads a decimal number as "%ld" would; false when there is none, so no delay starts.
bool ReadDelay(const char* from, std::int32_t& seconds)
{
    long value = 0;
    if (std::sscanf(from, "%ld", &value) != 1)
        return false;
    seconds = static_cast<std::int32_t>(static_cast<std::uint16_t>(value & 0xFFFF));
    return true;
}

void ColorAround(char* text, std::size_t capacity, unsigned char color, std::size_t offAt)
{
    InsertCut(text, capacity, offAt, ColorOffText(color));
    InsertCut(text, capacity, 0, ColorOnText(color));
}

} // namespace

void LinePipeline::FilterLine(char* text, std::size_t capacity)
{
    if (std::strlen(text) < 3)
        return;
    if (options_.IgnoreYells && ContainsAny(text, Yells)) {
        CopyCut(text, capacity, "You ignore a yell.\r\n");
        return;
    }
    if (ContainsAny(text, SpeechVerbs)) {
        if (const char* comma = std::strchr(text, ','))
            ColorAround(text, capacity, options_.SaysColor,
                        static_cast<std::size_t>(comma - text) + 1);
    }
    if (ContainsAny(text, Whisper)) {
        if (const char* quote = std::strchr(text, '"'))
            ColorAround(text, capacity, options_.WhispersColor,
                        static_cast<std::size_t>(quote - text));
    }
    std::int32_t seconds = 0;
    if (text[0] == '[' && Contains(text, " sec. delay]") && ReadDelay(text + 1, seconds))
        StartRoundTime(seconds);
    // The number stands one byte behind the phrase, so a bare phrase has none.
    if (StartsWith(text, "...wait") && text[7] != '\0' && ReadDelay(text + 8, seconds))
        StartRoundTime(seconds);

    const char* word = words_.FirstToken(text);
    if (!word)
        return;
    if (EqualNoCase(word, "Obvious")) {
        if (const char* colon = std::strchr(text, ':'))
            ParseExits(colon + 1);
    }
    highlights_.ApplyHighlights(text, capacity, options_.SquelchSounds, sounds_);
}

void LinePipeline::ParseExits(const char* list)
{
    std::uint32_t exits = 0;
    std::uint32_t starred = 0;
    for (const char* word = words_.FirstToken(list); word; word = words_.NextToken()) {
        for (const ExitName& exit : ExitNames) {
            if (!StartsWithNoCase(word, exit.name))
                continue;
            exits |= exit.bit;
            if (std::strchr(word, '*'))
                starred |= exit.bit;
            break;
        }
    }
    panel_.Compass.SetExits(starred << 16 | exits);
    if (script_.ScriptWait == WAIT_ROOM)
        script_.ScriptWait = WAIT_NONE;
}

namespace {

// Copies the name field: from offset up to the first of the stop bytes or the end.
void NameField(char* out, std::size_t size, const char* line, std::size_t offset, const char* stops)
{
    const char* start = line + offset;
    std::size_t length = std::strcspn(start, stops);
    if (length >= size)
        length = size - 1;
    std::memcpy(out, start, length);
    out[length] = '\0';
}

const char* LinkChannel(const char* line)
{
    if (Contains(line, "Thornmere link, \""))
        return "Thornmere ";
    if (Contains(line, "Psycian link, \""))
        return "Psycian ";
    if (Contains(line, "Secian link, \""))
        return "Secian ";
    return "";
}

} // namespace

bool LinePipeline::CompressThought(const char* line)
{
    constexpr std::size_t pickUpLength = 12;
    // Every form of a thought quotes it, so most lines end their test here.
    const char* quote = std::strchr(line, '"');
    if (!quote)
        return false;
    char compact[THOUGHT_BUFFER_SIZE];
    compact[0] = '\0';
    char name[THOUGHT_BUFFER_SIZE];
    const bool pickUp = StartsWith(line, "You pick up ");

    if (pickUp && Contains(line, "thoughts, \"")) {
        NameField(name, sizeof name, line, pickUpLength, " '");
        JoinCut(compact, sizeof compact, {"[", name, "]: ", quote});
    }
    if (Contains(line, "thinks to you, \"")) {
        NameField(name, sizeof name, line, 0, " ");
        JoinCut(compact, sizeof compact, {"[", name, " (Private)]: ", quote});
    }
    if (pickUp && Contains(line, " link, \"")) {
        NameField(name, sizeof name, line, pickUpLength, " '");
        JoinCut(compact, sizeof compact, {"[", name, " (", LinkChannel(line), "link)]: ", quote});
    }
    if (compact[0] == '\0')
        return false;
    if (speech_)
        speech_->Say(compact);

    if (windows_.ThoughtWindow) {
        TrimLineEnd(compact);
        PrintToWindow(windows_.ThoughtWindow, "\r\n");
        PrintToWindow(windows_.ThoughtWindow, compact);
        return true;
    }
    if (options_.CompressThoughtMessages) {
        char colored[PRINT_BUFFER_SIZE];
        JoinCut(colored, sizeof colored, {ColorOnText(options_.CompressedThoughtColor), compact});
        const char* off = ColorOffText(options_.CompressedThoughtColor);
        // The colour must always close, so the end of a long thought gives way to it.
        const std::size_t room = sizeof colored - 1 - std::strlen(off);
        if (std::strlen(colored) > room)
            colored[room] = '\0';
        AppendCut(colored, sizeof colored, off);
        PrintToWindow(windows_.GameWindow, colored);
        PrintToWindow(windows_.GameWindow, "\n");
        return true;
    }
    PrintToWindow(windows_.GameWindow, line);
    PrintToWindow(windows_.GameWindow, "\n");
    return true;
}

} // namespace steward
