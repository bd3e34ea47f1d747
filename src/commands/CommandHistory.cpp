#include "commands/CommandHistory.h"

#include "commands/CommandLineEdit.h"
#include "commands/CommandSink.h"

#include <cstring>
#include <new>

namespace steward {

CommandHistory::CommandHistory() : block_(new (std::nothrow) char[HISTORY_BLOCK_SIZE]()) {}

bool CommandHistory::Add(const char* text)
{
    if (!block_)
        return false;
    std::size_t length = std::strlen(text);
    if (write_ + length >= HISTORY_CAPACITY)
        return false;
    std::memcpy(block_.get() + write_, text, length + 1);
    write_ += length + 1;
    block_[write_] = 0;
    return true;
}

void CommandHistory::RemoveAt(int index)
{
    if (index < 0 || index >= Count())
        return;
    char* entry = const_cast<char*>(EntryAt(index));
    std::size_t length = std::strlen(entry) + 1;
    char* after = entry + length;
    std::size_t tail = block_.get() + write_ - after;
    std::memmove(entry, after, tail);
    write_ -= length;
    std::memset(block_.get() + write_, 0, length);
}

const char* CommandHistory::EntryAt(int index) const
{
    if (!block_)
        return "";
    const char* entry = block_.get();
    for (int i = 0; i < index && entry < block_.get() + write_; ++i)
        entry += std::strlen(entry) + 1;
    return entry;
}

int CommandHistory::Count() const
{
    if (!block_)
        return 0;
    int count = 0;
    for (std::size_t i = 0; i < write_; ++i)
        count += block_[i] == 0;
    return count;
}

void CommandHistory::RememberCommand(const char* text, int minCommandLength)
{
    while (*text == ' ')
        ++text;
    if (*text == 0)
        return;
    if (static_cast<long>(std::strlen(text)) < minCommandLength)
        return;
    int count = Count();
    if (count > 0 && std::strcmp(EntryAt(count - 1), text) == 0)
        return;
    while (!Add(text)) {
        if (Count() == 0)
            return; // longer than the whole store, which no typed line can be
        RemoveAt(0);
    }
    position_ = Count();
}

void CommandHistory::HistoryPrevious(CommandLineEdit& line)
{
    if (position_ <= 0)
        return;
    --position_;
    Show(line, EntryAt(position_));
}

void CommandHistory::HistoryNext(CommandLineEdit& line)
{
    ++position_;
    int count = Count();
    if (position_ > count) {
        position_ = count;
        line.SetText("");
        return;
    }
    Show(line, EntryAt(position_));
}

void CommandHistory::RepeatCommand(int back, CommandSink& sink) const
{
    if (back < 1 || position_ < back)
        return;
    const char* entry = EntryAt(position_ - back);
    sink.EchoCommand(entry);
    sink.SendLine(entry);
}

void CommandHistory::ResetHistoryPosition()
{
    position_ = Count();
}

void CommandHistory::Show(CommandLineEdit& line, const char* text) const
{
    line.SetText(text);
    line.SetSelection(HISTORY_CARET_END, HISTORY_CARET_END);
}

} // namespace steward
