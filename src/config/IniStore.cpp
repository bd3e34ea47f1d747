#include "config/IniStore.h"

#include "base/HexDigits.h"
#include "config/IniBatch.h"
#include "config/IniFile.h"
#include "config/LittleEndian.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace steward {

namespace {

// The open batch's copy of the file, or the file as it is on disk.
IniFile Current(const std::string& path)
{
    const IniFile* batch = IniBatch::FileOf(path);
    return batch ? *batch : IniFile::Load(path);
}

bool Store(const std::string& path, IniFile ini)
{
    if (IniFile* batch = IniBatch::FileOf(path)) {
        *batch = std::move(ini);
        return true;
    }
    return ini.Save(path);
}

std::optional<std::string> ReadValue(std::string_view file, std::string_view section,
                                     std::string_view key)
{
    return Current(std::string(file)).Get(section, key);
}

bool WriteValue(std::string_view file, std::string_view section, std::string_view key,
                std::string_view value)
{
    const std::string path(file);
    IniFile ini = Current(path);
    ini.Set(section, key, value);
    return Store(path, std::move(ini));
}

bool RemoveValue(std::string_view file, std::string_view section, std::string_view key)
{
    const std::string path(file);
    IniFile ini = Current(path);
    return !ini.Remove(section, key) || Store(path, std::move(ini));
}

template <typename Bytes>
bool ReadRecord(std::string_view file, std::string_view section, std::string_view key, Bytes& out)
{
    return ReadBinary(file, section, key, out.data(), out.size());
}

} // namespace

bool ReadBinary(std::string_view file, std::string_view section, std::string_view key, void* out,
                std::size_t n)
{
    const auto value = ReadValue(file, section, key);
    if (!value || value->size() != 2 * n)
        return false;
    auto* bytes = static_cast<std::uint8_t*>(out);
    for (std::size_t i = 0; i < n; ++i)
        bytes[i] = static_cast<std::uint8_t>((HexDigitValue((*value)[2 * i]) << 4) |
                                             HexDigitValue((*value)[2 * i + 1]));
    return true;
}

bool WriteBinary(std::string_view file, std::string_view section, std::string_view key,
                 const void* data, std::size_t n)
{
    const auto* bytes = static_cast<const std::uint8_t*>(data);
    std::string hex(2 * n, '0');
    for (std::size_t i = 0; i < n; ++i) {
        hex[2 * i] = HEX_DIGITS[bytes[i] >> 4];
        hex[2 * i + 1] = HEX_DIGITS[bytes[i] & 0x0F];
    }
    return WriteValue(file, section, key, hex);
}

std::int32_t ReadInt(std::string_view file, std::string_view section, std::string_view key,
                     std::int32_t defaultValue)
{
    std::uint8_t bytes[4];
    if (!ReadBinary(file, section, key, bytes, sizeof bytes))
        return defaultValue;
    return GetI32(bytes);
}

bool WriteInt(std::string_view file, std::string_view section, std::string_view key,
              std::int32_t value)
{
    std::uint8_t bytes[4];
    PutI32(bytes, value);
    return WriteBinary(file, section, key, bytes, sizeof bytes);
}

void ReadString(std::string_view file, std::string_view section, std::string_view key, char* out,
                std::size_t size, const char* defaultValue)
{
    if (size == 0)
        return;
    const auto value = ReadValue(file, section, key);
    const std::string_view text =
        value ? std::string_view(*value) : std::string_view(defaultValue ? defaultValue : "");
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(out, text.data(), length);
    out[length] = '\0';
}

bool WriteString(std::string_view file, std::string_view section, std::string_view key,
                 const char* value)
{
    if (!value || value[0] == '\0' || std::strcmp(value, "\"\"") == 0)
        return RemoveValue(file, section, key);
    return WriteValue(file, section, key, value);
}

bool WriteFont(std::string_view file, std::string_view section, std::string_view key,
               const LogFontRecord* font)
{
    if (!font)
        return false;
    const LogFontBytes bytes = font->ToBytes();
    return WriteBinary(file, section, key, bytes.data(), bytes.size());
}

bool ReadFont(std::string_view file, std::string_view section, std::string_view key,
              FontTarget& window)
{
    LogFontBytes bytes{};
    if (!ReadRecord(file, section, key, bytes)) {
        window.SetFont(nullptr, true);
        return false;
    }
    const LogFontRecord font = LogFontRecord::FromBytes(bytes);
    window.SetFont(&font, true);
    return true;
}

bool WritePlacement(std::string_view file, std::string_view section, std::string_view key,
                    PlacementTarget& window)
{
    WindowPlacementRecord placement;
    if (!window.GetWindowPlacement(placement))
        return false;
    const WindowPlacementBytes bytes = placement.ToBytes();
    return WriteBinary(file, section, key, bytes.data(), bytes.size());
}

bool ReadPlacement(std::string_view file, std::string_view section, std::string_view key,
                   PlacementTarget& window)
{
    WindowPlacementBytes bytes{};
    if (!ReadRecord(file, section, key, bytes)) {
        window.ShowWindow(SW_SHOWNORMAL);
        window.UpdateWindow();
        return false;
    }
    WindowPlacementRecord placement = WindowPlacementRecord::FromBytes(bytes);
    placement.length = WINDOWPLACEMENT_SIZE;
    window.SetWindowPlacement(placement);
    window.UpdateWindow();
    return true;
}

bool DeleteIniFile(std::string_view file)
{
    std::error_code error;
    std::filesystem::remove(std::filesystem::path(file), error);
    return !error;
}

} // namespace steward
