#pragma once

#include "scripts/ScriptFile.h"
#include "scripts/ScriptParameters.h"

#include <cstddef>

namespace steward {

class Gauge;
class ScriptHost;
class Tokenizer;
struct CommandState;
struct ScriptWaitState;

// A script line is read into this buffer; one read takes 510 characters of a line at most.
constexpr std::size_t SCRIPT_LINE_SIZE = 512;
constexpr std::size_t SCRIPT_LINE_READ = 510;
// The label search reads 254 characters of a line at most.
constexpr std::size_t LABEL_LINE_READ = 254;

constexpr char SCRIPT_ABORTED_TEXT[] = "\r\n[Script aborted.]\r\n";

// The parts of the session that a script reads and changes.
struct ScriptRunnerParts {
    // ScriptWait and WaitText, which the line analysis releases.
    ScriptWaitState& Wait;
    // ScriptName and ScriptParameters, which the command sender sets.
    CommandState& Names;
    Tokenizer& Words;
    // The "RT:" gauge: no line runs while the round time is above 0.
    const Gauge& RoundTime;
    ScriptHost& Host;
};

// Runs one script line per turn of the main loop, with no thread and no timer of its own.
class ScriptRunner {
  public:
    explicit ScriptRunner(const ScriptRunnerParts& parts) : parts_(parts) {}

    bool Running() const { return file_.IsOpen(); }
    // MM_RUN_SCRIPT: opens ScriptName in the script folder, after a silent end of a script
    // that runs.
    void RunScript(const char* scriptFolder);
    // A file chosen by the player, without parameters.
    void ExecuteFile(const char* path);
    // Once per turn of the main loop while a script runs.
    void ScriptStep();
    // Closes the script silently; the caller says why.
    void AbortScript();

    const char* SavedValue() const { return savedValue_; }

  private:
    struct Command {
        const char* Word;
        void (ScriptRunner::*Run)();
    };
    static const Command COMMANDS[];

    void EndScript();
    // The command word of a line, behind an if_N prefix whose test holds; null if none.
    const char* CommandWord(const char* first);
    void RunCommand(const char* word);

    void NextRoom();
    void Wait();
    void WaitFor();
    void Go();
    void Put();
    void SendRest(bool waitForRoom);
    void Goto();
    void Save();
    void Shift();
    void Pause();
    void Echo();
    void Exit();

    ScriptRunnerParts parts_;
    ScriptFile file_;
    char savedValue_[EXPANSION_SIZE] = {};
};

} // namespace steward
