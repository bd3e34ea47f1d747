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

#include <functional>

namespace steward::test {
namespace {

class SheetWorldTest : public ClientHarness {
  protected:
    // Runs the command's modal sheet, edited and closed with OK from inside its own loop.
    static bool EditInSheet(Client& client, int command, const std::function<void(QDialog&)>& edit)
    {
        bool edited = false;
        QTimer::singleShot(0, [&] {
            if (auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                edit(*sheet);
                sheet->accept();
                edited = true;
            }
        });
        client.OnCommand(command);
        return edited;
    }

    // The first round looks again, the second sees the room of its login.
    bool SalmonIsRed(Client& client, int round)
    {
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
};

TEST_F(SheetWorldTest, EditsInTheHighlightAndMacroSheetsWorkInTheGameAndSurviveARestart)
{
    {
        auto client = LoggedInClient();
        ASSERT_TRUE(client);
        ASSERT_TRUE(EditInSheet(*client, CMD_HIGHLIGHT_STRINGS, [&](QDialog& dialog) {
            auto& sheet = static_cast<HighlightSheet&>(dialog);
            sheet.Tabs()->setCurrentIndex(1);
            HighlightPage& page = *sheet.Page(1);
            desktop.answers = {"salmon"};
            page.Button(PageButton::New)->click();
            QTest::mouseClick(page.Grid(), Qt::LeftButton, {}, page.Grid()->CellRect(12).center());
        }));
        ASSERT_TRUE(EditInSheet(*client, CMD_MACRO_KEYS, [](QDialog& dialog) {
            auto& sheet = static_cast<MacroSheet&>(dialog);
            sheet.Tabs()->setCurrentIndex(1);
            static_cast<LetterPage*>(sheet.Page(1))->Edit('J' - 'A')->setText("say sheet macro\\r");
        }));
        EXPECT_TRUE(SalmonIsRed(*client, 1)) << GameText(*client);
        EXPECT_TRUE(CtrlJSays(*client, 1));
        client->Frame().close();
    }
    auto again = LoggedInClient();
    ASSERT_TRUE(again);
    EXPECT_TRUE(SalmonIsRed(*again, 2)) << GameText(*again);
    EXPECT_TRUE(CtrlJSays(*again, 2));
}

} // namespace
} // namespace steward::test
