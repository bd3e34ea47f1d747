#pragma once

#include "config/IniFile.h"

#include <string>
#include <string_view>

namespace steward {

// While a batch lives, every IniStore read and write of its file works on one copy in memory,
// and Commit writes that copy at once: a save of many keys that stops at any point leaves the
// file as it was before the save or as it is after it, never half of each. One batch at a time.
class IniBatch {
  public:
    explicit IniBatch(std::string path);
    // Writes that were not committed are dropped.
    ~IniBatch();
    IniBatch(const IniBatch&) = delete;
    IniBatch& operator=(const IniBatch&) = delete;

    // False when the file could not be written; it then keeps its old content.
    [[nodiscard]] bool Commit();

    // The copy in memory when a batch of this file is open, otherwise null.
    static IniFile* FileOf(std::string_view path);

  private:
    std::string path_;
    IniFile file_;
};

} // namespace steward
