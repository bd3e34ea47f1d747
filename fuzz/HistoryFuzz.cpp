// A saved command history as it may have been damaged or edited, loaded, saved and loaded again:
// the second load must give what the first gave, within the store's size.
#include "FuzzFiles.h"

#include "commands/CommandHistory.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace steward;
    const std::string path = fuzz::InputFile("Fuzz.History", data, size);
    CommandHistory first;
    if (!first.LoadHistory(path))
        std::abort();
    const std::string saved = path + ".saved";
    if (!first.SaveHistory(saved))
        std::abort();
    CommandHistory second;
    second.LoadHistory(saved);
    if (first.Count() != second.Count())
        std::abort();
    for (int i = 0; i < first.Count(); ++i)
        if (std::strcmp(first.EntryAt(i), second.EntryAt(i)) != 0 ||
            std::strlen(first.EntryAt(i)) >= HISTORY_CAPACITY)
            std::abort();
    return 0;
}
