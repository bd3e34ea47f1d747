// A .Highlights and a .Names file as a user may have edited them (the input holds both, cut at
// its first NUL byte), loaded into the two lists and matched against received lines.
#include "FuzzFiles.h"

#include "highlights/HighlightDoubles.h"
#include "highlights/HighlightStore.h"

#include <cstdint>
#include <cstring>

namespace steward::fuzz {
namespace {

constexpr const char* LINES[] = {
    "Mara says, \"Fresh salmon at the quay.\"",
    "Obvious exits: north, up.",
    " ** Tobin just arrived in the world.",
    "",
};

} // namespace
} // namespace steward::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace steward;
    const auto* nul = static_cast<const std::uint8_t*>(std::memchr(data, 0, size));
    const std::size_t first = nul ? static_cast<std::size_t>(nul - data) : size;
    const std::size_t second = nul ? first + 1 : size;
    // Loading clears both lists, so one pair serves every input without carrying anything over.
    static HighlightStore lists;
    lists.Load(fuzz::InputFile("Fuzz.Highlights", data, first),
               fuzz::InputFile("Fuzz.Names", data + second, size - second));
    testing::RecordedSounds sounds;
    for (const char* text : fuzz::LINES) {
        char line[1024];
        std::strcpy(line, text);
        lists.ApplyHighlights(line, sizeof line, false, sounds);
        lists.IsNameListed("Mara");
    }
    return 0;
}
