#include "commands/MacroStore.h"
#include "support/TempFolder.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace steward {
namespace {

class MacroFileTest : public ::testing::Test {
  protected:
    std::string Read() const { return testing::ReadBytes(path); }
    void Load(const std::string& content)
    {
        testing::WriteBytes(path, content);
        store.LoadMacros(path.c_str());
    }

    testing::TempFolder folder;
    std::string path = folder.File("Ayla.Macros");
    MacroStore store;
};

struct LineCase {
    const char* name;
    const char* line;
    KeyModifiers modifiers;
    int key;
    const char* text; // what the key holds after the load; "" when the line is skipped
};

class MacroLineTest : public MacroFileTest, public ::testing::WithParamInterface<LineCase> {};

TEST_P(MacroLineTest, ReadsOrSkipsTheLine)
{
    Load(GetParam().line);
    EXPECT_STREQ(store.LookupMacro(GetParam().modifiers, GetParam().key), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MacroLineTest,
    ::testing::Values(
        LineCase{"AltLetter", "A K \"kick\\r\"\n", KEY_ALT, 'K', "kick\\r"},
        LineCase{"CtrlLetter", "C Q \"quaff\"\n", KEY_CTRL, 'Q', "quaff"},
        LineCase{"LowercaseLetterSkipped", "A k \"kick\"\n", KEY_ALT, 'K', ""},
        LineCase{"QuotesInside", "A S \"say \"hello\"\\r\"\n", KEY_ALT, 'S', "say \"hello\"\\r"},
        LineCase{"F12OfSet0", "0 N 11 \"x\"\n", 0, VK_F12, "x"},
        LineCase{"KeyIndex12Skipped", "0 N 12 \"x\"\n", 0, VK_F1, ""},
        LineCase{"FunctionShift", "0 S 00 \"shifted\"\n", KEY_SHIFT, VK_F1, "shifted"},
        LineCase{"FunctionBadModifier", "0 X 00 \"x\"\n", 0, VK_F1, ""},
        LineCase{"FunctionNoQuoteColumn", "0 N 00 x\"y\"\n", 0, VK_F1, ""},
        LineCase{"KeypadUnknownIsZero", "K N x \"look\"\n", 0, VK_NUMPAD0, "look"},
        LineCase{"KeypadStar", "K C * \"exp\"\n", KEY_CTRL, VK_MULTIPLY, "exp"},
        LineCase{"KeypadColumn5Ignored", "K S 9?\"ne\"\n", KEY_SHIFT, VK_NUMPAD9, "ne"},
        LineCase{"NoClosingQuote", "A B \"open\n", KEY_ALT, 'B', ""},
        LineCase{"ShortLine", "A B \"\n", KEY_ALT, 'B', ""},
        LineCase{"EmptyText", "A B \"\"\n", KEY_ALT, 'B', ""},
        LineCase{"NoNewlineAtEnd", "A B \"back\"", KEY_ALT, 'B', "back"},
        LineCase{"UnknownKind", "Z B \"x\"\n", KEY_ALT, 'B', ""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(MacroFileTest, RoundTripTracesItsPathsAndKeeps199CharactersNot200)
{
    std::string text199(199, 'a');
    std::string text200(200, 'b');
    store.SetMacro(KEY_ALT, 'A', text199.c_str());
    store.SetMacro(KEY_ALT, 'B', text200.c_str());
    TraceRecorder trace;
    ASSERT_TRUE(store.SaveMacros(path.c_str()));
    MacroStore loaded;
    loaded.LoadMacros(path.c_str());
    EXPECT_EQ(trace.Lines, (std::vector<std::string>{"MACROS: Saving to \"" + path + "\"\n",
                                                     "MACROS: Loading from \"" + path + "\"\n"}));
    EXPECT_EQ(loaded.LookupMacro(KEY_ALT, 'A'), text199);
    EXPECT_STREQ(loaded.LookupMacro(KEY_ALT, 'B'), "");
}

TEST_F(MacroFileTest, NameOf63ComesBackAnd64DoesNot)
{
    Load("N 1 \"" + std::string(63, 'n') + "\"\nN 2 \"" + std::string(64, 'm') + "\"\n");
    EXPECT_EQ(std::string(store.MacroSetName(1)), std::string(63, 'n'));
    EXPECT_STREQ(store.MacroSetName(2), "");
}

TEST_F(MacroFileTest, OnlyASetNameLeavesKeysToTheDefaults)
{
    store.SetMacro(KEY_ALT, 'Q', "old");
    store.SelectMacroSet(5);
    Load("N 3 \"Fight\"\n");
    SetDefaultMacros(store, false);
    EXPECT_STREQ(store.MacroSetName(3), "Fight");
    EXPECT_EQ(store.CurrentMacroSet(), 0);
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'Q'), "");
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 8), "\\xn\\r");
}

TEST_F(MacroFileTest, AMissingFileEmptiesTheStore)
{
    store.SetMacro(KEY_ALT, 'Q', "old");
    store.LoadMacros(folder.File("none.Macros").c_str());
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'Q'), "");
}

TEST_F(MacroFileTest, ABadLineIsSkippedAndTheNextRead)
{
    Load("garbage\n0 N 99 \"x\"\nA Z \"zap\"\n");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'Z'), "zap");
}

TEST_F(MacroFileTest, ALineLongerThanTheReaderIsNotRead)
{
    Load("A L \"" + std::string(300, 'l') + "\"\nA M \"next\"\n");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'L'), "");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'M'), "next");
}

TEST_F(MacroFileTest, SavesInTheFileOrder)
{
    store.SelectMacroSet(1);
    store.SetMacroSetName("Walk");
    store.SetMacro(KEY_CTRL, VK_F1 + 1, "ctrl f2");
    store.SetMacro(KEY_SHIFT, VK_F12, "shift f12");
    store.SetMacro(KEY_SHIFT, VK_DECIMAL, "pad shift");
    store.SetMacro(KEY_CTRL, VK_ADD, "pad ctrl");
    store.SetMacro(0, VK_DIVIDE, "pad");
    store.SetMacro(KEY_CTRL, 'B', "ctrl b");
    store.SetMacro(KEY_ALT, 'Y', "alt y");
    ASSERT_TRUE(store.SaveMacros(path.c_str()));
    EXPECT_EQ(Read(), "A Y \"alt y\"\n"
                      "C B \"ctrl b\"\n"
                      "K N / \"pad\"\n"
                      "K C + \"pad ctrl\"\n"
                      "K S . \"pad shift\"\n"
                      "N 1 \"Walk\"\n"
                      "1 S 11 \"shift f12\"\n"
                      "1 C 01 \"ctrl f2\"\n");
}

TEST_F(MacroFileTest, AWrittenFileReadsBackByteForByte)
{
    const std::string content = "A A \"attack\\r\"\n"
                                "A S \"say \"hello\"\\r\"\n"
                                "C C \"{copy}\"\n"
                                "K N 0 \"\\xgo door\\r\"\n"
                                "K N 9 \"\\xne\\r\"\n"
                                "K A - \"flee\"\n"
                                "N 0 \"Main\"\n"
                                "0 N 00 \"score\"\n"
                                "0 A 05 \"{=patrol}\"\n"
                                "N 9 \"Last\"\n"
                                "9 C 11 \"tell @ hi\"\n";
    Load(content);
    store.SelectMacroSet(4);
    ASSERT_TRUE(store.SaveMacros(path.c_str()));
    EXPECT_EQ(Read(), content);
    store.LoadMacros(path.c_str());
    EXPECT_EQ(store.CurrentMacroSet(), 0);
}

TEST_F(MacroFileTest, SaveWithAnEmptyPathWritesNothing)
{
    store.SetMacro(KEY_ALT, 'A', "x");
    EXPECT_TRUE(store.SaveMacros("")) << "no path, nothing to save";
    EXPECT_FALSE(store.SaveMacros(folder.File("missing/x.Macros").c_str()));
    EXPECT_FALSE(std::filesystem::exists(folder.File("missing")));
}

} // namespace
} // namespace steward
