// A replay file as --replay reads it, a packet dump or raw bytes: every block fits the receive
// buffer, and the blocks read, dumped again, read back into themselves without a problem.
#include "FuzzFiles.h"

#include "connection/PacketDump.h"
#include "connection/ReplayFile.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace steward::fuzz {
namespace {

// The blocks of the file, as the decoder would see them: up to a NUL, empty ones left out.
std::vector<std::string> ReadBlocks(const std::string& path, std::size_t rawBlockSize,
                                    DumpProblems* problems)
{
    ReplayFile file;
    if (!file.Open(path.c_str()))
        std::abort();
    std::vector<std::string> blocks;
    char block[RECEIVE_CHUNK_MAX];
    while (const std::size_t length = file.NextBlock(block, rawBlockSize))
        if (const std::string seen(block, strnlen(block, length)); !seen.empty())
            blocks.push_back(seen);
    if (problems)
        *problems = file.Problems();
    return blocks;
}

} // namespace
} // namespace steward::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace steward;
    // Raw bytes come in blocks whose size follows the input's length, from 1 to the largest.
    const std::vector<std::string> blocks = fuzz::ReadBlocks(
        fuzz::InputFile("Fuzz.dump", data, size), 1 + size % RECEIVE_CHUNK_MAX, nullptr);
    const std::string again = (fuzz::ScratchFolder() / "Again.dump").string();
    PacketDump dump;
    if (!dump.OpenNew(again.c_str()))
        std::abort();
    for (const std::string& block : blocks) {
        DumpPacket(dump, block.c_str());
        if (!dump.Flush())
            std::abort();
    }
    dump.Close();
    DumpProblems problems;
    if (fuzz::ReadBlocks(again, RECEIVE_CHUNK_MAX, &problems) != blocks ||
        problems.BrokenRows != 0 || problems.UnevenBlocks != 0 || problems.CutRow)
        std::abort();
    return 0;
}
