#include "highlights/HighlightLists.h"

#include "base/FrameCommand.h"
#include "base/Trace.h"
#include "highlights/HighlightMatch.h"

namespace steward {
namespace {

void LoadList(HighlightList& list, const std::string& path)
{
    Trace("HIGHLIGHTS: Loading from \"%s\"\n", path.c_str());
    list.Load(path.c_str());
}

void SaveList(const HighlightList& list, const std::string& path)
{
    if (path.empty())
        return;
    Trace("HIGHLIGHTS: Saving to \"%s\"\n", path.c_str());
    list.Save(path.c_str());
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

void HighlightLists::Load(const std::string& highlightsPath, const std::string& namesPath)
{
    LoadList(StringHighlights, highlightsPath);
    LoadList(NameHighlights, namesPath);
}

void HighlightLists::Save(const std::string& highlightsPath, const std::string& namesPath) const
{
    SaveList(StringHighlights, highlightsPath);
    SaveList(NameHighlights, namesPath);
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
