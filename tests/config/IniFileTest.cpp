#include "config/IniFile.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

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

} // namespace
} // namespace steward
