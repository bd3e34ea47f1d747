#include "scripts/ScriptRecorder.h"

#include "base/ByteText.h"
#include "config/SessionLog.h"
#include "scripts/ScriptHost.h"
#include "scripts/Tokenizer.h"

#include <cstring>
#include <string>

namespace steward {

namespace {

// The words whose commands play back with a wait for the next room.
constexpr const char* MOVE_WORDS[] = {"n",   "ne",   "e",  "se", "s",     "sw",   "w",    "nw",
                                      "out", "down", "up", "go", "climb", "swim", "enter"};

bool IsMoveWord(const char* word)
{
    for (const char* move : MOVE_WORDS)
        if (EqualNoCase(word, move))
            return true;
    return false;
}

// A script line as a text-mode write lays it on disk, where LF becomes CR LF: "\r\r\n".
std::string ScriptLine(const char* text, Tokenizer& words)
{
    const char* first = words.FirstToken(text);
    std::string line = first && IsMoveWord(first) ? "move " : text[0] == '#' ? "" : "put ";
    return line + text + "\r\r\n";
}

} // namespace

bool ScriptRecorder::StartRecording(const char* path)
{
    file_.reset(std::fopen(path, "wb"));
    if (file_)
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    return file_ != nullptr;
}

void ScriptRecorder::RecordCommand(const char* text, Tokenizer& words, ScriptHost& host)
{
    if (!file_)
        return;
    const std::string line = ScriptLine(text, words);
    if (std::fwrite(line.data(), 1, line.size(), file_.get()) == line.size())
        return;
    file_.reset();
    host.Beep();
    host.Beep();
    host.PrintToGameWindow(LOG_DISK_ERROR_TEXT);
    host.Beep();
    host.Beep();
}

} // namespace steward
