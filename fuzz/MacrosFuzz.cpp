// A .Macros file as a user may have edited it, loaded, saved and loaded again: the second
// load must give what the first gave.
#include "FuzzFiles.h"

#include "commands/MacroStore.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace steward;
    const std::string path = fuzz::InputFile("Fuzz.Macros", data, size);
    MacroStore first;
    first.LoadMacros(path.c_str());
    const std::string saved = path + ".saved";
    if (!first.SaveMacros(saved.c_str()))
        std::abort();
    MacroStore second;
    second.LoadMacros(saved.c_str());
    for (int set = 0; set < MACRO_SET_COUNT; ++set)
        if (std::string(first.MacroSetName(set)) != second.MacroSetName(set))
            std::abort();
    return 0;
}
