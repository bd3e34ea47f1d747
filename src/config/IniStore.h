#pragma once

#include "config/BinaryRecords.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace steward {

// Typed values in ini files. Every call names its file, section and key and touches the disk at
// once: there is no cache, so nothing ever waits to be flushed. Anything but a plain string is
// stored as upper-case hexadecimal digits of its little-endian bytes, two per byte.

// True when the value holds exactly 2n digits; a character that is no hex digit reads as 0.
// On false, out is left alone.
bool ReadBinary(std::string_view file, std::string_view section, std::string_view key, void* out,
                std::size_t n);
[[nodiscard]] bool WriteBinary(std::string_view file, std::string_view section,
                               std::string_view key, const void* data, std::size_t n);

// The default unless the value holds exactly 8 digits: "68000000" is 104.
std::int32_t ReadInt(std::string_view file, std::string_view section, std::string_view key,
                     std::int32_t defaultValue);
[[nodiscard]] bool WriteInt(std::string_view file, std::string_view section, std::string_view key,
                            std::int32_t value);

// Copies the value, or the default when the key is missing, cut to size - 1 bytes and ended with
// a zero byte.
void ReadString(std::string_view file, std::string_view section, std::string_view key, char* out,
                std::size_t size, const char* defaultValue);
// A null value, an empty one, and the two characters "" remove the key.
[[nodiscard]] bool WriteString(std::string_view file, std::string_view section,
                               std::string_view key, const char* value);

// A window whose font comes from the profile: SetFont with null gives it its default font.
class FontTarget {
  public:
    virtual ~FontTarget() = default;
    virtual void SetFont(const LogFontRecord* font, bool redraw) = 0;
};

// False for a null font (none in use, or one that cannot be described).
[[nodiscard]] bool WriteFont(std::string_view file, std::string_view section, std::string_view key,
                             const LogFontRecord* font);
// Gives the window the stored font, or its default font; true when a stored one was used.
bool ReadFont(std::string_view file, std::string_view section, std::string_view key,
              FontTarget& window);

// A window whose position comes from the profile.
class PlacementTarget {
  public:
    virtual ~PlacementTarget() = default;
    virtual bool GetWindowPlacement(WindowPlacementRecord& placement) = 0;
    virtual void SetWindowPlacement(const WindowPlacementRecord& placement) = 0;
    virtual void ShowWindow(std::uint32_t showCmd) = 0;
    virtual void UpdateWindow() = 0;
};

// False when the window cannot tell its placement.
[[nodiscard]] bool WritePlacement(std::string_view file, std::string_view section,
                                  std::string_view key, PlacementTarget& window);
// Applies a stored placement (its length field set to 44) and updates the window; without one,
// shows the window normally and returns false.
bool ReadPlacement(std::string_view file, std::string_view section, std::string_view key,
                   PlacementTarget& window);

// Removes every key of the file at once, by deleting it; false when it could not be deleted.
[[nodiscard]] bool DeleteIniFile(std::string_view file);

} // namespace steward
