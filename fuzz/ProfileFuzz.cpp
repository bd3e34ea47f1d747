// A character's .Dat file as a user may have edited it: the settings record, the gauge colours,
// the equipment commands and each text window's font, position and colours, loaded as at a
// change of character and saved back.
#include "FuzzFiles.h"

#include "config/CharacterProfile.h"
#include "config/IniStore.h"
#include "terminal/WindowFixture.h"

#include <cstdint>
#include <memory>

namespace steward::fuzz {
namespace {

// The frame's share of a load: the text windows read their state from the profile.
class WindowParts : public ProfileHost {
  public:
    GaugeColors GetGaugeColors(ProfileGauge gauge) override { return colors[gauge]; }
    void SetGaugeColors(ProfileGauge gauge, const GaugeColors& c) override { colors[gauge] = c; }
    void SetNumLockOff() override {}
    void RestoreChildWindows(const std::string& path) override
    {
        ReadOpenWindows(path);
        for (const char* name : {"Game Window", "Thought Window", "Arrival Window"})
            windows.push_back(AnsiWindow::Create(name, {host, options, path.c_str(), nullptr}));
    }
    bool SaveChildWindows(const std::string& path) override
    {
        bool saved = true;
        for (const auto& window : windows)
            saved = window->SaveState(path) && saved;
        return WriteOpenWindows(path, "gTa") && saved;
    }
    void LoadMacros(const std::string&) override {}
    bool SaveMacros(const std::string&) override { return true; }
    void LoadHighlights(const std::string&, const std::string&) override {}
    bool SaveHighlights(const std::string&, const std::string&) override { return true; }
    void LoadHistory(const std::string&) override {}
    bool SaveHistory(const std::string&) override { return true; }
    void SetDefaultMacros(bool) override {}
    void UpdateTitle() override {}

    testing::FakeHost host;
    Settings options;
    GaugeColors colors[PROFILE_GAUGE_COUNT] = {};
    std::vector<std::unique_ptr<AnsiWindow>> windows;
};

} // namespace
} // namespace steward::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace steward;
    fuzz::InputFile("Fuzz.Dat", data, size);
    const ConfigFiles files = MakeConfigFiles(fuzz::ScratchFolder().string());
    CharacterProfile profile;
    fuzz::WindowParts parts;
    LoadProfile(files, profile, parts, "Fuzz", false);
    // What is checked here is that any loaded profile saves without a fault, not the disk.
    static_cast<void>(SaveProfile(files, profile, parts, nullptr));
    return 0;
}
