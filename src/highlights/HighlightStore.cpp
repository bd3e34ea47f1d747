#include "highlights/HighlightStore.h"

#include "base/FrameCommand.h"
#include "base/Trace.h"
#include "highlights/HighlightRule.h"

#include <cstring>

namespace steward {
namespace {

void LoadList(HighlightList& list, const std::string& path)
{
    Trace("HIGHLIGHTS: Loading from \"%s\"\n", path.c_str());
    list.Load(path.c_str());
}

bool SaveList(const HighlightList& list, const std::string& path)
{
    if (path.empty())
        return true;
    Trace("HIGHLIGHTS: Saving to \"%s\"\n", path.c_str());
    return list.Save(path.c_str());
}

// True when an entry of the list occurs in name, case-sensitively, on word boundaries unless
// the entry says "*".
bool IsListed(const HighlightList& list, const char* name)
{
    const std::size_t length = std::strlen(name);
    for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
        HighlightRule rule;
        if (!ParseHighlightRule(list.Text(slot), list.Color(slot), rule))
            return false;
        for (const char* hit = std::strstr(name, rule.Match); hit;
             hit = std::strstr(hit + 1, rule.Match)) {
            const std::size_t start = static_cast<std::size_t>(hit - name);
            if (!rule.WholeWord ||
                StandsOnWordBoundaries(name, length, start, start + rule.MatchLength))
                return true;
        }
    }
    return false;
}

} // namespace

void HighlightStore::ApplyHighlights(char* line, std::size_t capacity, bool squelch,
                                     HighlightSounds& sounds)
{
    matcher_.ApplyHighlights(line, capacity, squelch, sounds);
}

bool HighlightStore::IsNameListed(const char* name) const
{
    return IsListed(NameHighlights, name);
}

void HighlightStore::Load(const std::string& highlightsPath, const std::string& namesPath)
{
    LoadList(StringHighlights, highlightsPath);
    LoadList(NameHighlights, namesPath);
}

bool HighlightStore::Save(const std::string& highlightsPath, const std::string& namesPath) const
{
    const bool strings = SaveList(StringHighlights, highlightsPath);
    return SaveList(NameHighlights, namesPath) && strings;
}

bool HighlightStore::CopyToHighlights(int command, ClipboardReader& clipboard)
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
