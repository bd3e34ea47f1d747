#pragma once

#include "config/FileHandle.h"

#include <cstdio>
#include <string>

namespace steward {

// A file rewritten in full: the text goes to path + ".tmp" in the same folder and is renamed
// over path only when every write, the flush and the close succeeded, so a full disk, a failed
// write or a kill at any moment leaves either the old file or the new one, never a mix or nothing.
class AtomicFile {
  public:
    explicit AtomicFile(std::string path);
    // A temporary that was not committed is removed; the old file stays as it was.
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Where the text goes; null when the temporary could not be created.
    std::FILE* Get() const { return file_.get(); }
    // Writes out and renames; false when any write failed, and then the old file stays.
    [[nodiscard]] bool Commit();

  private:
    std::string path_;
    std::string temporary_;
    File file_;
};

} // namespace steward
