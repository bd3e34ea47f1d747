#include "scripts/ScriptRunner.h"

#include "base/ByteText.h"
#include "panels/Gauge.h"
#include "scripts/CommandState.h"
#include "scripts/ScriptHost.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

namespace steward {

namespace {

constexpr char OPEN_FAILED_TEXT[] = "\r\n*** Error opening script file!\r\n\r\n";
constexpr char NO_LABEL_TEXT[] = "\r\nGOTO with no label specified!\r\n";
constexpr char LABEL_NOT_FOUND_TEXT[] = "\r\nGOTO label not found!\r\n";
constexpr char BINARY_TEXT[] = "\r\n*** Script stopped: the file is not a text file.\r\n\r\n";
// Room for a whole rest of line behind echo's "\r\n".
constexpr std::size_t ECHO_SIZE = TOKEN_SIZE + 2;

// Strips one trailing line feed.
void StripNewline(char* line)
{
    const std::size_t length = std::strlen(line);
    if (length > 0 && line[length - 1] == '\n')
        line[length - 1] = '\0';
}

// The seconds of pause: the integer at the start of the text, 1 when below 1.
int PauseSeconds(const char* text)
{
    const long seconds = text ? std::strtol(text, nullptr, 10) : 0;
    return seconds < 1 ? 1 : seconds > INT_MAX ? INT_MAX : static_cast<int>(seconds);
}

// The path of the script in the folder: the name as it stands, or else the first file whose
// name differs from it only in case, since a player types `.hunt` for "Hunt.Cmd".
std::string ScriptPathIn(const char* folder, const char* name)
{
    std::string path = std::string(folder) + "/" + name;
    std::error_code error;
    if (std::filesystem::exists(path, error))
        return path;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        if (EqualNoCase(entry->path().filename().c_str(), name))
            return entry->path().string();
    return path;
}

} // namespace

const ScriptRunner::Command ScriptRunner::COMMANDS[] = {
    {"NextRoom", &ScriptRunner::NextRoom}, {"Wait", &ScriptRunner::Wait},
    {"WaitFor", &ScriptRunner::WaitFor},   {"go", &ScriptRunner::Go},
    {"move", &ScriptRunner::Go},           {"put", &ScriptRunner::Put},
    {"goto", &ScriptRunner::Goto},         {"save", &ScriptRunner::Save},
    {"shift", &ScriptRunner::Shift},       {"pause", &ScriptRunner::Pause},
    {"echo", &ScriptRunner::Echo},         {"exit", &ScriptRunner::Exit},
};

void ScriptRunner::RunScript(const char* scriptFolder)
{
    AbortScript();
    parts_.Wait.ScriptWait = WAIT_NONE;
    const std::string path = ScriptPathIn(scriptFolder, parts_.Names.ScriptName);
    if (!file_.Open(path.c_str())) {
        const std::string message = "\r\n*** Error opening script \"" + path + "\"\r\n\r\n";
        parts_.Host.PrintToGameWindow(message.c_str());
    }
    parts_.Host.PostWakeUp();
}

void ScriptRunner::ExecuteFile(const char* path)
{
    AbortScript();
    parts_.Names.ScriptParameters[0] = '\0';
    parts_.Wait.ScriptWait = WAIT_NONE;
    if (!file_.Open(path))
        parts_.Host.PrintToGameWindow(OPEN_FAILED_TEXT);
    parts_.Host.PostWakeUp();
}

void ScriptRunner::AbortScript()
{
    if (!Running())
        return;
    file_.Close();
    parts_.Wait.ScriptWait = WAIT_NONE;
    parts_.Host.ShowBusyCursor(false);
}

void ScriptRunner::EndScript()
{
    AbortScript();
    parts_.Host.Beep();
}

void ScriptRunner::ScriptStep()
{
    parts_.Host.ShowBusyCursor(true);
    if (parts_.Wait.ScriptWait != WAIT_NONE || parts_.RoundTime.GetValue() > 0)
        return;
    char line[SCRIPT_LINE_SIZE];
    if (!file_.ReadLine(line, SCRIPT_LINE_READ)) {
        EndScript();
        return;
    }
    if (file_.SawBinary()) {
        parts_.Host.PrintToGameWindow(BINARY_TEXT);
        EndScript();
        return;
    }
    StripNewline(line);
    if (line[0] == '\0' || line[0] == '#')
        return;
    SubstituteParameters(line, sizeof line, {parts_.Names.ScriptParameters, savedValue_},
                         parts_.Words);
    if (const char* word = CommandWord(parts_.Words.FirstToken(line)))
        RunCommand(word);
    parts_.Host.PostWakeUp();
}

const char* ScriptRunner::CommandWord(const char* first)
{
    if (!first || !StartsWithNoCase(first, "if_"))
        return first;
    const int n = static_cast<unsigned char>(first[3]) - '0';
    const char* parameters = parts_.Names.ScriptParameters;
    const bool holds =
        n == 0 ? parameters[0] != '\0' : parts_.Words.NthToken(parameters, n) != nullptr;
    return holds ? parts_.Words.NextToken() : nullptr;
}

void ScriptRunner::RunCommand(const char* word)
{
    for (const Command& command : COMMANDS)
        if (EqualNoCase(word, command.Word)) {
            (this->*command.Run)();
            return;
        }
}

void ScriptRunner::NextRoom()
{
    parts_.Wait.ScriptWait = WAIT_ROOM;
}

void ScriptRunner::Wait()
{
    parts_.Wait.ScriptWait = WAIT_PROMPT;
}

void ScriptRunner::WaitFor()
{
    const char* rest = parts_.Words.RestOfLine();
    if (!rest)
        return;
    CopyCut(parts_.Wait.WaitText, sizeof parts_.Wait.WaitText, rest);
    parts_.Wait.ScriptWait = WAIT_TEXT;
}

void ScriptRunner::Go()
{
    SendRest(true);
}

void ScriptRunner::Put()
{
    SendRest(false);
}

void ScriptRunner::SendRest(bool waitForRoom)
{
    const char* rest = parts_.Words.RestOfLine();
    if (!rest)
        return;
    // The echo runs the line analysis, which splits its words with the same tokenizer.
    char text[TOKEN_SIZE];
    CopyCut(text, sizeof text, rest);
    // The wait is set first, so that an exits line that comes back at once is not missed.
    if (waitForRoom)
        parts_.Wait.ScriptWait = WAIT_ROOM;
    parts_.Host.SendScripted(text);
}

void ScriptRunner::Goto()
{
    const char* word = parts_.Words.NextToken();
    if (!word) {
        parts_.Host.PrintToGameWindow(NO_LABEL_TEXT);
        file_.SkipToEnd();
        return;
    }
    char label[TOKEN_SIZE + 1];
    JoinCut(label, sizeof label, {word, ":"});
    file_.Rewind();
    char line[LABEL_LINE_READ + 1];
    while (file_.ReadLine(line, LABEL_LINE_READ)) {
        const char* first = parts_.Words.FirstToken(line);
        if (first && EqualNoCase(first, label))
            return;
    }
    parts_.Host.PrintToGameWindow(LABEL_NOT_FOUND_TEXT);
    EndScript();
}

void ScriptRunner::Save()
{
    const char* word = parts_.Words.NextToken();
    CopyCut(savedValue_, sizeof savedValue_, word ? word : "");
}

void ScriptRunner::Shift()
{
    char* parameters = parts_.Names.ScriptParameters;
    ShiftParameters(parameters, sizeof parts_.Names.ScriptParameters, parts_.Words);
}

void ScriptRunner::Pause()
{
    // The tokens are done with before the pump, in which the line analysis splits words.
    const int seconds = PauseSeconds(parts_.Words.RestOfLine());
    parts_.Host.PumpFor(seconds);
}

void ScriptRunner::Echo()
{
    const char* rest = parts_.Words.RestOfLine();
    char text[ECHO_SIZE];
    JoinCut(text, sizeof text, {rest ? rest : "", "\r\n"});
    parts_.Host.PrintToGameWindow(text);
}

void ScriptRunner::Exit()
{
    file_.SkipToEnd();
}

} // namespace steward
