#include "config/Settings.h"
#include "connection/GameLineSink.h"
#include "connection/PacketDump.h"
#include "connection/StreamDecoder.h"

#include "GameLines.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstring>
#include <string>

namespace steward {
namespace {

constexpr std::size_t STREAM_SIZE = 4 * 1024 * 1024;
constexpr std::size_t BLOCK_SIZE = 1024;

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
    const std::string stream = bench::PlayStream(STREAM_SIZE);
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
