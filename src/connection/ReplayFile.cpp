#include "connection/ReplayFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <filesystem>

namespace steward {

namespace {

constexpr char DUMP_HEADER_START[] = "---- (";
// A dump begins with line ends and then its first header.
constexpr std::size_t FORMAT_PROBE = 16;
// Text allows one byte in this many to be something else, such as a stray control byte.
constexpr std::size_t ODD_BYTE_SHARE = 8;

ReplayFormat FormatOf(const char* head, std::size_t length)
{
    if (length == 0)
        return ReplayFormat::Empty;
    std::size_t at = 0;
    while (at < length && (head[at] == '\r' || head[at] == '\n'))
        ++at;
    const std::size_t start = sizeof DUMP_HEADER_START - 1;
    return length - at >= start && std::memcmp(head + at, DUMP_HEADER_START, start) == 0
               ? ReplayFormat::PacketDump
               : ReplayFormat::RawBytes;
}

bool IsTextByte(unsigned char byte)
{
    return (byte >= 0x20 && byte < 0x7F) || (byte >= 0x07 && byte <= 0x0D) || byte == 0x1B;
}

} // namespace

bool ReplayFile::Open(const char* path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return false;
    file_.open(path, std::ios::binary);
    if (!file_.is_open())
        return false;
    char head[FORMAT_PROBE];
    file_.read(head, sizeof head);
    const auto got = static_cast<std::size_t>(file_.gcount());
    if (file_.bad())
        return false;
    file_.clear();
    if (!file_.seekg(0))
        return false;
    format_ = FormatOf(head, got);
    if (format_ == ReplayFormat::PacketDump)
        dump_.emplace(file_);
    return true;
}

std::size_t ReplayFile::NextBlock(char (&out)[RECEIVE_CHUNK_MAX], std::size_t rawBlockSize)
{
    if (dump_)
        return dump_->NextBlock(out);
    if (!file_.is_open() || file_.eof() || failed_)
        return 0;
    file_.read(out, static_cast<std::streamsize>(std::clamp<std::size_t>(
                        rawBlockSize, 1, static_cast<std::size_t>(RECEIVE_CHUNK_MAX))));
    failed_ = file_.bad();
    return static_cast<std::size_t>(file_.gcount());
}

DumpProblems ReplayFile::Problems() const
{
    return dump_ ? dump_->Problems() : DumpProblems{};
}

bool ReplayFile::ReadFailed() const
{
    return failed_ || (dump_ && dump_->ReadFailed());
}

bool LooksLikeGameText(const char* bytes, std::size_t length)
{
    if (std::memchr(bytes, '\0', length))
        return false;
    const auto odd = static_cast<std::size_t>(std::count_if(
        bytes, bytes + length, [](char c) { return !IsTextByte(static_cast<unsigned char>(c)); }));
    return odd * ODD_BYTE_SHARE <= length;
}

bool ReadReplaySpeed(const char* text, double& speed)
{
    // from_chars reads the same in every locale, which the window system may have switched.
    double value = 0;
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value) || value < 0)
        return false;
    speed = value;
    return true;
}

int ReplayWaitMs(double speed)
{
    if (speed <= 0)
        return 0;
    return static_cast<int>(
        std::lround(std::min<double>(REPLAY_BLOCK_MS / speed, REPLAY_LONGEST_WAIT_MS)));
}

} // namespace steward
