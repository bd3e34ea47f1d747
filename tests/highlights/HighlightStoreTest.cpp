#include "highlights/HighlightStore.h"
#include "HighlightDoubles.h"
#include "base/FrameCommand.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

namespace steward::testing {
namespace {

TEST(CopySpecial, EachClipboardLineBecomesAnEntryOfTheCommandsList)
{
    const struct {
        std::string clip;
        std::vector<std::string> added;
    } cases[] = {{"Mara", {"Mara"}},
                 {"Mara\r\nTam\n\nOld Bob\r", {"Mara", "Tam", "Old Bob"}},
                 {"$*@Mara", {"$*@Mara"}},
                 {std::string(80, 'a'), {std::string(80, 'a')}},
                 {std::string(81, 'b') + "\nTam", {"Tam"}},
                 {std::string(300, 'c') + "\nTam", {"Tam"}},
                 {"", {}}};
    for (const auto& c : cases) {
        HighlightStore lists;
        lists.NameHighlights.Add("Old", 3);
        FakeClipboard clipboard;
        clipboard.text = c.clip;
        EXPECT_TRUE(lists.CopyToHighlights(CMD_COPY_TO_NAME_HIGHLIGHTS, clipboard));
        std::vector<std::string> added;
        for (std::size_t i = 1; lists.NameHighlights.Text(i)[0] != '\0'; ++i) {
            added.emplace_back(lists.NameHighlights.Text(i));
            EXPECT_EQ(lists.NameHighlights.Color(i), HIGHLIGHT_DEFAULT_COLOR);
        }
        EXPECT_EQ(added, c.added) << c.clip;
        EXPECT_STREQ(lists.StringHighlights.Text(0), "");
    }
    HighlightStore lists;
    FakeClipboard clipboard;
    clipboard.text = "Mara";
    clipboard.available = false;
    lists.CopyToHighlights(CMD_COPY_TO_STRING_HIGHLIGHTS, clipboard);
    EXPECT_STREQ(lists.StringHighlights.Text(0), "");
    clipboard.available = true;
    EXPECT_FALSE(lists.CopyToHighlights(1106, clipboard));
    EXPECT_TRUE(lists.CopyToHighlights(CMD_COPY_TO_STRING_HIGHLIGHTS, clipboard));
    EXPECT_STREQ(lists.StringHighlights.Text(0), "Mara");
}

TEST(HighlightStoreTest, LoadAndSaveUseTwoFilesAndTraceEach)
{
    TempFolder folder;
    const std::string strings = folder.File("Hero.Highlights");
    const std::string names = folder.File("Hero.Names");
    TraceRecorder trace;
    {
        HighlightStore lists;
        lists.StringHighlights.Add("{gong}*Attention", 14);
        lists.NameHighlights.Add("Mara", 0x1E);
        ASSERT_TRUE(lists.Save(strings, names));
    }
    EXPECT_EQ(trace.Lines, (std::vector<std::string>{"HIGHLIGHTS: Saving to \"" + strings + "\"\n",
                                                     "HIGHLIGHTS: Saving to \"" + names + "\"\n"}));
    EXPECT_EQ(ReadBytes(names), "030 \"Mara\"\n");
    trace.Lines.clear();
    HighlightStore lists;
    lists.NameHighlights.Add("stale", 1);
    lists.Load(strings, names);
    EXPECT_EQ(trace.Lines.front(), "HIGHLIGHTS: Loading from \"" + strings + "\"\n");
    EXPECT_STREQ(lists.StringHighlights.Text(0), "{gong}*Attention");
    EXPECT_STREQ(lists.NameHighlights.Text(0), "Mara");
    lists.Load(folder.File("Nobody.Highlights"), folder.File("Nobody.Names"));
    EXPECT_STREQ(lists.NameHighlights.Text(0), "") << "a character with no files has no entries";
}

} // namespace
} // namespace steward::testing
