#include "commands/CommandParts.h"
#include "panels/Gauge.h"
#include "scripts/ScriptHost.h"
#include "scripts/ScriptRunner.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace steward {
namespace {

constexpr int SCRIPT_LINES = 10000;

// Counts what the script sends; the loop around it is not measured.
class CountingHost : public ScriptHost {
  public:
    void ShowBusyCursor(bool) override {}
    void Beep() override {}
    void PostWakeUp() override {}
    void PrintToGameWindow(const char*) override {}
    void SendScripted(const char*) override { ++sent; }
    void PumpFor(int) override {}
    long sent = 0;
};

// A walk with parameters, a label and a jump back to the top at its end.
std::string WriteScript()
{
    const std::string path =
        (std::filesystem::temp_directory_path() / "steward-bench-script.Cmd").string();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    std::fputs("top:\n", file);
    for (int i = 1; i < SCRIPT_LINES - 1; ++i)
        std::fputs(i % 10 == 0 ? "# a comment line\n" : "if_1 put attack %1 with %2\n", file);
    std::fputs("goto top\n", file);
    std::fclose(file);
    return path;
}

void ScriptStepLines(benchmark::State& state)
{
    const std::string path = WriteScript();
    CountingHost host;
    ScriptWaitState wait;
    CommandState names;
    std::snprintf(names.ScriptParameters, sizeof names.ScriptParameters, "\"big rat\" saber");
    Tokenizer words;
    Gauge roundTime{"RT:", 0, false, {}};
    ScriptRunner runner({wait, names, words, roundTime, host});
    runner.ExecuteFile(path.c_str());
    std::snprintf(names.ScriptParameters, sizeof names.ScriptParameters, "\"big rat\" saber");
    for (auto _ : state)
        runner.ScriptStep();
    state.SetItemsProcessed(state.iterations());
    benchmark::DoNotOptimize(host.sent);
    std::filesystem::remove(path);
}
BENCHMARK(ScriptStepLines);

} // namespace
} // namespace steward
