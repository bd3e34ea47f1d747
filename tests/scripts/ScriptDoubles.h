#pragma once

#include "commands/CommandParts.h"
#include "panels/Gauge.h"
#include "scripts/ScriptHost.h"
#include "scripts/ScriptRunner.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"
#include "support/TempFolder.h"

#include <string>
#include <vector>

namespace steward::testing {

// Records what a script does to the world outside it, in order.
class RecordingScriptHost : public ScriptHost {
  public:
    void ShowBusyCursor(bool busy) override { busyCursor = busy; }
    void Beep() override { events.emplace_back("beep"); }
    void PostWakeUp() override { ++wakeUps; }
    void PrintToGameWindow(const char* text) override { events.push_back("print:" + Shown(text)); }
    void SendScripted(const char* text) override { events.push_back("send:" + Shown(text)); }
    void PumpFor(int seconds) override { events.push_back("pump:" + std::to_string(seconds)); }

    std::vector<std::string> events;
    int wakeUps = 0;
    bool busyCursor = false;

  private:
    // CR and LF as \r and \n, so that a table can spell them.
    static std::string Shown(const char* text)
    {
        std::string out;
        for (; *text; ++text)
            out += *text == '\r' ? "\\r" : *text == '\n' ? "\\n" : std::string(1, *text);
        return out;
    }
};

// A runner over a script file in its own folder, with the session parts it works on.
struct ScriptRig {
    // Starts the script with the parameters, as a .Cmd run does.
    void Start(const std::string& text, const char* parameters = "")
    {
        WriteBytes(folder.File("Test.Cmd"), text);
        std::snprintf(names.ScriptName, sizeof names.ScriptName, "Test.Cmd");
        std::snprintf(names.ScriptParameters, sizeof names.ScriptParameters, "%s", parameters);
        runner.RunScript(folder.Path().c_str());
    }
    // Steps until the script ends, at most the given number of times.
    void Steps(int count)
    {
        for (int i = 0; i < count && runner.Running(); ++i)
            runner.ScriptStep();
    }

    TempFolder folder;
    RecordingScriptHost host;
    ScriptWaitState wait;
    CommandState names;
    Tokenizer words;
    Gauge roundTime{"RT:", 0, false, {}};
    ScriptRunner runner{{wait, names, words, roundTime, host}};
};

} // namespace steward::testing
