#include "highlights/HighlightLists.h"

#include "base/FrameCommand.h"
#include "highlights/HighlightMatch.h"

namespace steward {
namespace {

void LoadList(HighlightList& list, const std::string& path, const HighlightTrace& trace)
{
    if (trace)
        trace("HIGHLIGHTS: Loading from \"" + path + "\"\n");
    list.Load(path.c_str());
}

void SaveList(const HighlightList& list, const std::string& path, const HighlightTrace& trace)
{
    if (path.empty())
        return;
    if (trace)
        trace("HIGHLIGHTS: Saving to \"" + path + "\"\n");
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

void HighlightLists::Load(const std::string& highlightsPath, const std::string& namesPath,
                          const HighlightTrace& trace)
{
    LoadList(StringHighlights, highlightsPath, trace);
    LoadList(NameHighlights, namesPath, trace);
}

void HighlightLists::Save(const std::string& highlightsPath, const std::string& namesPath,
                          const HighlightTrace& trace) const
{
    SaveList(StringHighlights, highlightsPath, trace);
    SaveList(NameHighlights, namesPath, trace);
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
