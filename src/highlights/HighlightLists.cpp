#include "highlights/HighlightLists.h"

#include "highlights/HighlightMatch.h"

namespace steward {
namespace {

std::string ListPath(const std::string& folder, const std::string& character, const char* extension)
{
    return folder + "/" + character + extension;
}

} // namespace

void HighlightLists::ApplyHighlights(char* line, std::size_t capacity, bool squelch,
                                     HighlightSounds& sounds)
{
    matcher_.ApplyHighlights(line, capacity, squelch, sounds);
}

bool HighlightLists::IsNameListed(const char* name) const
{
    return steward::IsNameListed(NameHighlights, name);
}

void HighlightLists::Load(const std::string& folder, const std::string& character)
{
    StringHighlights.Load(ListPath(folder, character, ".Highlights").c_str());
    NameHighlights.Load(ListPath(folder, character, ".Names").c_str());
}

void HighlightLists::Save(const std::string& folder, const std::string& character) const
{
    StringHighlights.Save(ListPath(folder, character, ".Highlights").c_str());
    NameHighlights.Save(ListPath(folder, character, ".Names").c_str());
}

bool HighlightLists::CopyToHighlights(int command, ClipboardReader& clipboard)
{
    if (command == CMD_COPY_TO_STRING_HIGHLIGHTS)
        AddFromClipboard(StringHighlights, clipboard);
    else if (command == CMD_COPY_TO_NAME_HIGHLIGHTS)
        AddFromClipboard(NameHighlights, clipboard);
    else
        return false;
    return true;
}

} // namespace steward
