#include "commands/qt/MacroSheet.h"
#include "commands/MacroKeyTypes.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace steward {
namespace {

enum Tab { ALT_TAB, CTRL_TAB, FKEY_TAB, KEYPAD_TAB };

class MacroSheetTest : public ::testing::Test {
  protected:
    template <typename Page> Page& Open(Tab tab)
    {
        Sheet().Tabs()->setCurrentIndex(tab);
        auto* page = dynamic_cast<Page*>(Sheet().Page(tab));
        EXPECT_NE(page, nullptr);
        return *page;
    }
    std::string Macro(KeyModifiers modifiers, int key)
    {
        const char* text = store.LookupMacro(modifiers, key);
        return text ? text : "";
    }

    // Made at first use, so that a test fills the store first.
    MacroSheet& Sheet()
    {
        if (!sheet_)
            sheet_ = std::make_unique<MacroSheet>(store, nullptr);
        return *sheet_;
    }

    void Reopen() { sheet_.reset(); }

    MacroStore store;

  private:
    std::unique_ptr<MacroSheet> sheet_;
};

TEST_F(MacroSheetTest, AnEditReachesTheStoreOnOk)
{
    const struct {
        Tab tab;
        int row;
        KeyModifiers modifiers;
        int key;
    } rows[] = {{ALT_TAB, 16, KEY_ALT, 'Q'},
                {CTRL_TAB, 25, KEY_CTRL, 'Z'},
                {FKEY_TAB, 11, 0, VK_F1 + 11},
                {KEYPAD_TAB, 14, 0, VK_ADD}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.key);
        store.SetMacro(row.modifiers, row.key, "before");
        Reopen();
        QLineEdit* edit = row.tab == ALT_TAB || row.tab == CTRL_TAB
                              ? Open<LetterPage>(row.tab).Edit(row.row)
                              : Open<KeyTypePage>(row.tab).Edit(row.row);
        EXPECT_EQ(edit->text(), "before");
        edit->setText("after");
        EXPECT_EQ(Macro(row.modifiers, row.key), "before");
        Sheet().accept();
        EXPECT_EQ(Macro(row.modifiers, row.key), "after");
    }
}

TEST_F(MacroSheetTest, EnterInAnEditIsOkAndEscapeIsCancel)
{
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        Reopen();
        Sheet().show();
        QApplication::setActiveWindow(&Sheet());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Sheet()));
        QLineEdit* edit = Open<LetterPage>(ALT_TAB).Edit(1);
        edit->setFocus();
        QTest::keyClicks(edit, "typed");
        QTest::keyClick(edit, key);
        EXPECT_FALSE(Sheet().isVisible());
        EXPECT_EQ(Macro(KEY_ALT, 'B'), key == Qt::Key_Return ? "typed" : "");
    }
}

TEST_F(MacroSheetTest, AKeyTypeChangeStoresTheRowsAtOnceAndSetsCarryTheirNames)
{
    auto& page = Open<FunctionKeyPage>(FKEY_TAB);
    page.Edit(0)->setText("kept");
    page.ChooseKeyType(KEY_TYPE_ALT);
    EXPECT_EQ(page.Label(0)->text(), "Alt-F1");
    EXPECT_TRUE(page.Edit(ALT_HIDDEN_FUNCTION_KEY)->isHidden());
    page.Edit(0)->setText("alt text");
    page.ChooseKeyType(KEY_TYPE_SHIFT);
    EXPECT_FALSE(page.Edit(ALT_HIDDEN_FUNCTION_KEY)->isHidden());
    page.ChooseKeyType(KEY_TYPE_STANDARD);
    EXPECT_EQ(page.Edit(0)->text(), "kept");
    page.NameEdit()->setText("first set");
    page.StepSet(false);
    EXPECT_EQ(store.CurrentMacroSet(), MACRO_SET_COUNT - 1) << "the set steps wrap";
    EXPECT_EQ(page.SetList()->currentText(), "Macro Set 10");
    EXPECT_EQ(page.NameEdit()->text(), "");
    page.StepSet(true);
    EXPECT_EQ(store.CurrentMacroSet(), 0);
    EXPECT_EQ(page.NameEdit()->text(), "first set");
    Sheet().reject();
    EXPECT_EQ(Macro(0, VK_F1), "kept");
    EXPECT_EQ(Macro(KEY_ALT, VK_F1), "alt text");
}

TEST_F(MacroSheetTest, LongTextsAreCutAtTheEditsLimitsAndAPageNeverOpenedIsNotWritten)
{
    store.SetMacro(KEY_CTRL, 'A', std::string(MACRO_EDIT_LIMIT, 'y').c_str());
    auto& page = Open<LetterPage>(ALT_TAB);
    QApplication::clipboard()->setText(QString(10000, 'x'));
    page.Edit(0)->paste();
    EXPECT_EQ(page.Edit(0)->text().size(), MACRO_EDIT_LIMIT);
    auto& keys = Open<FunctionKeyPage>(FKEY_TAB);
    keys.NameEdit()->paste();
    Sheet().accept();
    EXPECT_EQ(Macro(KEY_ALT, 'A'), std::string(MACRO_EDIT_KEPT, 'x'));
    EXPECT_EQ(std::string(store.MacroSetName(0)), std::string(MACRO_SET_NAME_KEPT, 'x'));
    EXPECT_EQ(Sheet().Page(CTRL_TAB), nullptr);
    EXPECT_EQ(Macro(KEY_CTRL, 'A').size(), std::size_t{MACRO_EDIT_LIMIT});
}

} // namespace
} // namespace steward
