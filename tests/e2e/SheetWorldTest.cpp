#include "ClientHarness.h"
#include "base/ByteText.h"
#include "base/FrameCommand.h"
#include "commands/qt/MacroSheet.h"
#include "highlights/qt/ColorGrid.h"
#include "highlights/qt/HighlightSheet.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

namespace steward::test {
namespace {

class SheetWorldTest;

struct SheetCase {
    const char* name;
    int command;
    // Works in the open sheet as a player would, before it is closed with OK.
    void (*edit)(QDialog& sheet, RecordingDesktop& desktop);
    // Makes the edit show in the game, the round-th time, and tells whether it did.
    bool (SheetWorldTest::*shows)(Client& client, int round);
};

void PrintTo(const SheetCase& c, std::ostream* out)
{
    *out << c.name;
}

class SheetWorldTest : public ClientHarness, public ::testing::WithParamInterface<SheetCase> {
  public:
    bool SalmonIsRed(Client& client, int round)
    {
        // The first round looks again, the second sees the room of its login.
        if (round == 1)
            Type(client, "look");
        const std::string red = std::string(ColorOnText(12)) + "salmon" + ColorOffText(12);
        return WaitForBytes(client.State().Windows.GameWindow, red);
    }

    bool CtrlJSays(Client& client, int round)
    {
        QApplication::setActiveWindow(&client.Frame());
        client.Frame().CommandLine()->setFocus();
        QTest::keyClick(client.Frame().CommandLine(), Qt::Key_J, Qt::ControlModifier);
        return QTest::qWaitFor([&] { return Sent().count("say sheet macro\n\r") == round; },
                               WAIT_MS);
    }

  protected:
    // Runs the command's modal sheet, edited and closed from inside its own loop.
    bool EditInSheet(Client& client, const SheetCase& c)
    {
        bool edited = false;
        QTimer::singleShot(0, [&] {
            if (auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                c.edit(*sheet, desktop);
                sheet->accept();
                edited = true;
            }
        });
        client.OnCommand(c.command);
        return edited;
    }
};

TEST_P(SheetWorldTest, AnEditInTheSheetWorksInTheGameAndSurvivesARestart)
{
    const SheetCase& c = GetParam();
    {
        auto client = LoggedInClient();
        ASSERT_TRUE(client);
        ASSERT_TRUE(EditInSheet(*client, c));
        EXPECT_TRUE((this->*c.shows)(*client, 1)) << GameText(*client);
        client->Frame().close();
    }
    auto again = LoggedInClient();
    ASSERT_TRUE(again);
    EXPECT_TRUE((this->*c.shows)(*again, 2)) << GameText(*again);
}

void AddRedSalmon(QDialog& dialog, RecordingDesktop& desktop)
{
    auto& sheet = static_cast<HighlightSheet&>(dialog);
    sheet.Tabs()->setCurrentIndex(1);
    HighlightPage& page = *sheet.Page(1);
    desktop.answers = {"salmon"};
    page.Button(PageButton::New)->click();
    QTest::mouseClick(page.Grid(), Qt::LeftButton, {}, page.Grid()->CellRect(12).center());
}

void WriteCtrlJ(QDialog& dialog, RecordingDesktop&)
{
    auto& sheet = static_cast<MacroSheet&>(dialog);
    sheet.Tabs()->setCurrentIndex(1);
    static_cast<LetterPage*>(sheet.Page(1))->Edit('J' - 'A')->setText("say sheet macro\\r");
}

INSTANTIATE_TEST_SUITE_P(Sheets, SheetWorldTest,
                         ::testing::Values(SheetCase{"Highlight", CMD_HIGHLIGHT_STRINGS,
                                                     AddRedSalmon, &SheetWorldTest::SalmonIsRed},
                                           SheetCase{"Macro", CMD_MACRO_KEYS, WriteCtrlJ,
                                                     &SheetWorldTest::CtrlJSays}),
                         [](const auto& info) { return info.param.name; });

} // namespace
} // namespace steward::test
