#include "config/CharacterProfile.h"
#include "base/Trace.h"
#include "config/IniStore.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstring>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

// Records each call of the profile into the rest of the program, and its trace lines, in order.
class RecordingParts : public ProfileHost, public TraceSink {
  public:
    RecordingParts() : previous_(SetTraceSink(this)) {}
    ~RecordingParts() override { SetTraceSink(previous_); }
    bool Note(const std::string& call) { return calls.push_back(call), true; }
    void TraceLine(const char* line) override { Note(std::string("Trace ") + line); }
    GaugeColors GetGaugeColors(ProfileGauge gauge) override
    {
        Note(std::string("GetGaugeColors ") + GAUGE_COLOR_KEYS[gauge]);
        return colors[gauge];
    }
    void SetGaugeColors(ProfileGauge gauge, const GaugeColors& c) override
    {
        Note(std::string("SetGaugeColors ") + GAUGE_COLOR_KEYS[gauge]);
        colors[gauge] = c;
    }
    void SetNumLockOff() override { Note("SetNumLockOff"); }
    void RestoreChildWindows(const std::string& p) override { Note("RestoreChildWindows " + p); }
    bool SaveChildWindows(const std::string& p) override { return Note("SaveChildWindows " + p); }
    void LoadMacros(const std::string& p) override { Note("LoadMacros " + p); }
    bool SaveMacros(const std::string& p) override { return Note("SaveMacros " + p); }
    void LoadHighlights(const std::string& s, const std::string& n) override
    {
        Note("LoadHighlights " + s + " " + n);
    }
    bool SaveHighlights(const std::string& s, const std::string& n) override
    {
        return Note("SaveHighlights " + s + " " + n);
    }
    void LoadHistory(const std::string& p) override { Note("LoadHistory " + p); }
    bool SaveHistory(const std::string& p) override { return Note("SaveHistory " + p); }
    void SetDefaultMacros(bool fresh) override
    {
        Note(fresh ? "SetDefaultMacros new" : "SetDefaultMacros");
    }
    void UpdateTitle() override { Note("UpdateTitle"); }

    std::vector<std::string> calls;
    GaugeColors colors[PROFILE_GAUGE_COUNT] = {};

  private:
    TraceSink* previous_;
};

class ProfileTest : public ::testing::Test {
  protected:
    std::string Dat(const char* name) const { return folder.File(std::string(name) + ".Dat"); }

    void StoreSettings(const char* name, const Settings& settings)
    {
        const SettingsBytes bytes = settings.ToBytes();
        ASSERT_TRUE(WriteBinary(Dat(name), "Config", "Settings", bytes.data(), bytes.size()));
    }

    Settings StoredSettings(const char* name)
    {
        SettingsBytes bytes{};
        EXPECT_TRUE(ReadBinary(Dat(name), "Config", "Settings", bytes.data(), bytes.size()));
        return Settings::FromBytes(bytes);
    }

    bool Load(const char* name) { return LoadProfile(files, profile, parts, name, false); }
    void Save(const char* name) { ASSERT_TRUE(SaveProfile(files, profile, parts, name)); }

    TempFolder folder;
    ConfigFiles files = MakeConfigFiles(folder.Path());
    CharacterProfile profile;
    RecordingParts parts;
};

TEST_F(ProfileTest, ANewProfileIsLoadedStepByStep)
{
    EXPECT_TRUE(Load("Rook"));
    const std::string base = folder.File("Rook");
    EXPECT_EQ(parts.calls, (std::vector<std::string>{
                               "Trace Loading configuration from \"" + base + ".Dat\"\n",
                               "RestoreChildWindows " + base + ".Dat",
                               "LoadMacros " + base + ".Macros",
                               "LoadHighlights " + base + ".Highlights " + base + ".Names",
                               "LoadHistory " + base + ".History",
                               "SetDefaultMacros new",
                               "UpdateTitle",
                           }));
    EXPECT_STREQ(profile.CurrentCharacter, "Rook");
    EXPECT_EQ(profile.ProfilePath, base + ".Dat");
    EXPECT_EQ(StoredSettings("Rook").ToBytes(), Settings{}.ToBytes());
}

TEST_F(ProfileTest, AKnownProfileGivesItsGaugesTheirColoursAndHonoursNumLock)
{
    Settings stored;
    stored.HonorNumLock = 1;
    StoreSettings("Rook", stored);
    const GaugeColorBytes rt = GaugeColorsToBytes({1, 2, 3});
    ASSERT_TRUE(WriteBinary(Dat("Rook"), "Colors", "RT", rt.data(), rt.size()));
    ASSERT_TRUE(WriteBinary(Dat("Rook"), "Colors", "Health", rt.data(), rt.size()));
    ASSERT_TRUE(WriteString(Dat("Rook"), "Colors", "Pause", "00FF"));
    EXPECT_FALSE(Load("Rook"));
    const std::vector<std::string> head(parts.calls.begin() + 1, parts.calls.begin() + 5);
    EXPECT_EQ(head,
              (std::vector<std::string>{"SetGaugeColors Health", "SetGaugeColors RT",
                                        "SetNumLockOff", "RestoreChildWindows " + Dat("Rook")}));
    EXPECT_EQ(parts.calls[parts.calls.size() - 2], "SetDefaultMacros");
    EXPECT_EQ(parts.colors[GAUGE_RT].BarColor, 2u);
}

TEST_F(ProfileTest, ASettingsValueOfTheWrongLengthStartsTheProfileAfresh)
{
    const std::string path = Dat("Rook");
    ASSERT_TRUE(WriteString(path, "Config", "EquipWeapon", "wield axe"));
    ASSERT_TRUE(WriteString(path, "Config", "Settings", std::string(318, '1').c_str()));
    EXPECT_TRUE(Load("Rook"));
    EXPECT_STREQ(profile.EquipWeapon, "ready saber");
    EXPECT_EQ(profile.Settings.ToBytes(), Settings{}.ToBytes());
    StoreSettings("Fresh", Settings{});
    EXPECT_EQ(ReadBytes(path), ReadBytes(Dat("Fresh"))) << "the settings alone, as new";
    char equip[EQUIP_COMMAND_SIZE];
    ReadString(path, "Config", "EquipWeapon", equip, sizeof equip, "gone");
    EXPECT_STREQ(equip, "gone");
}

TEST_F(ProfileTest, LoadedSettingsAreBroughtIntoRangeAndEmptyEquipmentComesBackAsItsDefault)
{
    Settings stored;
    stored.ReceiveChunkSize = 100;
    stored.MinCommandLength = -3;
    stored.DisplayMode = 3;
    StoreSettings("Rook", stored);
    Load("Rook");
    EXPECT_EQ(profile.Settings.ReceiveChunkSize, 256);
    EXPECT_EQ(profile.Settings.MinCommandLength, 0);
    EXPECT_EQ(profile.Settings.DisplayMode, 0);
    std::strcpy(profile.EquipShield, "");
    std::strcpy(profile.UnequipShield, "\"\"");
    std::strcpy(profile.EquipWeapon, "wield axe");
    Save("Rook");
    EXPECT_EQ(StoredSettings("Rook").ReceiveChunkSize, 256);
    CharacterProfile reloaded;
    LoadProfile(files, reloaded, parts, "Rook", false);
    EXPECT_STREQ(reloaded.EquipShield, "ready shield");
    EXPECT_STREQ(reloaded.UnequipShield, "unready shield");
    EXPECT_STREQ(reloaded.EquipWeapon, "wield axe");
    EXPECT_STREQ(reloaded.UnequipWeapon, "unready saber");
}

TEST_F(ProfileTest, SavingWritesUnderTheGivenNameInOrder)
{
    Load("Rook");
    parts.calls.clear();
    parts.colors[GAUGE_PAUSE] = {0x11, 0x22, 0x33};
    Save("Wren");
    const std::string base = folder.File("Wren");
    std::vector<std::string> expected = {"Trace Saving data to \"" + base + ".Dat\"\n"};
    for (const char* key : GAUGE_COLOR_KEYS)
        expected.push_back(std::string("GetGaugeColors ") + key);
    expected.push_back("SaveChildWindows " + base + ".Dat");
    expected.push_back("SaveMacros " + base + ".Macros");
    expected.push_back("SaveHistory " + base + ".History");
    expected.push_back("SaveHighlights " + base + ".Highlights " + base + ".Names");
    EXPECT_EQ(parts.calls, expected);
    EXPECT_EQ(profile.ProfilePath, Dat("Rook"));
    GaugeColorBytes pause{};
    ASSERT_TRUE(ReadBinary(Dat("Wren"), "Colors", "Pause", pause.data(), pause.size()));
    EXPECT_EQ(GaugeColorsFromBytes(pause).GaugeBackColor, 0x33u);
}

TEST_F(ProfileTest, CreateOnlyNamesTheProfileAndWithoutANameTheLastCharacterIsLoaded)
{
    EXPECT_FALSE(LoadProfile(files, profile, parts, "Wren", true));
    EXPECT_STREQ(profile.CurrentCharacter, "Wren");
    EXPECT_EQ(profile.ProfilePath, Dat("Wren"));
    EXPECT_TRUE(parts.calls.empty());
    EXPECT_FALSE(std::filesystem::exists(Dat("Wren")));
    LoadProfile(files, profile, parts, nullptr, true);
    EXPECT_STREQ(profile.CurrentCharacter, "Default");
    const std::string longName(100, 'n');
    LoadProfile(files, profile, parts, longName.c_str(), true);
    EXPECT_EQ(profile.CurrentCharacter, longName.substr(0, CHARACTER_NAME_SIZE - 1));
    LoadProfile(files, profile, parts, profile.CurrentCharacter, true);
    EXPECT_EQ(profile.CurrentCharacter, longName.substr(0, CHARACTER_NAME_SIZE - 1));
    LoadProfile(files, profile, parts, "Rook", true);
    ASSERT_TRUE(WriteLastChar(files, profile));
    CharacterProfile next;
    LoadProfile(files, next, parts, nullptr, true);
    EXPECT_STREQ(next.CurrentCharacter, "Rook");
    WriteBytes(files.MainIni, "[History]\nLastChar=\n");
    LoadProfile(files, next, parts, nullptr, true);
    EXPECT_STREQ(next.CurrentCharacter, "Default");
}

TEST_F(ProfileTest, OpenWindowsDefaultsToThoughtAndAFocusedGameWindow)
{
    const std::string path = Dat("Rook");
    EXPECT_EQ(ReadOpenWindows(path), "tG");
    const struct {
        const char *stored, *letters;
    } cases[] = {
        {"{none}", "tG"},
        {"gTa", "gTa"},
        {"", ""},
        {"0123456789012345678901234567890123", "012345678901234567890123456789"},
    };
    for (const auto& c : cases) {
        WriteBytes(path, std::string("[Windows]\nOpen Windows=") + c.stored + "\n");
        EXPECT_EQ(ReadOpenWindows(path), c.letters) << c.stored;
    }
    ASSERT_TRUE(WriteOpenWindows(path, "Gat"));
    EXPECT_EQ(ReadOpenWindows(path), "Gat");
}

} // namespace
} // namespace steward
