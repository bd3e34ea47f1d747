#include "WindowFixture.h"

#include "config/IniStore.h"
#include "support/TempFolder.h"

#include <cstring>
#include <filesystem>
#include <vector>

namespace steward::testing {
namespace {

class StateTest : public WindowTest {
  protected:
    std::unique_ptr<AnsiWindow> MakeSaved(const char* name)
    {
        return AnsiWindow::Create(name, {host, settings, profile.c_str(), nullptr});
    }

    TempFolder folder;
    std::string profile = folder.File("Default.Dat");
};

TEST_F(StateTest, ColoursFontAndPlacementComeBackWithTheNextWindowOfThatName)
{
    LogFontRecord font;
    font.lfHeight = -20;
    std::strcpy(font.lfFaceName, "Mono");
    host.placement.rcNormalPosition = {5, 6, 305, 206};
    {
        auto window = MakeSaved("Thought Window");
        host.pickedColor = MakeRgb(0x11, 0x22, 0x33);
        window->ChangeForegroundColor();
        host.pickedColor = MakeRgb(4, 5, 6);
        window->ChangeBackgroundColor();
        window->SetLogFont(font);
        ASSERT_TRUE(window->SaveState(profile));
    }
    // StateInfo holds the text colour first.
    EXPECT_NE(ReadBytes(profile).find("StateInfo=11223300"), std::string::npos);
    auto again = MakeSaved("Thought Window");
    EXPECT_EQ(again->GetTextColor(), MakeRgb(0x11, 0x22, 0x33));
    EXPECT_EQ(again->GetBkColor(), MakeRgb(4, 5, 6));
    EXPECT_STREQ(again->GetFont().lfFaceName, "Mono");
    EXPECT_EQ(again->GetLineHeight(), 2 * CELL_HEIGHT);
    host.placement = {};
    ASSERT_TRUE(ReadPlacement(profile, "Thought Window", "Position", host));
    EXPECT_EQ(host.placement.rcNormalPosition.right, 305);

    // Another window keeps its own section.
    settings.DefaultTextColor = MakeRgb(9, 9, 9);
    EXPECT_EQ(MakeSaved("Arrival Window")->GetTextColor(), MakeRgb(9, 9, 9));
}

TEST_F(StateTest, AStateInfoOfTheWrongLengthGivesTheDefaults)
{
    WriteBytes(profile, "[Thought Window]\nStateInfo=1122330044556600AA\n");
    settings.DefaultTextColor = MakeRgb(9, 9, 9);
    EXPECT_EQ(MakeSaved("Thought Window")->GetTextColor(), MakeRgb(9, 9, 9));
}

// Hands the editor its file and keeps the messages.
class EditorServices : public TextWindowServices {
  public:
    void ForwardCommand(int) override {}
    bool AskSaveFileName(const SaveFileRequest&, char*, std::size_t) override { return false; }
    void ShowMessage(const char* text, const char*) override { messages.push_back(text); }
    void RunNotepad(const std::string& path) override { edited = path; }
    std::string ProgramFolder() const override { return {}; }

    std::vector<std::string> messages;
    std::string edited;
};

TEST_F(StateTest, EditAllGivesTheEditorANewFileWithThePlainText)
{
    EditorServices services;
    auto window =
        AnsiWindow::Create("Thought Window", {host, settings, nullptr, nullptr, &services});
    window->AppendText("one \x81red\xA0 two\n");
    window->EditAll();
    ASSERT_FALSE(services.edited.empty())
        << (services.messages.empty() ? "" : services.messages[0]);
    const std::string text = ReadBytes(services.edited);
    std::filesystem::remove(services.edited);
    EXPECT_NE(text.find("one red two\r\n"), std::string::npos);
    EXPECT_TRUE(services.messages.empty());
}

} // namespace
} // namespace steward::testing
