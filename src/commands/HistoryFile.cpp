#include "commands/CommandHistory.h"

#include "base/Trace.h"
#include "commands/CommandLineEdit.h"
#include "config/AtomicFile.h"
#include "config/FileHandle.h"

#include <cstdio>

namespace steward {
namespace {

// Reads one line, cut to the buffer, without its end (LF or CR LF); command says whether every
// byte of it is printable text, as the command line only ever holds. False at the file's end.
bool ReadHistoryLine(std::FILE* file, char* line, std::size_t size, bool& command)
{
    std::size_t length = 0;
    bool read = false;
    command = true;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        read = true;
        if (c == '\n')
            break;
        if (c == '\r') {
            const int next = std::fgetc(file);
            if (next == '\n' || next == EOF)
                break;
            std::ungetc(next, file);
        }
        if (c < 0x20 || c > 0x7E)
            command = false;
        if (length + 1 < size)
            line[length++] = static_cast<char>(c);
    }
    line[length] = '\0';
    return read;
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
    bool command = true;
    if (std::fseek(file.get(), -HISTORY_FILE_TAIL, SEEK_END) == 0)
        ReadHistoryLine(file.get(), line, sizeof line, command);
    else
        std::rewind(file.get());
    while (ReadHistoryLine(file.get(), line, sizeof line, command))
        if (command)
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
