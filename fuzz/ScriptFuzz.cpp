// A .Cmd script file as a player may have written it, run line by line to its end with every
// wait released at once, as replies from the game would. Nothing a file holds may reach the
// game or the Game window as a colour code, a bell or another control byte.
#include "FuzzFiles.h"

#include "commands/CommandParts.h"
#include "panels/Gauge.h"
#include "scripts/ScriptHost.h"
#include "scripts/ScriptRunner.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace steward;

// A goto can loop for ever; the run stops after this many lines.
constexpr int MAX_STEPS = 5000;

// Every text bound for the game or a window must be printable, tab, CR or LF.
void CheckText(const char* text)
{
    for (const unsigned char* byte = reinterpret_cast<const unsigned char*>(text); *byte; ++byte)
        if ((*byte < 0x20 && *byte != '\t' && *byte != '\r' && *byte != '\n') || *byte > 126)
            std::abort();
}

class CheckingHost : public ScriptHost {
  public:
    void ShowBusyCursor(bool) override {}
    void Beep() override {}
    void PostWakeUp() override {}
    void PrintToGameWindow(const char* text) override { CheckText(text); }
    void SendScripted(const char* text) override { CheckText(text); }
    void PumpFor(int seconds) override
    {
        if (seconds < 1)
            std::abort();
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::InputFile("Fuzz.Cmd", data, size);
    CheckingHost host;
    ScriptWaitState wait;
    CommandState names;
    Tokenizer words;
    const Gauge roundTime{"RT:", 0, false, {}};
    ScriptRunner runner{{wait, names, words, roundTime, host}};
    std::snprintf(names.ScriptName, sizeof names.ScriptName, "Fuzz.Cmd");
    std::snprintf(names.ScriptParameters, sizeof names.ScriptParameters,
                  "rat saber \"old well\" 3");
    runner.RunScript(fuzz::ScratchFolder().c_str());
    for (int step = 0; step < MAX_STEPS && runner.Running(); ++step) {
        wait.ScriptWait = WAIT_NONE;
        runner.ScriptStep();
    }
    return 0;
}
