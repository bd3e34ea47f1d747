#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace steward {

class CommandLineEdit;
class CommandSink;

constexpr std::size_t HISTORY_CAPACITY = 8192;
// The block has room behind the capacity, so the terminator at the limit stays inside it.
constexpr std::size_t HISTORY_BLOCK_SIZE = HISTORY_CAPACITY + 16;
// The caret position that puts the caret behind the last character of a recalled entry.
constexpr int HISTORY_CARET_END = 900;
// A saved history is read from its last this many bytes: older entries could not be kept.
constexpr long HISTORY_FILE_TAIL = 8 * static_cast<long>(HISTORY_CAPACITY);

// What the player typed, oldest first, as zero-terminated strings back to back in one block.
// Without its block (no memory) every operation acts as on an empty history.
class CommandHistory {
  public:
    CommandHistory();

    // False when the text does not fit before the limit.
    bool Add(const char* text);
    void RemoveAt(int index);
    // An index equal to Count() gives the empty string at the write position.
    const char* EntryAt(int index) const;
    int Count() const;

    // Stores a typed line without its leading blanks, unless it is short or repeats the newest.
    void RememberCommand(const char* text, int minCommandLength);
    void HistoryPrevious(CommandLineEdit& line);
    void HistoryNext(CommandLineEdit& line);
    // Echoes and sends the entry back places before the browsing place.
    void RepeatCommand(int back, CommandSink& sink) const;
    void ResetHistoryPosition();

    // The saved history, one entry per line, oldest first. Loading replaces the entries with
    // the file's, under the limits and the repeat rule of RememberCommand; a line that is not
    // printable text is skipped, a long one cut. False, and nothing changed, without a file.
    bool LoadHistory(const std::string& path);
    [[nodiscard]] bool SaveHistory(const std::string& path) const;

    int HistoryPosition() const { return position_; }

  private:
    void Show(CommandLineEdit& line, const char* text) const;

    std::unique_ptr<char[]> block_;
    std::size_t write_ = 0; // offset of the byte behind the newest entry
    int position_ = 0;
};

} // namespace steward
