#include "config/IniStore.h"
#include "config/ConfigFiles.h"
#include "config/IniFile.h"
#include "config/StewardOptions.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

class IniStoreTest : public ::testing::Test {
  protected:
    void Store(const std::string& value) { WriteBytes(path, "[S]\nk=" + value + "\n"); }

    TempFolder folder;
    std::string path = folder.File("Test.Ini");
};

TEST_F(IniStoreTest, BinaryValuesNeedExactlyTwoDigitsPerByte)
{
    const struct {
        const char* stored;
        bool found;
        std::array<std::uint8_t, 3> bytes;
    } cases[] = {{"0A1B2C", true, {0x0A, 0x1B, 0x2C}},    {"0a1b2c", true, {0x0A, 0x1B, 0x2C}},
                 {"0A1B2", false, {0xEE, 0xEE, 0xEE}},    {"0A1B2C3", false, {0xEE, 0xEE, 0xEE}},
                 {"0A1B2C3D", false, {0xEE, 0xEE, 0xEE}}, {"", false, {0xEE, 0xEE, 0xEE}},
                 {"0A1G2C", true, {0x0A, 0x10, 0x2C}},    {"zz  ff", true, {0x00, 0x00, 0xFF}}};
    for (const auto& c : cases) {
        Store(c.stored);
        std::array<std::uint8_t, 3> out = {0xEE, 0xEE, 0xEE};
        EXPECT_EQ(ReadBinary(path, "S", "k", out.data(), out.size()), c.found) << c.stored;
        EXPECT_EQ(out, c.bytes) << c.stored;
    }
    const std::uint8_t bytes[] = {0x00, 0xAB, 0x7F, 0xFF};
    ASSERT_TRUE(WriteBinary(path, "S", "k", bytes, sizeof bytes));
    EXPECT_EQ(ReadBytes(path), "[S]\nk=00AB7FFF\n") << "upper case hex in byte order";
}

TEST_F(IniStoreTest, IntegersAreFourLittleEndianBytes)
{
    const struct {
        const char* stored;
        std::int32_t expected;
    } cases[] = {{"68000000", 104}, {"00000068", 0x68000000}, {"FFFFFFFF", -1},
                 {"6800000", -5},   {"680000000", -5},        {"104", -5}};
    for (const auto& c : cases) {
        Store(c.stored);
        EXPECT_EQ(ReadInt(path, "S", "k", -5), c.expected) << c.stored;
    }
    EXPECT_EQ(ReadInt(path, "S", "missing", 34283), 34283);
    ASSERT_TRUE(WriteInt(path, "S", "k", 104));
    EXPECT_EQ(ReadBytes(path), "[S]\nk=68000000\n");
    ASSERT_TRUE(WriteInt(path, "S", "k", -2));
    EXPECT_EQ(ReadInt(path, "S", "k", 0), -2);
}

TEST_F(IniStoreTest, StringsAreCutToTheirBufferAndMissingOnesTakeTheDefault)
{
    Store("ready saber");
    char out[6];
    ReadString(path, "S", "k", out, sizeof out, "x");
    EXPECT_STREQ(out, "ready");
    ReadString(path, "S", "gone", out, sizeof out, "defaults");
    EXPECT_STREQ(out, "defau");
    ReadString(path, "S", "gone", out, sizeof out, nullptr);
    EXPECT_STREQ(out, "");
    std::filesystem::remove(path);
    EXPECT_TRUE(WriteString(path, "S", "k", ""));
    EXPECT_FALSE(std::filesystem::exists(path)) << "removing from a missing file creates nothing";
    for (const char* removing : {static_cast<const char*>(nullptr), "", "\"\""}) {
        ASSERT_TRUE(WriteString(path, "S", "k", "kept"));
        ASSERT_TRUE(WriteString(path, "S", "k", removing));
        ReadString(path, "S", "k", out, sizeof out, "gone");
        EXPECT_STREQ(out, "gone") << "an empty string removes the key";
    }
}

// Records what a window is told, in order.
class RecordingWindow : public FontTarget, public PlacementTarget {
  public:
    void SetFont(const LogFontRecord* font, bool redraw) override
    {
        calls.push_back(font ? std::string("SetFont ") + font->lfFaceName : "SetFont default");
        EXPECT_TRUE(redraw);
    }
    bool GetWindowPlacement(WindowPlacementRecord& out) override
    {
        out = placement;
        return canTell;
    }
    void SetWindowPlacement(const WindowPlacementRecord& p) override
    {
        calls.push_back("SetWindowPlacement " + std::to_string(p.length) + " " +
                        std::to_string(p.rcNormalPosition.right));
    }
    void ShowWindow(std::uint32_t showCmd) override
    {
        calls.push_back("ShowWindow " + std::to_string(showCmd));
    }
    void UpdateWindow() override { calls.push_back("UpdateWindow"); }

    std::vector<std::string> calls;
    WindowPlacementRecord placement;
    bool canTell = true;
};

TEST_F(IniStoreTest, FontsAndPlacementsGoBackToTheWindowTheyCameFrom)
{
    RecordingWindow window;
    EXPECT_FALSE(ReadFont(path, "Game Window", "Font", window));
    EXPECT_FALSE(WriteFont(path, "Game Window", "Font", nullptr));
    LogFontRecord font;
    std::strcpy(font.lfFaceName, "DejaVu Sans Mono");
    ASSERT_TRUE(WriteFont(path, "Game Window", "Font", &font));
    EXPECT_TRUE(ReadFont(path, "Game Window", "Font", window));
    EXPECT_FALSE(ReadPlacement(path, "Windows", "MainWindow", window));
    window.placement.length = 0;
    window.placement.rcNormalPosition.right = 640;
    ASSERT_TRUE(WritePlacement(path, "Windows", "MainWindow", window));
    EXPECT_TRUE(ReadPlacement(path, "Windows", "MainWindow", window));
    EXPECT_EQ(window.calls, (std::vector<std::string>{
                                "SetFont default", "SetFont DejaVu Sans Mono", "ShowWindow 1",
                                "UpdateWindow", "SetWindowPlacement 44 640", "UpdateWindow"}));
    window.canTell = false;
    EXPECT_FALSE(WritePlacement(path, "Windows", "Other", window));
}

TEST(ConfigFolders, PathsFallBackToTheProgramFolder)
{
    TempFolder folder;
    const ConfigFiles files = MakeConfigFiles(folder.Path());
    EXPECT_EQ(files.MainIni, folder.Path() + "/Thornmere.Ini");
    EXPECT_EQ(ScriptPath(files), folder.Path());
    ASSERT_TRUE(WriteString(files.MainIni, "Config", "Script Path", "/home/p/scripts/"));
    ASSERT_TRUE(WriteString(files.MainIni, "Config", "Sound Path", "/home/p/sounds"));
    EXPECT_EQ(ScriptPath(files), "/home/p/scripts");
    EXPECT_EQ(SoundPath(files), "/home/p/sounds");
    ASSERT_TRUE(WriteString(files.MainIni, "Config", "Script Path", ""));
    EXPECT_EQ(ScriptPath(files), folder.Path());
    TempFolder exe;
    EXPECT_EQ(FindProgramFolder(exe.Path(), folder.Path(), "/nonexistent"),
              folder.Path() + "/ThornmereSteward");
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path() + "/ThornmereSteward"));
    EXPECT_EQ(FindProgramFolder(exe.Path(), "", folder.Path()),
              folder.Path() + "/.local/share/ThornmereSteward");
    WriteBytes(exe.File("Thornmere.Ini"), "");
    EXPECT_EQ(FindProgramFolder(exe.Path(), folder.Path(), "/nonexistent"), exe.Path())
        << "a portable copy keeps its files beside the program";
    EXPECT_EQ(FolderOf(exe.Path() + "/thornmere-steward"), exe.Path());
}

TEST(StewardOptionsTest, DamagedValuesReadAsDefaultsAndOtherSectionsStay)
{
    struct Row {
        const char* stored;
        std::int32_t read;
    };
    const Row rows[] = {{"1", 1}, {"0", 0}, {"2", 0}, {"-1", 0}, {"1x", 0}, {"", 0}, {"yes", 0}};
    TempFolder folder;
    const std::string ini = folder.File("Thornmere.Ini");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.stored);
        IniFile file = IniFile::Parse("[Config]\nScript Path=/s\n");
        file.Set(STEWARD_SECTION, "Reconnect", row.stored);
        ASSERT_TRUE(file.Save(ini));
        StewardOptions options = StewardOptions::Load(ini);
        EXPECT_EQ(options.Get(RECONNECT_ON_DROP), row.read);
        options.Set(SPEAK, 7);
        ASSERT_TRUE(options.Save(ini));
        EXPECT_EQ(IniFile::Load(ini).Get("Config", "Script Path"), "/s");
        EXPECT_EQ(StewardOptions::Load(ini).Get(SPEAK), 1);
    }
}

} // namespace
} // namespace steward
