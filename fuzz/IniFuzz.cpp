// An ini file as a user may have edited it: every typed read of the store, then writes that
// add, replace and remove keys, saved and read back.
#include "FuzzFiles.h"

#include "config/IniBatch.h"
#include "config/IniFile.h"
#include "config/IniStore.h"

#include <cstdint>
#include <cstdlib>

namespace steward::fuzz {
namespace {

constexpr const char* SECTIONS[] = {"Config", "Windows", "Game Window", "", " config "};
constexpr const char* KEYS[] = {"Settings", "LastChar", "Font", "Position", "x"};

void ReadEveryKind(const std::string& path, const char* section, const char* key)
{
    char text[64];
    ReadString(path, section, key, text, sizeof text, "default");
    ReadInt(path, section, key, 7);
    std::uint8_t record[160];
    ReadBinary(path, section, key, record, sizeof record);
}

void Exercise(const std::string& path)
{
    // The reads and writes work on one copy in memory, written out once, as a profile save does.
    IniBatch batch(path);
    for (const char* section : SECTIONS)
        for (const char* key : KEYS)
            ReadEveryKind(path, section, key);
    const bool written = WriteString(path, "Config", "LastChar", "Rook") &&
                         WriteInt(path, "Windows", "Position", -1) &&
                         WriteString(path, " config ", "x", nullptr) &&
                         WriteString(path, "Game Window", "Font", "\"\"");
    if (!written || !batch.Commit() || IniFile::Load(path).Get("Config", "LastChar") != "Rook")
        std::abort();
}

} // namespace
} // namespace steward::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    steward::fuzz::Exercise(steward::fuzz::InputFile("Thornmere.Ini", data, size));
    return 0;
}
