// The received byte stream, cut into blocks whose sizes the input's first bytes choose, through
// the game link (decoder, line pipeline with its status record and highlights) into the three
// text windows, which are painted at the end.
#include "FuzzFiles.h"

#include "analysis/PipelineFixture.h"
#include "connection/PacketDump.h"
#include "connection/RecordingSocket.h"
#include "session/GameLink.h"

#include <algorithm>
#include <memory>
#include <random>

namespace steward::fuzz {
namespace {

// Option bits of the first byte; the second seeds the block sizes.
void ApplyOptions(std::uint8_t bits, Settings& options)
{
    options.CompressThoughtMessages = bits & 1;
    options.OnlyListedArrivals = (bits >> 1) & 1;
    options.ShowStatusPrompt = (bits >> 2) & 1;
    options.ReceiveChunkSize = 1 + (bits >> 4) * 300;
}

void Receive(const std::uint8_t* data, std::size_t size)
{
    Settings options;
    ApplyOptions(data[0], options);
    testing::FakeHost host;
    host.client = {0, 0, 640, 480};
    testing::RecordingQueue queue;
    testing::RecordingSounds sounds;
    testing::FixedClock clock;
    BufferedLog sessionLog;
    sessionLog.OpenNew((ScratchFolder() / "Session.Log").c_str());
    HighlightStore highlights;
    highlights.StringHighlights.Add("{Chime}salmon", 12);
    highlights.StringHighlights.Add("$*Obvious", 0x1E);
    highlights.NameHighlights.Add("Mara", 14);
    ChildWindows windows;
    ScriptWaitState script;
    StatusPanel panel;
    Tokenizer words;
    PacketDump dump;
    testing::RecordingSocket socket;
    GameLink link{{options, sessionLog, highlights, sounds, windows, queue, script, panel, words,
                   clock, nullptr},
                  dump,
                  socket};
    std::unique_ptr<AnsiWindow> game =
        AnsiWindow::Create("Game Window", {host, options, nullptr, &link.Pipeline().Prompt()});
    std::unique_ptr<AnsiWindow> thought =
        AnsiWindow::Create("Thought Window", {host, options, nullptr, nullptr});
    std::unique_ptr<AnsiWindow> arrival =
        AnsiWindow::Create("Arrival Window", {host, options, nullptr, nullptr});
    windows = {game.get(), thought.get(), arrival.get()};
    link.SetHoldPartialLines((data[0] >> 3) & 1);

    std::minstd_rand blockSizes(data[1]);
    const char* bytes = reinterpret_cast<const char*>(data + 2);
    std::size_t left = size - 2;
    while (left > 0) {
        const std::size_t block = std::min(left, 1 + blockSizes() % link.BlockSize());
        link.ReceiveBlock(bytes, block);
        bytes += block;
        left -= block;
        sessionLog.FlushIfFull();
    }
    for (AnsiWindow* window : {game.get(), thought.get(), arrival.get()}) {
        testing::RecordingLayer layer;
        window->Paint(layer, true);
    }
}

} // namespace
} // namespace steward::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size >= 2)
        steward::fuzz::Receive(data, size);
    return 0;
}
