#include "highlights/HighlightList.h"
#include "config/AtomicFile.h"
#include "config/FileHandle.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace steward {
namespace {

// A file line is read with at most this many bytes.
constexpr int LOAD_LINE_SIZE = 255;

std::uint64_t NextVersion()
{
    static std::atomic<std::uint64_t> counter{0};
    return ++counter;
}

} // namespace

HighlightList::HighlightList() : slots_(HIGHLIGHT_SLOTS), version_(NextVersion()) {}

HighlightList::HighlightList(const HighlightList& other)
    : slots_(other.slots_), version_(NextVersion())
{
}

HighlightList& HighlightList::operator=(const HighlightList& other)
{
    slots_ = other.slots_;
    Changed();
    return *this;
}

void HighlightList::Changed()
{
    version_ = NextVersion();
}

void HighlightList::Clear()
{
    for (HighlightEntry& slot : slots_)
        slot.Text[0] = '\0';
    Changed();
}

void HighlightList::SetText(std::size_t index, const char* text)
{
    if (index >= HIGHLIGHT_SLOTS || std::strlen(text) > HIGHLIGHT_TEXT_MAX)
        return;
    std::strcpy(slots_[index].Text, text);
    Changed();
}

void HighlightList::SetColor(std::size_t index, unsigned char color)
{
    if (index >= HIGHLIGHT_SLOTS)
        return;
    slots_[index].Color = color;
    Changed();
}

void HighlightList::Add(const char* text, unsigned char color)
{
    for (std::size_t index = 0; index < HIGHLIGHT_SLOTS; ++index) {
        if (slots_[index].Text[0] == '\0') {
            SetColor(index, color);
            SetText(index, text);
            return;
        }
    }
}

void HighlightList::Load(const char* path)
{
    Clear();
    File file(std::fopen(path, "rt"));
    if (!file)
        return;
    char line[LOAD_LINE_SIZE];
    std::size_t count = 0;
    while (std::fgets(line, sizeof line, file.get())) {
        if (std::strlen(line) < 6 || line[3] != ' ' || line[4] != '"')
            continue;
        char* close = std::strrchr(line + 5, '"');
        if (!close)
            continue;
        if (count >= HIGHLIGHT_SLOTS)
            continue;
        *close = '\0';
        const long color = std::strtol(line, nullptr, 10);
        SetColor(count, static_cast<unsigned char>(color & 0xFF));
        SetText(count, line + 5);
        ++count;
    }
}

bool HighlightList::Save(const char* path) const
{
    if (*path == '\0')
        return true;
    AtomicFile file(path);
    if (!file.Get())
        return false;
    for (const HighlightEntry& slot : slots_) {
        if (slot.Text[0] != '\0')
            std::fprintf(file.Get(), "%03d \"%s\"\n", slot.Color, slot.Text);
    }
    return file.Commit();
}

void SortByColor(HighlightList& list)
{
    const HighlightList taken = list;
    list.Clear();
    for (int color = 0; color <= 0xFF; ++color) {
        for (std::size_t index = 0; index < HIGHLIGHT_SLOTS; ++index) {
            const HighlightEntry& entry = taken.Entry(index);
            if (entry.Color == color && entry.Text[0] != '\0')
                list.Add(entry.Text, entry.Color);
        }
    }
}

} // namespace steward
