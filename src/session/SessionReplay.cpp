#include "session/SessionReplay.h"

#include <cstdarg>
#include <cstdio>

namespace steward {

namespace {

// Long enough for every message below with a full file name.
constexpr std::size_t SAY_SIZE = 512;
static_assert(SAY_SIZE > REPLAY_NAME_SIZE + 200);

// A name shown in a window holds printable ASCII only: other bytes would read as colour codes.
void ShownName(char (&out)[REPLAY_NAME_SIZE], const char* path)
{
    std::size_t n = 0;
    for (; n + 1 < sizeof out && path[n]; ++n) {
        const auto byte = static_cast<unsigned char>(path[n]);
        out[n] = byte >= 0x20 && byte < 0x7F ? path[n] : '?';
    }
    out[n] = '\0';
}

} // namespace

SessionReplay::SessionReplay(SocketListener& link, Print print)
    : link_(link), print_(std::move(print))
{
}

bool SessionReplay::Open(const char* path)
{
    ShownName(name_, path);
    if (!file_.Open(path)) {
        Say("\r\n\r\n*** The replay file %s cannot be read.\r\n\r\n", name_);
        return false;
    }
    switch (file_.Format()) {
    case ReplayFormat::Empty:
        Say("\r\n\r\n*** The replay file %s is empty: there is nothing to play.\r\n\r\n", name_);
        return false;
    case ReplayFormat::PacketDump:
        Say("\r\n\r\n*** Replaying the packet dump %s: nothing is sent to the game.\r\n\r\n",
            name_);
        break;
    case ReplayFormat::RawBytes:
        Say("\r\n\r\n*** Replaying %s as received bytes: nothing is sent to the game.\r\n\r\n",
            name_);
        break;
    }
    playing_ = true;
    return true;
}

bool SessionReplay::PlayNextBlock()
{
    if (!playing_)
        return false;
    const std::size_t length = file_.NextBlock(block_, link_.BlockSize());
    if (length == 0) {
        Finish();
        return false;
    }
    if (blocks_ == 0 && file_.Format() == ReplayFormat::RawBytes &&
        !LooksLikeGameText(block_, length))
        Say("\r\n*** %s does not look like text from the game: it is played all the same.\r\n",
            name_);
    ++blocks_;
    bytes_ += length;
    link_.ReceiveBlock(block_, length);
    return true;
}

void SessionReplay::Finish()
{
    playing_ = false;
    const DumpProblems problems = file_.Problems();
    if (problems.BrokenRows > 0)
        Say("\r\n*** Broken rows in the packet dump: %llu, the first on line %llu; what could "
            "be read of them was played.\r\n",
            static_cast<unsigned long long>(problems.BrokenRows),
            static_cast<unsigned long long>(problems.FirstBrokenLine));
    if (problems.UnevenBlocks > 0)
        Say("\r\n*** Blocks of the packet dump whose rows do not add up to their header: %llu "
            "(rows were lost when it was written).\r\n",
            static_cast<unsigned long long>(problems.UnevenBlocks));
    if (problems.CutRow)
        Say("\r\n*** The packet dump ends inside a row: the row was played as far as it "
            "goes.\r\n");
    if (file_.ReadFailed())
        Say("\r\n*** Reading %s failed before its end.\r\n", name_);
    Say("\r\n\r\n*** End of the replay: %llu blocks, %llu bytes.\r\n\r\n",
        static_cast<unsigned long long>(blocks_), static_cast<unsigned long long>(bytes_));
}

void SessionReplay::Say(const char* format, ...)
{
    char text[SAY_SIZE];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    print_(text);
}

} // namespace steward
