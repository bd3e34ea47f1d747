#include "NullWindowHost.h"

#include "terminal/AnsiWindow.h"
#include "terminal/TextBuffer.h"
#include "terminal/TextSearch.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace steward {
namespace {

// The longest scrollback a window can be given.
constexpr std::uint32_t LARGE_CAPACITY = 64u << 20;
constexpr std::int32_t CLIENT_WIDTH = 800;
constexpr std::int32_t TEXT_LEFT = 4;

const char* const WORDS[] = {"the",   "wind",  "moves", "long",   "grass", "Mara",  "says",
                             "wolf",  "north", "east",  "you",    "parry", "bell",  "rings",
                             "ferry", "waits", "for",   "silver", "hits",  "misses"};

// Window text as the pipeline leaves it: words, a colour code now and then, a line feed.
std::vector<std::string> Lines()
{
    std::mt19937 random(11);
    std::vector<std::string> lines;
    for (int i = 0; i < 4000; ++i) {
        std::string line;
        const int words = 3 + static_cast<int>(random() % 25);
        for (int w = 0; w < words; ++w) {
            if (random() % 9 == 0)
                line += "\x8A";
            line += WORDS[random() % std::size(WORDS)];
            line += ' ';
        }
        line += "\xA0\n";
        lines.push_back(line);
    }
    return lines;
}

CharWidthTable Widths()
{
    CharWidthTable widths;
    widths.fill(8);
    return widths;
}

// A buffer of that capacity filled until its text has gone round the ring.
std::unique_ptr<TextBuffer> FullBuffer(std::uint32_t capacity)
{
    auto buffer = TextBuffer::CreateTextBuffer(capacity);
    buffer->SetGeometry(TEXT_LEFT, CLIENT_WIDTH, Widths());
    const std::vector<std::string> lines = Lines();
    for (std::size_t i = 0; !buffer->IsWrapped() || i % lines.size() != 0; ++i)
        buffer->AppendText(lines[i % lines.size()].c_str(), true);
    return buffer;
}

// A window system whose window can be resized.
class ResizingHost : public NullWindowHost {
  public:
    Rect GetClientRect() const override { return client; }
    Rect client{0, 0, CLIENT_WIDTH, 808};
};

TextBuffer& Shared64MB()
{
    static std::unique_ptr<TextBuffer> buffer = FullBuffer(LARGE_CAPACITY);
    return *buffer;
}

// A word that never occurs, so every byte of the ring is looked at; 0 searches forward,
// 1 backward, each without regard to case.
void BM_FindAbsentWord(benchmark::State& state)
{
    TextBuffer& buffer = Shared64MB();
    const auto direction = state.range(0) == 0 ? SearchDirection::Newer : SearchDirection::Older;
    for (auto _ : state) {
        const TextHit hit =
            FindText(buffer, "griffin", direction == SearchDirection::Newer ? 0 : INT32_MAX,
                     direction, false);
        benchmark::DoNotOptimize(hit);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * LARGE_CAPACITY);
}
BENCHMARK(BM_FindAbsentWord)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// A resize of a live window with the longest scrollback: its text wrapped again.
void BM_Rewrap64MB(benchmark::State& state)
{
    TextBuffer& buffer = Shared64MB();
    std::int32_t width = CLIENT_WIDTH;
    for (auto _ : state) {
        width = width == CLIENT_WIDTH ? CLIENT_WIDTH / 2 : CLIENT_WIDTH;
        buffer.SetGeometry(TEXT_LEFT, width, Widths());
        buffer.Rewrap();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * LARGE_CAPACITY);
}
BENCHMARK(BM_Rewrap64MB)->Unit(benchmark::kMillisecond);

// A resize of a frozen Game window with the longest scrollback: both rings wrapped again and
// the view kept on its top line.
void BM_ResizeFrozen64MB(benchmark::State& state)
{
    ResizingHost host;
    Settings settings;
    auto window = AnsiWindow::Create(
        "Game Window", {host, settings, nullptr, nullptr, nullptr, nullptr, LARGE_CAPACITY});
    window->Size(false);
    const std::vector<std::string> lines = Lines();
    for (std::size_t i = 0; !window->GetLiveBuffer().IsWrapped() || i % lines.size() != 0; ++i)
        window->AppendText(lines[i % lines.size()].c_str());
    window->ApplyScrollCommand(SB_PAGEUP, 0);
    std::int32_t width = CLIENT_WIDTH;
    for (auto _ : state) {
        width = width == CLIENT_WIDTH ? CLIENT_WIDTH / 2 : CLIENT_WIDTH;
        host.client.right = width;
        window->Size(false);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * LARGE_CAPACITY * 2);
}
BENCHMARK(BM_ResizeFrozen64MB)->Unit(benchmark::kMillisecond);

// The receive path's appends into a full ring of the standard Game size (0) and of the
// longest scrollback (1): the cost per byte must not grow with the ring.
void BM_AppendIntoFullRing(benchmark::State& state)
{
    auto buffer = FullBuffer(state.range(0) == 0 ? GAME_BUFFER_CAPACITY : LARGE_CAPACITY);
    const std::vector<std::string> lines = Lines();
    std::int64_t bytes = 0;
    for (auto _ : state) {
        for (const std::string& line : lines) {
            buffer->AppendText(line.c_str(), true);
            bytes += static_cast<std::int64_t>(line.size());
        }
    }
    state.SetBytesProcessed(bytes);
}
BENCHMARK(BM_AppendIntoFullRing)->Arg(0)->Arg(1);

} // namespace
} // namespace steward
