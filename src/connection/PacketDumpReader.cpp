#include "connection/PacketDumpReader.h"

#include <cstring>
#include <limits>
#include <optional>

namespace steward {

namespace {

constexpr char HEADER_START[] = "---- (";
constexpr char HEADER_END[] = " bytes)";
// A header's count has at most this many digits.
constexpr std::size_t HEADER_DIGITS = 18;

struct Row {
    unsigned char Bytes[DUMP_ROW_BYTES];
    std::size_t Count = 0;
    bool WellFormed = false;
};

int HexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

// "---- (N bytes)" gives N.
std::optional<std::uint64_t> ParseHeader(const char* line, std::size_t length)
{
    constexpr std::size_t start = sizeof HEADER_START - 1;
    constexpr std::size_t end = sizeof HEADER_END - 1;
    if (length <= start + end || std::memcmp(line, HEADER_START, start) != 0 ||
        std::memcmp(line + length - end, HEADER_END, end) != 0)
        return std::nullopt;
    const std::size_t digits = length - start - end;
    if (digits > HEADER_DIGITS)
        return std::nullopt;
    std::uint64_t count = 0;
    for (std::size_t i = start; i < start + digits; ++i) {
        if (line[i] < '0' || line[i] > '9')
            return std::nullopt;
        count = count * 10 + static_cast<std::uint64_t>(line[i] - '0');
    }
    return count;
}

// The hex pairs at the start of the line, as many as stand in a row's layout; the row is
// well-formed when the blanks and the text part agree with them.
Row ParseRow(const char* line, std::size_t length)
{
    Row row;
    while (row.Count < DUMP_ROW_BYTES) {
        const std::size_t at = 3 * row.Count;
        if (at + 1 >= length)
            break;
        const int high = HexValue(line[at]);
        const int low = HexValue(line[at + 1]);
        if (high < 0 || low < 0 || (at + 2 < length && line[at + 2] != ' '))
            break;
        row.Bytes[row.Count++] = static_cast<unsigned char>(high << 4 | low);
    }
    if (row.Count == 0 || length != DUMP_TEXT_COLUMN + row.Count)
        return row;
    for (std::size_t i = 3 * row.Count; i < DUMP_TEXT_COLUMN; ++i)
        if (line[i] != ' ')
            return row;
    for (std::size_t i = 0; i < row.Count; ++i)
        if (line[DUMP_TEXT_COLUMN + i] != DumpCharacter(row.Bytes[i]))
            return row;
    row.WellFormed = true;
    return row;
}

} // namespace

PacketDumpReader::PacketDumpReader(std::istream& in) : in_(in) {}

// One line without its line end into line_; a longer line keeps its first DUMP_LINE_LIMIT
// characters and the rest is skipped unread. False at the end of the file.
bool PacketDumpReader::ReadLine()
{
    in_.getline(line_, sizeof line_);
    const std::streamsize got = in_.gcount();
    if (in_.bad()) {
        failed_ = true;
        return false;
    }
    if (got == 0 && in_.eof())
        return false;
    ++lineNumber_;
    tooLong_ = in_.fail() && !in_.eof();
    if (tooLong_) {
        in_.clear();
        in_.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        failed_ = in_.bad();
        terminated_ = !in_.eof();
        length_ = DUMP_LINE_LIMIT;
        return true;
    }
    terminated_ = !in_.eof();
    length_ = static_cast<std::size_t>(got) - (terminated_ ? 1 : 0);
    if (length_ > 0 && line_[length_ - 1] == '\r')
        --length_;
    return true;
}

std::size_t PacketDumpReader::NextBlock(char (&out)[RECEIVE_CHUNK_MAX])
{
    std::memcpy(out, pending_, pendingCount_);
    std::size_t length = pendingCount_;
    pendingCount_ = 0;
    while (ReadLine()) {
        if (length_ == 0)
            continue;
        if (const std::optional<std::uint64_t> size = ParseHeader(line_, length_)) {
            FinishBlock();
            headerSeen_ = true;
            expected_ = *size;
            if (length > 0)
                return length;
            continue;
        }
        const Row row = ParseRow(line_, length_);
        if (tooLong_ || (terminated_ && !row.WellFormed))
            NoteBrokenRow();
        else if (!terminated_)
            problems_.CutRow = true;
        listed_ += row.Count;
        if (length + row.Count > RECEIVE_CHUNK_MAX) {
            std::memcpy(pending_, row.Bytes, row.Count);
            pendingCount_ = row.Count;
            return length;
        }
        std::memcpy(out + length, row.Bytes, row.Count);
        length += row.Count;
    }
    FinishBlock();
    return length;
}

void PacketDumpReader::FinishBlock()
{
    if (headerSeen_ && listed_ != expected_)
        ++problems_.UnevenBlocks;
    headerSeen_ = false;
    listed_ = 0;
}

void PacketDumpReader::NoteBrokenRow()
{
    if (problems_.BrokenRows++ == 0)
        problems_.FirstBrokenLine = lineNumber_;
}

} // namespace steward
