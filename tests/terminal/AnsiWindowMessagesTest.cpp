#include "WindowFixture.h"

#include <cstring>
#include <string>

namespace steward::testing {
namespace {

using MessagesTest = WindowTest;

std::string TextOf(const AnsiWindow& window)
{
    char out[4096];
    return std::string(out, window.GetText(out, sizeof out));
}

TEST_F(MessagesTest, ANewWindowTakesItsRingSizeFromItsNameAndTheDefaults)
{
    const std::pair<const char*, std::uint32_t> cases[] = {
        {"Game Window", GAME_BUFFER_CAPACITY},
        {"Gazette", GAME_BUFFER_CAPACITY},
        {"Thought Window", WINDOW_BUFFER_CAPACITY},
        {"game window", WINDOW_BUFFER_CAPACITY},
        {"G", WINDOW_BUFFER_CAPACITY}};
    for (const auto& [name, capacity] : cases) {
        auto window = Make(name);
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->GetLiveBuffer().GetCapacity(), capacity) << name;
        EXPECT_EQ(window->GetViewBuffer().GetCapacity(), capacity) << name;
    }
    settings.DefaultTextColor = MakeRgb(10, 20, 30);
    settings.DefaultBackColor = MakeRgb(40, 50, 60);
    host.overhang = 2;
    auto window = Make("Thought Window");
    EXPECT_EQ(window->GetTextColor(), MakeRgb(10, 20, 30));
    EXPECT_EQ(window->GetBkColor(), MakeRgb(40, 50, 60));
    EXPECT_EQ(window->GetLineHeight(), CELL_HEIGHT);
    // The overhang is taken from every width.
    EXPECT_EQ(window->GetCharWidth()['a'], CELL_WIDTH);
    EXPECT_EQ(window->GetCharWidth()[0x80], CELL_WIDTH);
    window->SetName(std::string(100, 'n').c_str());
    EXPECT_EQ(std::strlen(window->GetWindowName()), WINDOW_NAME_SIZE - 1);
    EXPECT_STREQ(window->GetSectionName(), window->GetWindowName());
}

TEST_F(MessagesTest, RowsNeedHalfARowOfSpareHeightAndShareTheRestAboveAndBelow)
{
    const struct {
        std::int32_t height;
        std::int32_t rows;
        std::int32_t textTop;
    } cases[] = {{0, 0, 0}, {14, 0, 7}, {15, 1, 2}, {24, 1, 7}, {25, 2, 2}, {100, 9, 5}};
    for (const auto& c : cases) {
        host.client = {0, 0, 300, c.height};
        auto window = Make("Thought Window");
        EXPECT_EQ(window->GetRows(), c.rows) << c.height;
        EXPECT_EQ(window->GetTextTop(), c.textTop) << c.height;
    }
}

TEST_F(MessagesTest, OnlyTheGameWindowAppliesThePromptRule)
{
    auto window = Make("Game Window", true);
    window->AppendText("> ");
    prompt.PromptPending = true;
    EXPECT_EQ(window->AppendText("\r\n"), 1);
    EXPECT_TRUE(prompt.PromptPending);
    EXPECT_EQ(TextOf(*window), "> \r\n");
    window->AppendText("The road.\r\n");
    EXPECT_FALSE(prompt.PromptPending);
    EXPECT_EQ(TextOf(*window), "> \r\nThe road.\r\n\r\n");
    window->AppendText("> ");
    prompt.PromptPending = true;
    prompt.EchoPending = true;
    window->AppendText("look\r\n");
    EXPECT_FALSE(prompt.EchoPending);
    EXPECT_EQ(TextOf(*window), "> \r\nThe road.\r\n> look\r\n\r\n");

    auto other = Make("Thought Window");
    prompt.PromptPending = true;
    other->AppendText("> ");
    other->AppendText("\r\n");
    EXPECT_EQ(TextOf(*other), "> \r\n\r\n");
    EXPECT_TRUE(prompt.PromptPending);
}

TEST_F(MessagesTest, AppendingBeepsAndAsksForALaterPaintUnlessUpdatesAreUnbuffered)
{
    auto window = Make("Thought Window");
    host.invalidations.clear();
    const int updates = host.updates;
    window->AppendText("ding\a!");
    EXPECT_EQ(host.beeps, 1);
    EXPECT_EQ(host.invalidations, std::vector<bool>{false});
    EXPECT_EQ(host.updates, updates);
    settings.BufferedUpdates = 0;
    window->AppendText("y", true);
    EXPECT_EQ(host.updates, updates + 1);
    EXPECT_EQ(TextOf(*window), "ding!\r\ny\r\n");
    // GetText never writes past its room.
    char out[12];
    std::memset(out, '#', sizeof out);
    EXPECT_LT(window->GetText(out, 10), 10);
    EXPECT_EQ(std::string(out + 10, 2), "##");
}

TEST_F(MessagesTest, LabelsUnder128BytesAreTakenAndClearTheTitle)
{
    auto window = Make("Arrival Window");
    char out[LABEL_SIZE];
    EXPECT_EQ(window->GetLabel(out), 0u);
    const std::string longest(127, 'a');
    window->SetLabel(longest.c_str());
    EXPECT_EQ(host.titleClears, 1);
    EXPECT_EQ(window->GetLabel(out), 127u);
    EXPECT_EQ(std::string(out), longest);
    window->SetLabel(std::string(128, 'b').c_str());
    window->SetLabel(nullptr);
    EXPECT_EQ(host.titleClears, 1);
    EXPECT_EQ(window->GetLabel(out), 127u);
}

TEST_F(MessagesTest, AClonedBufferCarriesTheTextIntoANewWindow)
{
    auto old = Make("Thought Window");
    old->AppendText("kept text\n");
    std::unique_ptr<TextBuffer> clone = old->CloneBuffer();
    ASSERT_NE(clone, nullptr);
    old.reset();
    auto fresh = Make("Thought Window");
    host.invalidations.clear();
    fresh->RestoreBuffer(std::move(clone));
    EXPECT_EQ(TextOf(*fresh), "kept text\r\n\r\n");
    EXPECT_EQ(host.invalidations, std::vector<bool>{true});
    fresh->RestoreBuffer(nullptr);
    EXPECT_EQ(TextOf(*fresh), "kept text\r\n\r\n");
}

TEST_F(MessagesTest, AppearanceCommandsChangeOnlyWhatTheUserConfirms)
{
    auto window = Make("Thought Window");
    const COLORREF text = window->GetTextColor();
    host.confirmDialogs = false;
    window->ChangeForegroundColor();
    window->ChangeFont();
    EXPECT_EQ(window->GetTextColor(), text);
    EXPECT_EQ(window->GetLineHeight(), CELL_HEIGHT);
    EXPECT_TRUE(host.lastForegroundRule);

    host.confirmDialogs = true;
    const int focus = host.focusCalls;
    window->ChangeBackgroundColor();
    EXPECT_FALSE(host.lastForegroundRule);
    EXPECT_EQ(host.invalidations.back(), true);
    EXPECT_GT(host.focusCalls, focus);

    host.pickedFont.lfHeight = -20;
    std::strcpy(host.pickedFont.lfFaceName, "Mono");
    window->ChangeFont();
    EXPECT_EQ(window->GetLineHeight(), 2 * CELL_HEIGHT);
    EXPECT_STREQ(window->GetFont().lfFaceName, "Mono");
}

TEST_F(MessagesTest, ScrollingAndActivatingHandTheFocusToTheCommandLine)
{
    auto window = Make("Thought Window");
    const int focus = host.focusCalls;
    window->VScroll(SB_LINEUP, 0);
    EXPECT_EQ(host.focusCalls, focus + 1);
    window->MdiActivate();
    EXPECT_EQ(host.focusCalls, focus + 2);
    EXPECT_EQ(host.invalidations.back(), false);
}

} // namespace
} // namespace steward::testing
