#include "highlights/ClipboardHighlights.h"

#include <algorithm>
#include <cstring>

namespace steward {

void AddFromClipboard(HighlightList& list, ClipboardReader& clipboard)
{
    std::string text;
    if (!clipboard.ReadText(text))
        return;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos)
            end = text.size();
        char line[CLIPBOARD_LINE_MAX + 1];
        const std::size_t length = std::min(end - start, CLIPBOARD_LINE_MAX);
        std::memcpy(line, text.data() + start, length);
        line[length] = '\0';
        if (line[0] != '\0')
            list.Add(line, HIGHLIGHT_DEFAULT_COLOR);
        start = end + 1;
    }
}

} // namespace steward
