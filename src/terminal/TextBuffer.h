#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "base/ColorCode.h"

namespace steward {

// Ring sizes of a window's two buffers: a window whose name begins "Ga" gets the larger one.
constexpr std::uint32_t GAME_BUFFER_CAPACITY = 64000;
constexpr std::uint32_t WINDOW_BUFFER_CAPACITY = 16384;

// A fresh ring holds this many line feeds, so the first text shows at the bottom as on a full
// screen; a ring must be larger than that.
constexpr std::uint32_t INITIAL_LINE_FEEDS = 100;
constexpr std::uint32_t MIN_BUFFER_CAPACITY = INITIAL_LINE_FEEDS + 1;

constexpr std::int32_t TAB_WIDTH = 8;
constexpr std::int32_t INITIAL_WRAP_LIMIT = 1000;
constexpr std::int32_t INITIAL_CHAR_WIDTH = 8;
// The wrap limit stays at least this many pixels right of the left margin.
constexpr std::int32_t MIN_WRAP_WIDTH = 25;

// The most text bytes that a painted row shows; a ReadLine output needs room for the limit,
// two selection marks and the NUL.
constexpr std::int32_t READ_LINE_LIMIT = 511;
constexpr std::int32_t READ_LINE_EXTRA = 3;
constexpr std::size_t READ_LINE_BUFFER_SIZE = READ_LINE_LIMIT + READ_LINE_EXTRA;

// Bytes with a meaning of their own in the ring.
constexpr unsigned char HARD_LINE_END = 0x0A;
constexpr unsigned char SOFT_LINE_END = 0xFF;
// Stands at the write position after every append, so the backward walk of SeekFromEnd never
// begins on a terminator left over from old text.
constexpr unsigned char WRITE_MARK = '_';
// ReadLine brackets selected text with the inverse colour codes.
constexpr unsigned char SELECTION_MARK_ON = COLOR_INVERSE_ON;
constexpr unsigned char SELECTION_MARK_OFF = COLOR_INVERSE_OFF;

// Width in pixels of every byte value, colour codes included.
using CharWidthTable = std::array<std::int32_t, 256>;

// The platform's exclamation sound, played for each bell byte that is appended.
class BellListener {
  public:
    virtual ~BellListener() = default;
    virtual void Beep() = 0;
};

// The text of one window as a ring of bytes, colour codes included, broken into display lines
// by hard (0x0A) and soft (0xFF) line ends. A position is an index into the ring; a selection
// end is a distance from HeadPos, so it stays valid while the oldest text is dropped.
class TextBuffer {
  public:
    using Position = std::uint32_t;

    // Null when the capacity is below MIN_BUFFER_CAPACITY, above INT32_MAX, or the ring
    // cannot be allocated.
    static std::unique_ptr<TextBuffer> CreateTextBuffer(std::uint32_t capacity);

    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;

    // Not owned; null keeps bells silent.
    void SetBellListener(BellListener* listener) { bell_ = listener; }

    std::uint32_t GetCapacity() const { return Capacity; }
    Position GetWritePos() const { return WritePos; }
    Position GetHeadPos() const { return HeadPos; }
    Position GetWalkPos() const { return WalkPos; }
    std::int32_t GetSelStart() const { return SelStart; }
    std::int32_t GetSelEnd() const { return SelEnd; }
    bool IsWrapped() const { return Wrapped; }
    std::int32_t GetWrapLimit() const { return WrapLimit; }

    // Ring walking, for the selection and hit-testing code outside this class. Results always
    // lie in the ring; ByteAt and Offset take a position outside it modulo the capacity.
    Position Next(Position p) const;
    Position Prev(Position p) const;
    unsigned char ByteAt(Position p) const;
    // Distance of p from HeadPos along the ring.
    std::int32_t Offset(Position p) const;
    // A count below 1 returns position unchanged.
    Position AdvancePos(Position position, std::int32_t count) const;

    // The text from HeadPos to WritePos as it lies in the ring: one run, or two when it crosses
    // the seam, oldest first, so that searches can scan the bytes in place.
    struct TextRuns {
        const unsigned char* First;
        std::uint32_t FirstLength;
        const unsigned char* Second;
        std::uint32_t SecondLength;
    };
    TextRuns Runs() const;

    // Called on each resize, before Rewrap; the wrap limit stays MIN_WRAP_WIDTH right of the
    // margin at least.
    void SetGeometry(std::int32_t leftMargin, std::int32_t width, const CharWidthTable& charWidths);
    // text is NUL-terminated; trackSelection is true while the window is live, so the selection
    // follows the oldest text as it is dropped. Allocates nothing.
    void AppendText(const char* text, bool trackSelection);
    // Redoes every soft line end for the current wrap limit, in place.
    void Rewrap();

    // A final line feed opens no new line; an unfinished last line counts as one.
    std::int32_t CountLines() const;
    // Puts WalkPos on the first byte of line index, counted from HeadPos, and returns it.
    Position SeekLine(std::int32_t index);
    // Puts WalkPos where a window of that many rows, showing the tail, begins.
    void SeekFromEnd(std::int32_t rows);
    // out needs room for limit + READ_LINE_EXTRA bytes; limit comes back as the text bytes
    // copied. selectionSeen may be null.
    char* ReadLine(char* out, std::int32_t& limit, bool useSelection, bool* selectionSeen);
    // Terminators between HeadPos and position, or 0 if the text ends before position.
    std::int32_t LineIndexOf(Position position) const;

    // Whole text in clipboard form, never more than room bytes with the NUL; returns the
    // length without the NUL.
    std::size_t CopyAsText(char* out, std::size_t room) const;

    void SetSelection(std::int32_t selStart, std::int32_t selEnd);
    void ClearSelection();

    // The mouse's selection: each call takes a position in the ring. BeginSelection returns
    // whether a selection existed before.
    bool BeginSelection(Position position);
    void ExtendSelection(Position position);
    // The shift click: at or right of the selection moves its end, left of or inside it its
    // start.
    void MoveSelectionEdge(Position position);
    void SelectWord(Position position);
    // A display line: soft line ends count as ends.
    void SelectLine(Position position);
    void SelectionRange(std::int32_t& low, std::int32_t& high) const;
    // The selected bytes as plain text: line feeds as CR LF, soft line ends as spaces, no
    // colour codes.
    std::string SelectionText() const;
    // The whole text as plain text, as CopyAsText gives it with room for Capacity + 8192
    // bytes, colour codes dropped.
    std::string ExportPlainText() const;
    // Where the text's last `bytes` bytes begin, moved on to the start of a line (unless no line
    // starts there); where ExportPlainText begins when the text is no longer than that.
    Position TailStart(std::uint32_t bytes) const;
    // The plain characters that the text from `from` up to `to` becomes, as ExportPlainText
    // gives it; 0 when `to` does not lie behind `from`.
    std::int32_t PlainDistance(Position from, Position to) const;
    // The text from position to the end, as ExportPlainText gives it before its closing line
    // end: what an append that began at position added.
    std::string PlainTextFrom(Position position) const;
    // Both copies need equal capacities; between different ones nothing is copied and the
    // result is false.
    bool CopyBufferTo(TextBuffer& other) const;
    void CopySelectionTo(TextBuffer& other) const;

  private:
    TextBuffer(std::uint32_t capacity, std::unique_ptr<unsigned char[]> storage);

    // Where the plain text begins: the first byte behind the blank lines of a fresh ring.
    Position PlainStart() const;
    void SetCharWidths(const CharWidthTable& widths);
    const unsigned char* StoreRun(const unsigned char* t);
    void AppendByte(unsigned char b);
    void Store(unsigned char b);
    void StartLine();
    void StoreTab();
    void StoreCharacter(unsigned char b);
    void BreakLine();
    std::int64_t WidthFrom(Position start, Position end) const;
    void DropOverwrittenLine();
    Position FindBreak(Position from, Position mark, Position& stop) const;
    Position FindAppendBreak();
    void ForgetBreakScan() { scanMark_ = NO_POSITION; }
    Position WordStart(Position p) const;
    Position WordEnd(Position p) const;
    Position LineStart(Position p) const;
    Position LineEnd(Position p) const;

    std::uint32_t Capacity;
    std::unique_ptr<unsigned char[]> Storage;
    Position WritePos = 0;
    Position HeadPos = 0;
    Position WalkPos = 0;
    std::int32_t SelStart = 0;
    std::int32_t SelEnd = 0;
    bool Wrapped = false;
    std::int32_t TabWidth = TAB_WIDTH;
    std::int32_t Column = 0;
    std::int32_t PenX = 0;
    std::int32_t LeftMargin = 0;
    std::int32_t WrapLimit = INITIAL_WRAP_LIMIT;
    CharWidthTable CharWidth{};
    // CharWidth for the bytes a run stores as they are, and for every other byte a width that
    // no row has room for, so that the run's loop asks one question per byte.
    std::array<std::int64_t, 256> runWidth_{};
    BellListener* bell_ = nullptr;

    // What the last unsuccessful break search of the append path learnt: walking back from
    // scanMark_ meets no space before it stops on scanStop_. While the bytes behind scanMark_
    // and HeadPos stay as they were, a line that cannot be broken is not walked again for
    // every character.
    static constexpr Position NO_POSITION = UINT32_MAX;
    Position scanMark_ = NO_POSITION;
    Position scanStop_ = NO_POSITION;
};

} // namespace steward
