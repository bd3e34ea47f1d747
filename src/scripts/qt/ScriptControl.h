#pragma once

#include "scripts/ScriptHost.h"
#include "scripts/ScriptRecorder.h"
#include "scripts/ScriptRunner.h"

#include <functional>
#include <string>

class QWidget;

namespace steward {

class MessageBoxes;
class ScriptFileDialogs;

// What the frame lends the scripts: the session's parts that a script works on, its dialogs,
// its window, the script folder, and the roads of a text to the Game window and to the game.
struct ScriptControlParts {
    ScriptWaitState& Wait;
    CommandState& Names;
    Tokenizer& Words;
    const Gauge& RoundTime;
    MessageBoxes& Messages;
    ScriptFileDialogs& Files;
    QWidget* Parent;
    std::function<std::string()> ScriptFolder;
    std::function<void(const char*)> Print;
    std::function<void(const char*)> SendScripted;
    std::function<void(int)> PumpFor;
};

// The Scripts menu, the running script and the recording, on the Qt main loop.
class ScriptControl : public CommandRecording, private ScriptHost {
  public:
    explicit ScriptControl(ScriptControlParts parts);
    ~ScriptControl() override;
    ScriptControl(const ScriptControl&) = delete;
    ScriptControl& operator=(const ScriptControl&) = delete;

    bool Running() const { return runner_.Running(); }
    bool Recording() const { return recorder_.Recording(); }
    // The per-turn hook of the main loop.
    void ScriptStep() { runner_.ScriptStep(); }
    void AbortScript() { runner_.AbortScript(); }
    void RecordCommand(const char* text) override;

    // MM_RUN_SCRIPT.
    void RunScript();
    // "Execute a Script...".
    void ExecuteScript();
    // "Stop Script".
    void StopScript();
    // "Record a Script...".
    void RecordScript();
    // "Stop Recording".
    void StopRecording();
    // "Edit a Script...": the chosen file, or empty.
    std::string ChooseScriptToEdit();
    // "Create a New Script...": the created file, or empty.
    std::string CreateScript();

  private:
    // ScriptHost.
    void ShowBusyCursor(bool busy) override;
    void Beep() override;
    void PostWakeUp() override;
    void PrintToGameWindow(const char* text) override;
    void SendScripted(const char* text) override;
    void PumpFor(int seconds) override;

    ScriptControlParts parts_;
    ScriptRunner runner_;
    ScriptRecorder recorder_;
    bool busyCursor_ = false;
};

} // namespace steward
