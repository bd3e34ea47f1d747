#include "session/CharacterList.h"

#include "config/ConfigFiles.h"
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

struct CountCase {
    const char* name;
    int profiles;
    std::size_t listed;
};

class CharacterMenuCounts : public CharacterListTest,
                            public ::testing::WithParamInterface<CountCase> {};

// Names "P00" to "P24", made in reverse so that the order is the list's own.
TEST_P(CharacterMenuCounts, ListsAtMostTwentyInOrder)
{
    for (int i = GetParam().profiles - 1; i >= 0; --i)
        Touch((i < 10 ? "P0" : "P") + std::to_string(i) + ".Dat");
    const std::vector<CharacterItem> items = BuildCharacterMenu(folder.Path(), "p03");
    ASSERT_EQ(items.size(), GetParam().listed);
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i].Command, CMD_FIRST_CHARACTER + static_cast<int>(i));
        EXPECT_EQ(items[i].Text, (i < 10 ? "P0" : "P") + std::to_string(i));
        EXPECT_EQ(items[i].Checked, i == 3);
    }
}

INSTANTIATE_TEST_SUITE_P(Folders, CharacterMenuCounts,
                         ::testing::Values(CountCase{"Empty", 0, 0}, CountCase{"One", 1, 1},
                                           CountCase{"Twenty", 20, 20},
                                           CountCase{"TwentyFive", 25, 20}),
                         [](const auto& info) { return std::string(info.param.name); });

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

struct NameCase {
    const char* name;
    const char* given;
    bool refused;
};

class NewCharacterNames : public CharacterListTest,
                          public ::testing::WithParamInterface<NameCase> {};

TEST_P(NewCharacterNames, RefusedWithAMessage)
{
    Touch("Bob.Dat");
    const char* problem = CheckCharacterName(Files(), GetParam().given);
    EXPECT_EQ(problem != nullptr, GetParam().refused);
}

INSTANTIATE_TEST_SUITE_P(
    Names, NewCharacterNames,
    ::testing::Values(NameCase{"Plain", "Alice", false},
                      NameCase{"WithSpaceAndDot", "Dr. Who", false}, NameCase{"Empty", "", true},
                      NameCase{"Slash", "../Alice", true}, NameCase{"Backslash", "a\\b", true},
                      NameCase{"Colon", "c:x", true}, NameCase{"ControlByte", "a\tb", true},
                      NameCase{"LeadingDot", ".hidden", true},
                      NameCase{"LeadingSpace", " Al", true},
                      NameCase{"ExistsInOtherCase", "BOB", true}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace steward
