#include "base/FrameQueue.h"
#include "config/BufferedLog.h"
#include "config/Settings.h"
#include "connection/GameSocket.h"
#include "connection/PacketDump.h"
#include "highlights/HighlightStore.h"
#include "panels/StatusPanel.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"
#include "session/GameLink.h"
#include "terminal/AnsiWindow.h"
#include "terminal/ChildWindows.h"

#include "GameLines.h"
#include "NullWindowHost.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace steward {
namespace {

constexpr std::size_t STREAM_LINES = 20000;
constexpr std::size_t BLOCK_SIZE = 1024;

using bench::NAMES;

// A player's lists: names built from syllables and words of the game, a third of them names,
// with a mix of sounds and markers; the game's own names and words are among them.
void FillLists(HighlightStore& lists, std::size_t count)
{
    static const char* const SYLLABLES[] = {"ar",  "bel", "cor",  "dan", "el",  "fen", "gar",
                                            "hal", "is",  "jor",  "kel", "lin", "mor", "nor",
                                            "os",  "per", "quin", "ros", "syl", "tor"};
    static const char* const WORDS[] = {"wolf",    "drake", "orc",    "gold",   "dagger", "silver",
                                        "attacks", "ferry", "chapel", "raider", "bear",   "moon"};
    lists.StringHighlights.Clear();
    lists.NameHighlights.Clear();
    std::mt19937 random(4096);
    for (std::size_t i = 0; i < count; ++i) {
        char text[HIGHLIGHT_TEXT_MAX + 1];
        const char* sound = i % 7 == 0 ? "{Gong}" : "";
        const char* markers[] = {"", "", "", "*", "@", "$"};
        const char* marker = markers[random() % std::size(markers)];
        if (i < std::size(NAMES) + std::size(WORDS)) {
            const char* known = i < std::size(NAMES) ? NAMES[i] : WORDS[i - std::size(NAMES)];
            std::snprintf(text, sizeof text, "%s%s", sound, known);
        } else if (i % 3 == 0) {
            std::snprintf(text, sizeof text, "%c%s%s", 'A' + static_cast<int>(random() % 26),
                          SYLLABLES[random() % std::size(SYLLABLES)],
                          SYLLABLES[random() % std::size(SYLLABLES)]);
        } else {
            std::snprintf(text, sizeof text, "%s%s%s%s %s", sound, marker,
                          SYLLABLES[random() % std::size(SYLLABLES)],
                          SYLLABLES[random() % std::size(SYLLABLES)],
                          WORDS[random() % std::size(WORDS)]);
        }
        const auto color = static_cast<unsigned char>(1 + random() % 255);
        if (i % 3 == 0)
            lists.NameHighlights.Add(text, color);
        else
            lists.StringHighlights.Add(text, color);
    }
}

class QuietSounds : public HighlightSounds {
  public:
    void PlayHighlightSound(const char*) override { ++played; }
    std::size_t played = 0;
};

std::size_t TotalBytes(const std::vector<std::string>& lines)
{
    std::size_t total = 0;
    for (const std::string& line : lines)
        total += line.size();
    return total;
}

// The matcher's share of the pipeline: the line copied into its working buffer, then the
// strings and the names.
void BM_ApplyHighlights(benchmark::State& state)
{
    const std::vector<std::string> lines = bench::PlayLines(STREAM_LINES);
    HighlightStore lists;
    FillLists(lists, static_cast<std::size_t>(state.range(0)));
    QuietSounds sounds;
    static char buffer[LINE_COPY_SIZE];
    for (auto _ : state) {
        for (const std::string& line : lines) {
            std::memcpy(buffer, line.c_str(), line.size() + 1);
            lists.ApplyHighlights(buffer, sizeof buffer, false, sounds);
            benchmark::DoNotOptimize(buffer);
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * TotalBytes(lines)));
}

class NoQueue : public FrameQueue {
  public:
    void PostCommand(int) override {}
    void PostDropped() override {}
};

class NoonClock : public LocalClock {
  public:
    TimeOfDay Now() const override { return {12, 0}; }
};

// The program runs offline: nothing is ever written.
class OfflineSocket : public GameSocket {
  public:
    bool Open(const char*, std::uint16_t, int) override { return false; }
    void Write(const char*, std::size_t) override {}
    void Close() override {}
};

// The whole receive path: blocks decoded into lines, the line analysis with both lists, and
// the Game window storing the text.
void BM_ReceiveWithHighlights(benchmark::State& state)
{
    std::string stream;
    for (const std::string& line : bench::PlayLines(STREAM_LINES))
        stream += line;
    HighlightStore lists;
    FillLists(lists, static_cast<std::size_t>(state.range(0)));
    QuietSounds sounds;
    Settings settings;
    BufferedLog sessionLog;
    NoQueue queue;
    ScriptWaitState script;
    StatusPanel panel;
    Tokenizer words;
    NoonClock clock;
    ChildWindows windows;
    PacketDump dump;
    OfflineSocket socket;
    GameLink link(
        {settings, sessionLog, lists, sounds, windows, queue, script, panel, words, clock, nullptr},
        dump, socket);
    NullWindowHost host;
    std::unique_ptr<AnsiWindow> game =
        AnsiWindow::Create("Game Window", {host, settings, nullptr, &link.Pipeline().Prompt()});
    windows.GameWindow = game.get();
    for (auto _ : state) {
        for (std::size_t at = 0; at + BLOCK_SIZE <= stream.size(); at += BLOCK_SIZE)
            link.ReceiveBlock(stream.data() + at, BLOCK_SIZE);
        benchmark::DoNotOptimize(game->GetLiveBuffer().GetWritePos());
    }
    state.SetBytesProcessed(
        static_cast<std::int64_t>(state.iterations() * (stream.size() / BLOCK_SIZE * BLOCK_SIZE)));
}

BENCHMARK(BM_ApplyHighlights)->Arg(0)->Arg(100)->Arg(1000)->Arg(4096);
BENCHMARK(BM_ReceiveWithHighlights)->Arg(0)->Arg(100)->Arg(1000)->Arg(4096);

} // namespace
} // namespace steward
