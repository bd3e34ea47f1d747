#include "config/IniStore.h"
#include "config/BinaryRecords.h"
#include "config/ConfigFiles.h"
#include "config/IniFile.h"
#include "config/Settings.h"
#include "config/StewardOptions.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
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

TEST(IniFileRead, NamesAreComparedWithoutRegardToCase)
{
    const IniFile ini = IniFile::Parse("[Config]\nEquipWeapon=ready axe\n");
    const char* sections[] = {"Config", "config", "CONFIG", " Config "};
    const char* keys[] = {"EquipWeapon", "equipweapon", "EQUIPWEAPON"};
    for (const char* section : sections)
        for (const char* key : keys)
            EXPECT_EQ(ini.Get(section, key), "ready axe") << section << "/" << key;
}

TEST(IniFileRead, ValuesAsThePrivateProfileFunctionsGiveThem)
{
    const struct {
        const char* text;
        std::optional<std::string> expected;
    } cases[] = {{"[S]\nk=v\n", "v"},
                 {"[S]\r\nk=v\r\n", "v"},
                 {"  [ S ]  \n  k  =  v w  \n", "v w"},
                 {"[S]\nk=\"quoted value\"\n", "quoted value"},
                 {"[S]\nk='single'\n", "single"},
                 {"[S]\nk=\"half\n", "\"half"},
                 {"[S]\nk=\n", ""},
                 {"[S]\nk=a=b\n", "a=b"},
                 {"[S]\nk=first\nk=second\n", "first"},
                 {"[S]\n;k=comment\n", std::nullopt},
                 {"[S]\nk\n", std::nullopt},
                 {"[T]\nk=v\n[S]\nj=v\n", std::nullopt},
                 {"k=outside\n[S]\n", std::nullopt},
                 {"[S]\nk=v", "v"},
                 {"", std::nullopt},
                 {"[S\nk=unclosed header\n", "unclosed header"}};
    for (const auto& c : cases)
        EXPECT_EQ(IniFile::Parse(c.text).Get("S", "k"), c.expected) << c.text;
}

TEST(IniFileRead, RandomBytesNeverBreakAReadOrAnEdit)
{
    std::mt19937 random(7);
    const char alphabet[] = "[]=;\"' \t\r\nabcSk\x80\xff";
    for (int round = 0; round < 200; ++round) {
        std::string text(random() % 300, '\0');
        for (char& c : text)
            c = alphabet[random() % (sizeof alphabet - 1)];
        IniFile ini = IniFile::Parse(text);
        ini.Get("S", "k");
        ini.Set("S", "k", "v");
        EXPECT_EQ(IniFile::Parse(ini.Text()).Get("S", "k"), "v") << text;
        EXPECT_TRUE(ini.Remove("S", "k"));
    }
    std::string text = "\x01\x02garbage\n]]]\n[\n=\n==\n[S]\n\xff\xfe=\x80\nk=v\n";
    text += std::string(3, '\0') + "\n";
    EXPECT_EQ(IniFile::Parse(text).Get("S", "k"), "v");
    const IniFile huge =
        IniFile::Parse("[S]\nk=" + std::string(INI_LINE_MAX * 3, 'x') + "\nj=after\n");
    EXPECT_EQ(huge.Get("S", "k")->size(), INI_LINE_MAX - 2) << "a huge line is cut at its limit";
    EXPECT_EQ(huge.Get("S", "j"), "after");
}

TEST(IniFileFiles, AMissingFileReadsAsEmptyAndOnlyTheFirstMegabyteIsRead)
{
    TempFolder folder;
    const std::string path = folder.File("New.Ini");
    IniFile ini = IniFile::Load(path);
    EXPECT_EQ(ini.Get("S", "k"), std::nullopt);
    ini.Set("S", "k", "v");
    ASSERT_TRUE(ini.Save(path));
    EXPECT_EQ(ReadBytes(path), "[S]\nk=v\n");
    EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));
    EXPECT_FALSE(ini.Save(folder.File("no/such/folder.Ini")));
    const std::string filler(INI_LINE_MAX - 1, ';');
    std::string text = "[S]\nfirst=1\n";
    while (text.size() < INI_FILE_MAX)
        text += filler + "\n";
    WriteBytes(path, text + "last=2\n");
    const IniFile big = IniFile::Load(path);
    EXPECT_EQ(big.Get("S", "first"), "1");
    EXPECT_EQ(big.Get("S", "last"), std::nullopt);
}

TEST(IniFileWrite, EditsKeepEveryOtherLine)
{
    const struct {
        const char *name, *before, *after;
    } cases[] = {
        {"replace keeps neighbours", "; note\n[S]\nx=1\nK=old\ny=2\n",
         "; note\n[S]\nx=1\nk=new\ny=2\n"},
        {"add after the section's last key", "[S]\nx=1\n\n[T]\nz=3\n",
         "[S]\nx=1\nk=new\n\n[T]\nz=3\n"},
        {"add to an empty section", "[S]\n[T]\n", "[S]\nk=new\n[T]\n"},
        {"new section at the end", "junk line\n[T]\nz=3\n", "junk line\n[T]\nz=3\n\n[S]\nk=new\n"},
        {"CRLF is kept", "[S]\r\nx=1\r\n", "[S]\r\nx=1\r\nk=new\r\n"}};
    for (const auto& c : cases) {
        IniFile ini = IniFile::Parse(c.before);
        ini.Set("S", "k", "new");
        EXPECT_EQ(ini.Text(), c.after) << c.name;
    }
    IniFile ini = IniFile::Parse("[S]\nx=1\nK=2\ny=3\n[T]\nk=4\n");
    EXPECT_TRUE(ini.Remove("s", "k"));
    EXPECT_EQ(ini.Text(), "[S]\nx=1\ny=3\n[T]\nk=4\n");
    EXPECT_FALSE(ini.Remove("S", "k"));
    EXPECT_FALSE(ini.Remove("Missing", "k"));
    ini = IniFile::Parse("");
    ini.Set("S", "k", "one\r\n[Evil]\nx=1");
    EXPECT_EQ(ini.Text(), "[S]\nk=one\n") << "a value is cut at its first line break";
}

template <std::size_t N> std::string Hex(const std::array<std::uint8_t, N>& bytes)
{
    std::string out;
    for (std::uint8_t byte : bytes)
        out += {"0123456789ABCDEF"[byte >> 4], "0123456789ABCDEF"[byte & 15]};
    return out;
}

TEST(BinaryRecords, RecordsKeepTheirLayoutAndEveryByteComesBack)
{
    // White text, BufferedUpdates, ShowCursor, AutoArrange, '.', a reserved 1, chunks of 1024,
    // LocalEcho, the says, whispers and thought colours, MinCommandLength 4.
    EXPECT_EQ(Hex(Settings{}.ToBytes()), "00000000FFFFFF000100000001012E00000001000004000000010A0B"
                                         "282800000000000004" +
                                             std::string(2 * 123, '0'));
    LogFontRecord f;
    f.lfHeight = -13;
    f.lfWeight = 700;
    f.lfItalic = 1;
    f.lfPitchAndFamily = 0x31;
    std::memcpy(f.lfFaceName, "Courier New", 12);
    EXPECT_EQ(Hex(f.ToBytes()), "F3FFFFFF000000000000000000000000BC020000010000000000003143"
                                "6F7572696572204E6577" +
                                    std::string(2 * 21, '0'));
    WindowPlacementRecord p;
    p.showCmd = 3;
    p.rcNormalPosition = {10, 20, 630, 470};
    EXPECT_EQ(Hex(p.ToBytes()), "2C0000000000000003000000" + std::string(32, '0') +
                                    "0A0000001400000076020000D6010000");
    GaugeColorBytes g = GaugeColorsToBytes({0x0000FF, 0x00FF00, 0xFF0000});
    EXPECT_EQ(Hex(g), "FF00000000FF00000000FF00" + std::string(16, '0'));
    for (std::size_t i = GAUGE_COLOR_USED_SIZE; i < g.size(); ++i)
        g[i] = 0xAB; // only the first 12 bytes are read
    EXPECT_EQ(GaugeColorsToBytes(GaugeColorsFromBytes(g)),
              GaugeColorsToBytes({255, 65280, 0xFF0000}));
    std::mt19937 random(5);
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        SettingsBytes settings;
        LogFontBytes font;
        WindowPlacementBytes placement;
        for (auto* bytes : {settings.data(), font.data(), placement.data()})
            for (std::size_t i = 0; i < WINDOWPLACEMENT_SIZE; ++i)
                bytes[i] = static_cast<std::uint8_t>(random());
        for (std::size_t i = WINDOWPLACEMENT_SIZE; i < SETTINGS_SIZE; ++i)
            settings[i] = static_cast<std::uint8_t>(random());
        for (std::size_t i = WINDOWPLACEMENT_SIZE; i < LOGFONT_SIZE; ++i)
            font[i] = static_cast<std::uint8_t>(random());
        EXPECT_EQ(Settings::FromBytes(settings).ToBytes(), settings);
        EXPECT_EQ(LogFontRecord::FromBytes(font).ToBytes(), font);
        EXPECT_EQ(WindowPlacementRecord::FromBytes(placement).ToBytes(), placement);
    }
    SettingsBytes in = Settings{}.ToBytes();
    in[0] = 0x11, in[1] = 0x22, in[2] = 0x33, in[20] = 0x88, in[21] = 0x13, in[36] = 0xFD;
    in[37] = 0xFF;
    const Settings s = Settings::FromBytes(in);
    EXPECT_EQ(s.DefaultBackColor, 0x332211u);
    EXPECT_EQ(s.ReceiveChunkSize, 5000);
    EXPECT_EQ(s.MinCommandLength, -3);
    EXPECT_EQ(WindowPlacementRecord::FromBytes(p.ToBytes()).rcNormalPosition.right, 630);
}

TEST(CheckSettings, BringsLoadedValuesIntoRange)
{
    const struct {
        std::uint8_t displayMode;
        std::int16_t minCommandLength;
        std::int32_t receiveChunkSize;
        std::uint8_t wantDisplayMode;
        std::int16_t wantMinCommandLength;
        std::int32_t wantReceiveChunkSize;
    } cases[] = {
        {0, 4, 1024, 0, 4, 1024},    {2, 0, 256, 2, 0, 256},           {3, -3, 100, 0, 0, 256},
        {255, -1, 5000, 0, 0, 2048}, {1, 30000, 2048, 1, 30000, 2048}, {1, 1, -7, 1, 1, 256},
    };
    for (const auto& c : cases) {
        Settings s;
        s.DisplayMode = c.displayMode;
        s.MinCommandLength = c.minCommandLength;
        s.ReceiveChunkSize = c.receiveChunkSize;
        CheckSettings(s);
        EXPECT_EQ(s.DisplayMode, c.wantDisplayMode) << int(c.displayMode);
        EXPECT_EQ(s.MinCommandLength, c.wantMinCommandLength) << c.minCommandLength;
        EXPECT_EQ(s.ReceiveChunkSize, c.wantReceiveChunkSize) << c.receiveChunkSize;
    }
}

} // namespace
} // namespace steward
