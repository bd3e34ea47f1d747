#pragma once

#include "config/FileHandle.h"

#include <cstddef>

namespace steward {

// A script read line by line as a text file: CR LF reads as LF, as on the system the scripts
// come from, so a file written there and one written here read the same.
class ScriptFile {
  public:
    bool Open(const char* path);
    void Close() { file_.reset(); }
    bool IsOpen() const { return file_ != nullptr; }

    // Reads at most maxChars characters into line (which holds maxChars + 1 bytes), up to and
    // including a line feed; the rest of a longer line comes with the next read. False at the
    // end of the file. A control byte other than tab, CR and LF, or a byte above 126, reads as
    // "?", so no file can put a colour code or a bell into a command; a NUL marks the file as
    // binary.
    bool ReadLine(char* line, std::size_t maxChars);
    // True once a NUL byte was read: the file is no text.
    bool SawBinary() const { return sawBinary_; }
    void Rewind();
    void SkipToEnd();

  private:
    int NextByte();

    File file_;
    bool sawBinary_ = false;
};

} // namespace steward
