#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace steward {

// Longest line kept from an ini file; the longest value we store is a 320-digit Settings record.
constexpr std::size_t INI_LINE_MAX = 4096;
// Largest part of an ini file that is read; a profile is a few kilobytes.
constexpr std::size_t INI_FILE_MAX = 1024 * 1024;

// One ini file in memory, in the manner of the private profile functions: "[Section]" lines,
// "key=value" lines, names compared without regard to case, and every other line kept as it is.
class IniFile {
  public:
    // A missing or unreadable file reads as empty; longer lines and files are cut at their limits.
    static IniFile Load(const std::string& path);
    static IniFile Parse(std::string_view text);

    // Through an AtomicFile: a failed write leaves the old file whole.
    [[nodiscard]] bool Save(const std::string& path) const;
    std::string Text() const;

    // The value of the first such key of the first such section, without surrounding blanks or
    // one pair of enclosing quotes.
    std::optional<std::string> Get(std::string_view section, std::string_view key) const;
    // Replaces the first such key's value or adds the key, and the section if need be; a value is
    // cut at its first line break, since one line holds one value.
    void Set(std::string_view section, std::string_view key, std::string_view value);
    // False when there was no such key.
    bool Remove(std::string_view section, std::string_view key);

  private:
    struct Section {
        std::size_t header;
        std::size_t end;
    };

    std::optional<Section> FindSection(std::string_view section) const;
    std::optional<std::size_t> FindKey(const Section& section, std::string_view key) const;

    std::vector<std::string> lines_;
    std::string lineEnd_ = "\n";
};

} // namespace steward
