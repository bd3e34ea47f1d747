#pragma once

#include "config/FileHandle.h"

#include <cstddef>
#include <memory>

namespace steward {

// Text gathers in one block per log and reaches the disk only from the main loop.
constexpr std::size_t LOG_BUFFER_SIZE = 28000;
// The main loop writes a log out once it holds more than this many bytes.
constexpr std::size_t LOG_FLUSH_THRESHOLD = 25000;

// A log file written through a fixed memory buffer; SessionLog and PacketDump are its two
// instances. Every operation on a closed log returns at once.
class BufferedLog {
  public:
    BufferedLog() = default;
    ~BufferedLog();
    BufferedLog(const BufferedLog&) = delete;
    BufferedLog& operator=(const BufferedLog&) = delete;

    // Closes an open log first, then replaces the file ("wb"). True on success.
    bool OpenNew(const char* path);
    // Closes an open log first, then appends to the file ("ab"). True on success.
    bool OpenAppend(const char* path);
    // True if the text was taken (always on a closed log); the whole text is refused when it
    // would bring the buffer to LOG_BUFFER_SIZE. ColorCode bytes are left out.
    bool Write(const char* text);
    // Writes out all that waits; on failure the unwritten bytes stay in the buffer.
    bool Flush();
    // Flush, but only when more than LOG_FLUSH_THRESHOLD bytes wait.
    bool FlushIfFull();
    // Flush, ignoring its result, then close; false if the log was not open.
    bool Close();

    bool IsOpen() const { return file_ != nullptr; }
    std::size_t Count() const { return count_; }

  private:
    bool Open(const char* path, const char* mode);

    File file_;
    std::unique_ptr<char[]> buffer_;
    std::size_t count_ = 0;
};

} // namespace steward
