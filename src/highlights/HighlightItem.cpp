#include "highlights/HighlightItem.h"

#include "base/ByteText.h"

#include <cstdio>
#include <cstdlib>

namespace steward {

std::string MakeItemText(unsigned char color, const char* text)
{
    char number[8];
    std::snprintf(number, sizeof number, "%03d,", color);
    return number + std::string(text);
}

HighlightItem ParseItem(const std::string& item)
{
    HighlightItem parsed;
    parsed.Color = static_cast<unsigned char>(std::strtol(item.c_str(), nullptr, 10) & 0xFF);
    std::string rest = PackedText(item);
    std::size_t at = 0;
    if (rest.compare(0, 1, "{") == 0) {
        const std::size_t close = rest.find('}');
        const std::size_t end = close == std::string::npos ? rest.size() : close;
        parsed.Sound = SoundChoiceName(rest.substr(1, end - 1));
        at = close == std::string::npos ? end : close + 1;
    }
    auto marker = [&](char wanted) {
        const bool found = at < rest.size() && rest[at] == wanted;
        at += found ? 1 : 0;
        return found;
    };
    parsed.EntireLine = marker('$');
    parsed.NotOnWordBoundary = marker('*');
    parsed.CaseSensitive = marker('@');
    parsed.Match = rest.substr(at);
    return parsed;
}

std::string ComposeItem(const HighlightItem& item)
{
    std::string packed;
    if (!item.Sound.empty())
        packed += "{" + item.Sound + "}";
    packed += item.EntireLine ? "$" : "";
    packed += item.NotOnWordBoundary ? "*" : "";
    packed += item.CaseSensitive ? "@" : "";
    packed += item.Match;
    return MakeItemText(item.Color, packed.c_str());
}

HighlightItem WithChanges(HighlightItem item, const ItemChanges& changes)
{
    item.Color = changes.Color.value_or(item.Color);
    item.Sound = changes.Sound.value_or(item.Sound);
    item.EntireLine = changes.EntireLine.value_or(item.EntireLine);
    item.NotOnWordBoundary = changes.NotOnWordBoundary.value_or(item.NotOnWordBoundary);
    item.CaseSensitive = changes.CaseSensitive.value_or(item.CaseSensitive);
    item.Match = changes.Match.value_or(item.Match);
    return item;
}

std::string PackedText(const std::string& item)
{
    return item.size() > ITEM_TEXT_OFFSET ? item.substr(ITEM_TEXT_OFFSET) : std::string();
}

std::string SoundChoiceName(const std::string& name)
{
    std::string choice = name;
    for (char& c : choice)
        c = static_cast<char>(FoldCase(static_cast<unsigned char>(c)));
    if (!choice.empty() && choice[0] >= 'a' && choice[0] <= 'z')
        choice[0] = static_cast<char>(choice[0] - ('a' - 'A'));
    return choice;
}

std::string SoundChoiceOfFile(const std::string& fileName)
{
    return SoundChoiceName(fileName.substr(0, fileName.rfind('.')));
}

std::string TypableText(const std::string& text)
{
    std::string typable = text.substr(0, text.find_last_not_of(' ') + 1);
    for (char& c : typable) {
        const auto byte = static_cast<unsigned char>(c);
        c = byte >= 0x20 && byte < 0x7F ? c : '?';
    }
    return typable;
}

} // namespace steward
