#include "terminal/TextBuffer.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace steward {
namespace {

constexpr int PLAY_LINES = 4000;
// A window of about 800 pixels with an 8-pixel font, and the rows of a full-height window.
constexpr std::int32_t TEXT_LEFT = 4;
constexpr std::int32_t CLIENT_WIDTH = 800;
constexpr std::int32_t SCREEN_ROWS = 48;

const char* const NAMES[] = {"Mara", "Kaelen", "Oswin", "Thessaly", "Brannoc", "Ilse"};
const char* const PLACES[] = {"the old mill", "the market square", "the river ford",
                              "the chapel of the moon", "the western gate"};
const char* const CREATURES[] = {"a grey wolf", "an orc raider", "a cave bear", "a young drake"};

// One decoded line as the line pipeline hands it to a window: colour codes, some long
// descriptions that wrap, short prompts, now and then a tab.
std::string PlayLine(std::mt19937& random)
{
    const char* name = NAMES[random() % std::size(NAMES)];
    const char* place = PLACES[random() % std::size(PLACES)];
    const char* creature = CREATURES[random() % std::size(CREATURES)];
    char line[400];
    switch (random() % 6) {
    case 0:
        std::snprintf(line, sizeof line,
                      "\x8E[%s]\xA0 You stand near %s. The wind moves the long grass and far "
                      "away a bell rings over the water, where the ferry waits for travellers "
                      "with silver in their purses.\n",
                      place, place);
        break;
    case 1:
        std::snprintf(line, sizeof line, "\x8A%s says,\xA0 \"Shall we go to %s?\"\n", name, place);
        break;
    case 2:
        std::snprintf(line, sizeof line, "Obvious exits: north, east, southwest, up.\n");
        break;
    case 3:
        std::snprintf(line, sizeof line, "\x8C%s\xA0 attacks you and misses.\tYou parry.\n",
                      creature);
        break;
    case 4:
        std::snprintf(line, sizeof line, "\x89%s\xA0 arrives from the north.\n", name);
        break;
    default:
        std::snprintf(line, sizeof line, "\n>");
        break;
    }
    return line;
}

std::vector<std::string> PlayLines()
{
    std::mt19937 random(7);
    std::vector<std::string> lines;
    for (int i = 0; i < PLAY_LINES; ++i) {
        lines.push_back(PlayLine(random));
    }
    return lines;
}

std::unique_ptr<TextBuffer> GameBuffer()
{
    auto buffer = TextBuffer::CreateTextBuffer(GAME_BUFFER_CAPACITY);
    CharWidthTable widths;
    widths.fill(8);
    buffer->SetGeometry(TEXT_LEFT, CLIENT_WIDTH, widths);
    return buffer;
}

// The receive path: every line appended to a full, wrapping game window.
void BM_AppendGameLines(benchmark::State& state)
{
    const std::vector<std::string> lines = PlayLines();
    auto buffer = GameBuffer();
    std::int64_t bytes = 0;
    for (auto _ : state) {
        for (const std::string& line : lines) {
            buffer->AppendText(line.c_str(), true);
            bytes += static_cast<std::int64_t>(line.size());
        }
    }
    benchmark::DoNotOptimize(buffer->GetWritePos());
    state.SetBytesProcessed(bytes);
}
BENCHMARK(BM_AppendGameLines);

// A flood without spaces or line feeds: no break is possible, and every character asks again.
void BM_AppendUnbreakableFlood(benchmark::State& state)
{
    const std::string block(4096, 'x');
    auto buffer = GameBuffer();
    std::int64_t bytes = 0;
    for (auto _ : state) {
        buffer->AppendText(block.c_str(), true);
        bytes += static_cast<std::int64_t>(block.size());
    }
    benchmark::DoNotOptimize(buffer->GetWritePos());
    state.SetBytesProcessed(bytes);
}
BENCHMARK(BM_AppendUnbreakableFlood);

// The paint path of a live window: position on the tail, read one screen of rows.
void BM_ReadLastScreen(benchmark::State& state)
{
    auto buffer = GameBuffer();
    for (const std::string& line : PlayLines()) {
        buffer->AppendText(line.c_str(), true);
    }
    buffer->SetSelection(1000, 60000);
    char row[READ_LINE_BUFFER_SIZE];
    std::int64_t bytes = 0;
    for (auto _ : state) {
        buffer->SeekFromEnd(SCREEN_ROWS);
        for (std::int32_t i = 0; i < SCREEN_ROWS; ++i) {
            std::int32_t limit = READ_LINE_LIMIT;
            bool seen = false;
            buffer->ReadLine(row, limit, true, &seen);
            bytes += limit;
        }
        benchmark::DoNotOptimize(row);
    }
    state.SetBytesProcessed(bytes);
}
BENCHMARK(BM_ReadLastScreen);

// A resize of a full game window.
void BM_RewrapFullBuffer(benchmark::State& state)
{
    auto buffer = GameBuffer();
    for (const std::string& line : PlayLines()) {
        buffer->AppendText(line.c_str(), true);
    }
    CharWidthTable widths;
    widths.fill(8);
    std::int32_t width = CLIENT_WIDTH;
    for (auto _ : state) {
        width = width == CLIENT_WIDTH ? CLIENT_WIDTH / 2 : CLIENT_WIDTH;
        buffer->SetGeometry(TEXT_LEFT, width, widths);
        buffer->Rewrap();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * GAME_BUFFER_CAPACITY);
}
BENCHMARK(BM_RewrapFullBuffer);

} // namespace
} // namespace steward
