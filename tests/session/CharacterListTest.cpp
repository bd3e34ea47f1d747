#include "session/CharacterList.h"

#include "config/ConfigFiles.h"
#include "session/MenuBar.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace steward {
namespace {

using testing::TempFolder;

class CharacterListTest : public ::testing::Test {
  protected:
    void Touch(const std::string& name, const char* text = "")
    {
        std::ofstream(folder.File(name), std::ios::binary) << text;
    }
    std::vector<std::string> Texts(const char* current = "")
    {
        std::vector<std::string> texts;
        for (const CharacterItem& item : BuildCharacterMenu(folder.Path(), current))
            texts.push_back(item.Text + "=" + item.FileName + (item.Checked ? "*" : ""));
        return texts;
    }
    ConfigFiles Files() const { return MakeConfigFiles(folder.Path()); }

    TempFolder folder;
};

// Names "P00" to "P24", made in reverse so that the order is the list's own.
TEST_F(CharacterListTest, ListsAtMostTwentyInOrder)
{
    for (const auto& [profiles, listed] :
         {std::pair{0, 0u}, std::pair{1, 1u}, std::pair{20, 20u}, std::pair{25, 20u}}) {
        for (int i = profiles - 1; i >= 0; --i)
            Touch((i < 10 ? "P0" : "P") + std::to_string(i) + ".Dat");
        const std::vector<CharacterItem> items = BuildCharacterMenu(folder.Path(), "p03");
        ASSERT_EQ(items.size(), listed);
        for (std::size_t i = 0; i < items.size(); ++i) {
            EXPECT_EQ(items[i].Command, CMD_FIRST_CHARACTER + static_cast<int>(i));
            EXPECT_EQ(items[i].Text, (i < 10 ? "P0" : "P") + std::to_string(i));
            EXPECT_EQ(items[i].Checked, i == 3);
        }
    }
}

TEST_F(CharacterListTest, NamesAreCapitalisedAndKeepTheirFile)
{
    for (const char* name : {"BOB.Dat", "anna maria.Dat", "mr.smith.Dat", "Carl.Macros", "dora.dat",
                             ".Dat", "Eve.Dat.bak"})
        Touch(name);
    EXPECT_EQ(Texts("bob"),
              (std::vector<std::string>{"Anna maria=anna maria", "Bob=BOB*", "Mr.smith=mr.smith"}));
}

TEST_F(CharacterListTest, EnsureProfileFilesGivesMacroFilesAProfile)
{
    Touch("Hand.Macros");
    Touch("Kept.Macros");
    Touch("Kept.Dat", "[Config]\r\n");
    EnsureProfileFiles(Files());
    EXPECT_EQ(testing::ReadBytes(folder.File("Hand.Dat")), "\r\n");
    EXPECT_EQ(testing::ReadBytes(folder.File("Kept.Dat")), "[Config]\r\n");
    EXPECT_EQ(Texts().size(), 2u);
}

TEST_F(CharacterListTest, NewCharacterNamesAreRefusedWithAMessage)
{
    Touch("Bob.Dat");
    const std::pair<const char*, bool> cases[] = {
        {"Alice", false}, {"Dr. Who", false}, {"", true},        {"../Alice", true}, {"a\\b", true},
        {"c:x", true},    {"a\tb", true},     {".hidden", true}, {" Al", true},      {"BOB", true},
    };
    for (const auto& [given, refused] : cases)
        EXPECT_EQ(CheckCharacterName(Files(), given) != nullptr, refused) << given;
}

// A maximised child window puts its own item in front of the menus.
TEST(ConfigurationMenuPosition, FindsTheMenuWithOrWithoutAChildItemInFront)
{
    const int menus = static_cast<int>(MainMenu().size());
    for (int inFront : {0, 1})
        EXPECT_STREQ(MainMenu()[ConfigurationMenuPosition(menus + inFront) - inFront].Title,
                     "Configuration")
            << inFront;
}

} // namespace
} // namespace steward
