#include "commands/CommandHistory.h"

#include "base/Trace.h"
#include "commands/CommandLineEdit.h"
#include "config/AtomicFile.h"
#include "config/FileHandle.h"

#include <cstdio>
#include <cstring>

namespace steward {
namespace {

// The command line never holds other bytes, so a line with any is no command.
bool IsCommandText(const char* line)
{
    for (const unsigned char* p = reinterpret_cast<const unsigned char*>(line); *p; ++p)
        if (*p < 0x20 || *p > 0x7E)
            return false;
    return true;
}

// Drops the line end; a line longer than the buffer is read on into the void, so that the rest
// of it is not taken for a line of its own.
bool ReadHistoryLine(std::FILE* file, char* line, std::size_t size)
{
    if (!std::fgets(line, static_cast<int>(size), file))
        return false;
    std::size_t length = std::strlen(line);
    const bool whole = length > 0 && line[length - 1] == '\n';
    if (!whole) {
        int c;
        while ((c = std::fgetc(file)) != EOF && c != '\n') {
        }
    }
    while (length > 0 && (line[length - 1] == '\n' || line[length - 1] == '\r'))
        line[--length] = '\0';
    return true;
}

} // namespace

bool CommandHistory::LoadHistory(const std::string& path)
{
    File file(std::fopen(path.c_str(), "rb"));
    if (!file)
        return false;
    Trace("HISTORY: Loading from \"%s\"\n", path.c_str());
    while (Count() > 0)
        RemoveAt(Count() - 1);
    char line[COMMAND_LINE_LIMIT + 1];
    // A long file is read from its tail, behind the first line end found there.
    if (std::fseek(file.get(), -HISTORY_FILE_TAIL, SEEK_END) == 0)
        ReadHistoryLine(file.get(), line, sizeof line);
    else
        std::rewind(file.get());
    while (ReadHistoryLine(file.get(), line, sizeof line))
        if (IsCommandText(line))
            RememberCommand(line, 0);
    ResetHistoryPosition();
    return true;
}

bool CommandHistory::SaveHistory(const std::string& path) const
{
    AtomicFile file(path);
    if (!file.Get())
        return false;
    const int count = Count();
    for (int i = 0; i < count; ++i)
        std::fprintf(file.Get(), "%s\r\n", EntryAt(i));
    return file.Commit();
}

} // namespace steward
