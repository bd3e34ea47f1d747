#include "scripts/ScriptRecorder.h"

#include "base/ByteText.h"
#include "base/Trace.h"
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

void ReportDiskError(ScriptHost& host)
{
    host.Beep();
    host.Beep();
    host.PrintToGameWindow(LOG_DISK_ERROR_TEXT);
    host.Beep();
    host.Beep();
}

} // namespace

// At the program's end nobody is left to tell: the old script stays, and the trace says why.
ScriptRecorder::~ScriptRecorder()
{
    if (file_ && !file_->Commit())
        Trace("Could not save the recorded script\n");
}

bool ScriptRecorder::StartRecording(const char* path)
{
    if (file_ && !file_->Commit())
        Trace("Could not save the recorded script\n");
    file_.emplace(path);
    if (!file_->Get()) {
        file_.reset();
        return false;
    }
    // Unbuffered, so that a full disk is told at the command that met it.
    std::setvbuf(file_->Get(), nullptr, _IONBF, 0);
    return true;
}

bool ScriptRecorder::StopRecording(ScriptHost& host)
{
    if (!file_)
        return true;
    const bool kept = file_->Commit();
    file_.reset();
    if (!kept)
        ReportDiskError(host);
    return kept;
}

void ScriptRecorder::RecordCommand(const char* text, Tokenizer& words, ScriptHost& host)
{
    if (!file_)
        return;
    const std::string line = ScriptLine(text, words);
    if (std::fwrite(line.data(), 1, line.size(), file_->Get()) == line.size())
        return;
    file_.reset();
    ReportDiskError(host);
}

} // namespace steward
