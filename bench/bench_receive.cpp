#include "config/Settings.h"
#include "connection/GameLineSink.h"
#include "connection/PacketDump.h"
#include "connection/StreamDecoder.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

namespace steward {
namespace {

constexpr std::size_t STREAM_SIZE = 4 * 1024 * 1024;
constexpr std::size_t BLOCK_SIZE = 1024;

const char* const NAMES[] = {"Mara", "Kaelen", "Oswin", "Thessaly", "Brannoc", "Ilse"};
const char* const PLACES[] = {"the old mill", "the market square", "the river ford",
                              "the chapel of the moon", "the western gate"};
const char* const SPOKEN[] = {"Shall we go to the market?", "Watch your back out there.",
                              "I have silver for the ferry.", "Hail and well met!"};

// A 70-byte status record: ESC ESC, prompt, hexadecimal fields, closing ESC, CR LF.
std::string StatusRecord(std::mt19937& random)
{
    char record[80];
    std::snprintf(record, sizeof record,
                  "\x1B\x1B>%04X0064%04X0064001E001E00140014%08X%08X%04X01F40000%04X00\x1B\r\n",
                  static_cast<unsigned>(random() % 100), static_cast<unsigned>(random() % 100),
                  static_cast<unsigned>(random() % 5000), static_cast<unsigned>(random() % 50),
                  static_cast<unsigned>(random() % 500), static_cast<unsigned>(random() % 6));
    return record;
}

// One line of a day's play, picked at random with the weights a player sees.
std::string PlayLine(std::mt19937& random)
{
    const char* name = NAMES[random() % std::size(NAMES)];
    const char* place = PLACES[random() % std::size(PLACES)];
    char line[200];
    switch (random() % 10) {
    case 0:
    case 1:
    case 2:
        std::snprintf(line, sizeof line,
                      "You are standing near %s. The wind moves the long grass.\r\n", place);
        break;
    case 3:
    case 4:
        std::snprintf(line, sizeof line,
                      "\x1B"
                      "1ab%s says,\x1B"
                      "0ab \"%s\"\r\n",
                      name, SPOKEN[random() % std::size(SPOKEN)]);
        break;
    case 5:
        std::snprintf(line, sizeof line, "Obvious exits: north, east, southwest, up.\r\n");
        break;
    case 6:
    case 7:
        return StatusRecord(random);
    case 8:
        std::snprintf(line, sizeof line, "%s thinks to you, \"Meet me at %s.\"\r\n", name, place);
        break;
    default:
        std::snprintf(line, sizeof line, " ** %s just arrived in the world.\r\n", name);
        break;
    }
    return line;
}

std::string GenerateStream()
{
    std::mt19937 random(20261123);
    std::string stream;
    stream.reserve(STREAM_SIZE + 256);
    while (stream.size() < STREAM_SIZE)
        stream += PlayLine(random);
    stream.resize(STREAM_SIZE);
    return stream;
}

class CountingSink : public GameLineSink {
  public:
    void ProcessGameLine(const char* line) override
    {
        ++lines;
        bytes += std::strlen(line);
    }
    std::size_t lines = 0;
    std::size_t bytes = 0;
};

void ReceiveStream(benchmark::State& state, bool hold, const char* dumpPath = nullptr)
{
    const std::string stream = GenerateStream();
    CountingSink sink;
    PacketDump dump;
    if (dumpPath && !dump.OpenNew(dumpPath)) {
        state.SkipWithError("cannot open the dump");
        return;
    }
    Settings settings;
    StreamDecoder decoder(sink, dump, settings);
    decoder.SetHoldPartialLines(hold);
    for (auto _ : state) {
        for (std::size_t at = 0; at < stream.size(); at += BLOCK_SIZE) {
            decoder.HandleSocketEvent(stream.data() + at, BLOCK_SIZE);
            // The main loop's turn between two blocks.
            dump.FlushIfFull();
        }
        benchmark::DoNotOptimize(sink.bytes);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * stream.size()));
    state.counters["lines/s"] =
        benchmark::Counter(static_cast<double>(sink.lines), benchmark::Counter::kIsRate);
}

// Once the status record mode is on, a block's tail waits for its line end.
void BM_ReceiveHeld(benchmark::State& state)
{
    ReceiveStream(state, true);
}

// Before it, every block ends a line.
void BM_ReceiveNotHeld(benchmark::State& state)
{
    ReceiveStream(state, false);
}

// The diagnostic dump open, written out from the main loop as it fills.
void BM_ReceiveDumped(benchmark::State& state)
{
    ReceiveStream(state, true, "/dev/null");
}

BENCHMARK(BM_ReceiveHeld);
BENCHMARK(BM_ReceiveNotHeld);
BENCHMARK(BM_ReceiveDumped);

} // namespace
} // namespace steward
