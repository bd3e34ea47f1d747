#pragma once

#include "terminal/TextBuffer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace steward::test {

// Every character is this wide, so a limit of CHAR_PIXELS * n + 1 holds exactly n of them.
constexpr std::int32_t CHAR_PIXELS = 8;
constexpr std::uint32_t SMALL_CAPACITY = 200;
// Offset of the first appended byte in a fresh buffer.
constexpr std::int32_t TEXT_START = INITIAL_LINE_FEEDS - 1;

inline std::int32_t LimitForColumns(std::int32_t columns)
{
    return CHAR_PIXELS * columns + 1;
}

inline CharWidthTable UniformWidths()
{
    CharWidthTable widths;
    widths.fill(CHAR_PIXELS);
    return widths;
}

inline std::unique_ptr<TextBuffer> MakeBuffer(std::uint32_t capacity = WINDOW_BUFFER_CAPACITY)
{
    auto buffer = TextBuffer::CreateTextBuffer(capacity);
    EXPECT_NE(buffer, nullptr);
    return buffer;
}

// A buffer that wraps after the given number of characters, margin 0, holding text.
inline std::unique_ptr<TextBuffer>
MakeWrappingBuffer(std::int32_t columns, std::uint32_t capacity = WINDOW_BUFFER_CAPACITY,
                   const char* text = "")
{
    auto buffer = MakeBuffer(capacity);
    buffer->SetGeometry(0, LimitForColumns(columns), UniformWidths());
    buffer->AppendText(text, true);
    return buffer;
}

inline std::unique_ptr<TextBuffer> BufferWith(const char* text,
                                              std::uint32_t capacity = WINDOW_BUFFER_CAPACITY)
{
    auto buffer = MakeBuffer(capacity);
    buffer->AppendText(text, true);
    return buffer;
}

inline void Resize(TextBuffer& buffer, std::int32_t columns)
{
    buffer.SetGeometry(0, LimitForColumns(columns), UniformWidths());
    buffer.Rewrap();
}

// Reads one line at WalkPos without selection marks.
inline std::string ReadOne(TextBuffer& buffer)
{
    char line[READ_LINE_BUFFER_SIZE];
    std::int32_t limit = READ_LINE_LIMIT;
    return buffer.ReadLine(line, limit, false, nullptr);
}

// The rows a live window of that height shows.
inline std::vector<std::string> LastRows(TextBuffer& buffer, std::int32_t rows)
{
    buffer.SeekFromEnd(rows);
    std::vector<std::string> shown;
    for (std::int32_t i = 0; i < rows; ++i)
        shown.push_back(ReadOne(buffer));
    return shown;
}

// Every line from HeadPos on, as the paint of a frozen view reads them.
inline std::vector<std::string> AllLines(TextBuffer& buffer)
{
    const std::int32_t count = buffer.CountLines();
    buffer.SeekLine(0);
    std::vector<std::string> lines;
    for (std::int32_t i = 0; i < count; ++i)
        lines.push_back(ReadOne(buffer));
    return lines;
}

// The stored bytes from HeadPos up to WritePos, walked along the ring.
inline std::string RingText(const TextBuffer& buffer)
{
    std::string text;
    for (auto p = buffer.GetHeadPos(); p != buffer.GetWritePos(); p = buffer.Next(p))
        text.push_back(static_cast<char>(buffer.ByteAt(p)));
    return text;
}

// The clipboard form of the whole text, with generous room.
inline std::string CopiedText(const TextBuffer& buffer)
{
    std::vector<char> out(buffer.GetCapacity() * 2 + 8);
    return std::string(out.data(), buffer.CopyAsText(out.data(), out.size()));
}

} // namespace steward::test
