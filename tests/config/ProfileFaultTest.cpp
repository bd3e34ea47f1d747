#include "commands/CommandHistory.h"
#include "commands/MacroStore.h"
#include "config/CharacterProfile.h"
#include "highlights/HighlightList.h"
#include "scripts/ScriptDoubles.h"
#include "scripts/ScriptRecorder.h"

#include "support/FileSizeLimit.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstring>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace steward {
namespace {

using testing::FileSizeLimit;
using testing::ReadBytes;
using testing::TempFolder;

constexpr std::array<const char*, 6> PROFILE_FILES = {
    "Rook.Dat", "Rook.Macros", "Rook.Highlights", "Rook.Names", "Rook.History", "Rook.Stw"};
using ProfileBytes = std::array<std::string, PROFILE_FILES.size()>;

// The parts of the program that own profile files, saving for real.
class SavingParts : public ProfileHost {
  public:
    GaugeColors GetGaugeColors(ProfileGauge) override { return {}; }
    void SetGaugeColors(ProfileGauge, const GaugeColors&) override {}
    void SetNumLockOff() override {}
    void RestoreChildWindows(const std::string&) override {}
    bool SaveChildWindows(const std::string& p) override { return WriteOpenWindows(p, "gTa"); }
    void LoadMacros(const std::string&) override {}
    bool SaveMacros(const std::string& path) override { return macros.SaveMacros(path.c_str()); }
    void LoadHighlights(const std::string&, const std::string&) override {}
    bool SaveHighlights(const std::string& strings, const std::string& names) override
    {
        const bool saved = stringHighlights.Save(strings.c_str());
        return nameHighlights.Save(names.c_str()) && saved;
    }
    void LoadHistory(const std::string&) override {}
    bool SaveHistory(const std::string& path) override { return history.SaveHistory(path); }
    void SetDefaultMacros(bool) override {}
    void UpdateTitle() override {}

    MacroStore macros;
    CommandHistory history;
    HighlightList stringHighlights;
    HighlightList nameHighlights;
};

// Two different states of one character; a save of either must leave files of one of them.
struct ProfileState {
    CharacterProfile profile;
    SavingParts parts;

    explicit ProfileState(int variant)
    {
        std::strcpy(profile.CurrentCharacter, "Rook");
        profile.Settings.HonorNumLock = variant;
        std::strcpy(profile.EquipWeapon, variant ? "wield axe" : "ready saber");
        SetDefaultMacros(parts.macros, variant == 1);
        parts.macros.SetMacroSetName(variant ? "Hunting" : "Town");
        for (int i = 0; i < 40 + variant * 30; ++i) {
            const std::string text = "highlight " + std::to_string(i * (variant + 1));
            parts.stringHighlights.Add(text.c_str(), static_cast<unsigned char>(i));
            parts.nameHighlights.Add(("Name" + text).c_str(), static_cast<unsigned char>(i + 1));
            parts.history.RememberCommand(("attack " + text).c_str(), 0);
        }
    }
    // The profile, then a recording of the character's walk; false when any file was not saved.
    bool Save(const ConfigFiles& files)
    {
        const bool saved = SaveProfile(files, profile, parts, nullptr);
        testing::RecordingScriptHost host;
        Tokenizer words;
        ScriptRecorder recorder;
        recorder.StartRecording(ProfileFilePath(files, "Rook", ".Stw").c_str());
        for (int i = 0; i < 20 + profile.Settings.HonorNumLock * 25; ++i)
            recorder.RecordCommand(i % 3 ? "n" : "say the bell rings", words, host);
        return recorder.StopRecording(host) && saved;
    }
};

class ProfileFaultTest : public ::testing::Test {
  protected:
    ProfileBytes Stored() const
    {
        ProfileBytes bytes;
        for (std::size_t i = 0; i < PROFILE_FILES.size(); ++i)
            bytes[i] = ReadBytes(folder.File(PROFILE_FILES[i]));
        return bytes;
    }

    // What each state's save writes, from a clean folder.
    ProfileBytes SavedBytesOf(ProfileState& state)
    {
        EXPECT_TRUE(state.Save(files));
        const ProfileBytes bytes = Stored();
        for (const char* name : PROFILE_FILES)
            std::filesystem::remove(folder.File(name));
        return bytes;
    }

    void ExpectEachFileWhole(const std::string& when) const
    {
        const ProfileBytes now = Stored();
        for (std::size_t i = 0; i < PROFILE_FILES.size(); ++i)
            EXPECT_TRUE(now[i] == oldBytes[i] || now[i] == newBytes[i])
                << PROFILE_FILES[i] << " is a mix " << when;
    }

    TempFolder folder;
    ConfigFiles files = MakeConfigFiles(folder.Path());
    ProfileState oldState{0};
    ProfileState newState{1};
    ProfileBytes oldBytes = SavedBytesOf(oldState);
    ProfileBytes newBytes = SavedBytesOf(newState);
};

TEST_F(ProfileFaultTest, AWriteThatFailsAfterAnyByteLeavesEachFileOldOrNew)
{
    for (rlim_t limit : {0, 1, 100, 400, 1000, 2000, 5000, 100000}) {
        ASSERT_TRUE(oldState.Save(files));
        bool saved = false;
        {
            FileSizeLimit full(limit);
            saved = newState.Save(files);
        }
        ExpectEachFileWhole("after a fault at byte " + std::to_string(limit));
        if (saved) {
            EXPECT_EQ(Stored(), newBytes) << "a save that says so wrote everything";
        }
        if (limit == 0) {
            EXPECT_FALSE(saved) << "a save that wrote nothing says so";
        }
        for (std::size_t i = 0; i < PROFILE_FILES.size(); ++i) {
            if (newBytes[i].size() <= limit) {
                EXPECT_EQ(Stored()[i], newBytes[i]) << PROFILE_FILES[i] << " fits in " << limit;
            }
            EXPECT_FALSE(std::filesystem::exists(folder.File(PROFILE_FILES[i]) + ".tmp"));
        }
    }
}

TEST_F(ProfileFaultTest, AKillAtAnyMomentOfSavingLeavesEachFileOldOrNew)
{
    ASSERT_TRUE(oldState.Save(files));
    std::mt19937 random(17);
    for (int run = 0; run < 200; ++run) {
        const pid_t saver = fork();
        ASSERT_GE(saver, 0);
        if (saver == 0) {
            for (;;) {
                static_cast<void>(newState.Save(files));
                static_cast<void>(oldState.Save(files));
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
        kill(saver, SIGKILL);
        waitpid(saver, nullptr, 0);
        ExpectEachFileWhole("after a kill in run " + std::to_string(run));
    }
}

} // namespace
} // namespace steward
