#include "commands/MacroStore.h"
#include "support/TempFolder.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace steward {
namespace {

TEST(MacroStore, FindsTheSlotByPrecedence)
{
    // Each row stores "x" under one set of modifiers and presses with another.
    const struct {
        KeyModifiers setWith, pressed;
        int key;
        bool found;
    } rows[] = {{KEY_ALT, KEY_ALT | KEY_SHIFT, VK_F1, true},
                {KEY_SHIFT, KEY_CTRL | KEY_SHIFT, VK_F1, true},
                {KEY_CTRL, KEY_CTRL | KEY_SHIFT, VK_F1, false},
                {0, KEY_EXTENDED | KEY_NUMLOCK, VK_F12, true},
                {KEY_ALT, KEY_ALT | KEY_CTRL, 'Q', true},
                {KEY_CTRL, KEY_CTRL | KEY_SHIFT, 'Q', true},
                {KEY_SHIFT, KEY_SHIFT | KEY_CTRL, VK_ADD, true},
                {KEY_ALT, KEY_ALT | KEY_SHIFT, VK_DIVIDE, true},
                {0, KEY_NUMLOCK, VK_NUMPAD0 + 7, true}};
    for (const auto& row : rows) {
        MacroStore store;
        store.SetMacro(row.setWith, row.key, "x");
        const char* text = store.LookupMacro(row.pressed, row.key);
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(std::string(text) == "x", row.found) << row.key << " " << row.pressed;
    }
    MacroStore store;
    EXPECT_EQ(store.LookupMacro(0, 'A'), nullptr);
    EXPECT_EQ(store.LookupMacro(KEY_SHIFT, 'A'), nullptr);
    EXPECT_EQ(store.LookupMacro(KEY_ALT, VK_RETURN), nullptr);
    EXPECT_EQ(store.LookupMacro(KEY_ALT, '1'), nullptr);
    store.SetMacro(0, 'A', "x");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'A'), "");
    const std::string held(200, 'a');
    store.SetMacro(KEY_ALT, 'B', held.c_str());
    store.SetMacro(KEY_ALT, 'B', std::string(201, 'b').c_str());
    EXPECT_EQ(store.LookupMacro(KEY_ALT, 'B'), held);
}

TEST(MacroStore, SetsHoldTheFunctionKeysAndTheirNames)
{
    MacroStore store;
    store.SetMacro(0, VK_F1, "set one");
    store.SetMacro(KEY_ALT, 'Z', "letter");
    store.SelectMacroSet(3);
    EXPECT_STREQ(store.LookupMacro(0, VK_F1), "");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'Z'), "letter");
    store.SetMacroSetName(std::string(64, 'n').c_str());
    store.SetMacroSetName(std::string(65, 'm').c_str());
    EXPECT_EQ(std::string(store.MacroSetName(3)), std::string(64, 'n'));
    EXPECT_STREQ(store.MacroSetName(11), "");
    store.SelectMacroSet(10);
    store.SelectMacroSet(-1);
    EXPECT_EQ(store.CurrentMacroSet(), 3);
    store.SelectMacroSet(0);
    EXPECT_STREQ(store.LookupMacro(0, VK_F1), "set one");
    store.PreviousMacroSet();
    EXPECT_EQ(store.CurrentMacroSet(), 9);
    store.NextMacroSet();
    EXPECT_EQ(store.CurrentMacroSet(), 0);
}

TEST(MacroStore, DefaultsFillTheKeypadAndTheClipboardKeys)
{
    MacroStore store;
    store.SetMacro(0, VK_NUMPAD0 + 8, "mine");
    store.SetMacro(0, VK_NUMPAD0 + 2, "s");
    SetDefaultMacros(store, false);
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 8), "mine");
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 2), "s");
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 5), "\\xgo gate\\r");
    EXPECT_STREQ(store.LookupMacro(0, VK_ADD), "\\xlook\\r");
    EXPECT_STREQ(store.LookupMacro(0, VK_SUBTRACT), "");
    EXPECT_STREQ(store.LookupMacro(KEY_CTRL, 'C'), "{copy}");
    EXPECT_STREQ(store.LookupMacro(KEY_CTRL, 'X'), "{cut}");
    EXPECT_STREQ(store.LookupMacro(KEY_CTRL, 'V'), "{paste}");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'A'), "");
    SetDefaultMacros(store, true);
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'A'), "attack\\r");
}

class MacroFileTest : public ::testing::Test {
  protected:
    void Load(const std::string& content)
    {
        testing::WriteBytes(path, content);
        store.LoadMacros(path.c_str());
    }
    testing::TempFolder folder;
    std::string path = folder.File("Ayla.Macros");
    MacroStore store;
};

TEST_F(MacroFileTest, ReadsOrSkipsEachLine)
{
    const struct {
        std::string line;
        KeyModifiers modifiers;
        int key;
        const char* text; // what the key holds after the load; "" when the line is skipped
    } rows[] = {{"A K \"kick\\r\"\n", KEY_ALT, 'K', "kick\\r"},
                {"C Q \"quaff\"\n", KEY_CTRL, 'Q', "quaff"},
                {"A k \"kick\"\n", KEY_ALT, 'K', ""},
                {"A S \"say \"hello\"\\r\"\n", KEY_ALT, 'S', "say \"hello\"\\r"},
                {"0 N 11 \"x\"\n", 0, VK_F12, "x"},
                {"0 N 12 \"x\"\n", 0, VK_F1, ""},
                {"0 S 00 \"shifted\"\n", KEY_SHIFT, VK_F1, "shifted"},
                {"0 X 00 \"x\"\n", 0, VK_F1, ""},
                {"0 N 00 x\"y\"\n", 0, VK_F1, ""},
                {"K N x \"look\"\n", 0, VK_NUMPAD0, "look"},
                {"K C * \"exp\"\n", KEY_CTRL, VK_MULTIPLY, "exp"},
                {"K S 9?\"ne\"\n", KEY_SHIFT, VK_NUMPAD9, "ne"},
                {"A B \"open\n", KEY_ALT, 'B', ""},
                {"A B \"\n", KEY_ALT, 'B', ""},
                {"A B \"\"\n", KEY_ALT, 'B', ""},
                {"A B \"back\"", KEY_ALT, 'B', "back"},
                {"Z B \"x\"\n", KEY_ALT, 'B', ""},
                {"garbage\n0 N 99 \"x\"\nA Z \"zap\"\n", KEY_ALT, 'Z', "zap"},
                {"A L \"" + std::string(300, 'l') + "\"\nA B \"x\"\n", KEY_ALT, 'L', ""},
                {"A L \"" + std::string(300, 'l') + "\"\nA B \"x\"\n", KEY_ALT, 'B', "x"},
                {"N 1 \"x\"\nN 2 \"x\"\n", KEY_ALT, 'B', ""}};
    for (const auto& row : rows) {
        store.SetMacro(KEY_ALT, 'B', "old");
        Load(row.line);
        EXPECT_STREQ(store.LookupMacro(row.modifiers, row.key), row.text) << row.line;
    }
    Load("N 1 \"" + std::string(63, 'n') + "\"\nN 2 \"" + std::string(64, 'm') + "\"\n");
    EXPECT_EQ(std::string(store.MacroSetName(1)), std::string(63, 'n'));
    EXPECT_STREQ(store.MacroSetName(2), "");
    store.SelectMacroSet(5);
    Load("N 3 \"Fight\"\n");
    SetDefaultMacros(store, false);
    EXPECT_STREQ(store.MacroSetName(3), "Fight");
    EXPECT_EQ(store.CurrentMacroSet(), 0);
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 8), "\\xn\\r");
    store.LoadMacros(folder.File("none.Macros").c_str());
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 8), "") << "a missing file empties the store";
}

TEST_F(MacroFileTest, SavesInTheFileOrderAndReadsBackByteForByte)
{
    store.SetMacro(KEY_ALT, 'A', std::string(199, 'a').c_str());
    store.SetMacro(KEY_ALT, 'B', std::string(200, 'b').c_str());
    TraceRecorder trace;
    ASSERT_TRUE(store.SaveMacros(path.c_str()));
    MacroStore loaded;
    loaded.LoadMacros(path.c_str());
    EXPECT_EQ(trace.Lines, (std::vector<std::string>{"MACROS: Saving to \"" + path + "\"\n",
                                                     "MACROS: Loading from \"" + path + "\"\n"}));
    EXPECT_EQ(loaded.LookupMacro(KEY_ALT, 'A'), std::string(199, 'a'));
    EXPECT_STREQ(loaded.LookupMacro(KEY_ALT, 'B'), "") << "200 characters do not come back";

    MacroStore walk;
    walk.SelectMacroSet(1);
    walk.SetMacroSetName("Walk");
    walk.SetMacro(KEY_CTRL, VK_F1 + 1, "ctrl f2");
    walk.SetMacro(KEY_SHIFT, VK_F12, "shift f12");
    walk.SetMacro(KEY_SHIFT, VK_DECIMAL, "pad shift");
    walk.SetMacro(KEY_CTRL, VK_ADD, "pad ctrl");
    walk.SetMacro(0, VK_DIVIDE, "pad");
    walk.SetMacro(KEY_CTRL, 'B', "ctrl b");
    walk.SetMacro(KEY_ALT, 'Y', "alt y");
    ASSERT_TRUE(walk.SaveMacros(path.c_str()));
    EXPECT_EQ(testing::ReadBytes(path), "A Y \"alt y\"\nC B \"ctrl b\"\nK N / \"pad\"\n"
                                        "K C + \"pad ctrl\"\nK S . \"pad shift\"\nN 1 \"Walk\"\n"
                                        "1 S 11 \"shift f12\"\n1 C 01 \"ctrl f2\"\n");

    const std::string content = "A A \"attack\\r\"\nA S \"say \"hello\"\\r\"\nC C \"{copy}\"\n"
                                "K N 0 \"\\xgo door\\r\"\nK N 9 \"\\xne\\r\"\nK A - \"flee\"\n"
                                "N 0 \"Main\"\n0 N 00 \"score\"\n0 A 05 \"{=patrol}\"\n"
                                "N 9 \"Last\"\n9 C 11 \"tell @ hi\"\n";
    Load(content);
    store.SelectMacroSet(4);
    ASSERT_TRUE(store.SaveMacros(path.c_str()));
    EXPECT_EQ(testing::ReadBytes(path), content);
    store.LoadMacros(path.c_str());
    EXPECT_EQ(store.CurrentMacroSet(), 0);
    EXPECT_TRUE(store.SaveMacros("")) << "no path, nothing to save";
    EXPECT_FALSE(store.SaveMacros(folder.File("missing/x.Macros").c_str()));
    EXPECT_FALSE(std::filesystem::exists(folder.File("missing")));
}

} // namespace
} // namespace steward
