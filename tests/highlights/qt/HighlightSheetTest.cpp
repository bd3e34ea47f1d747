#include "highlights/qt/HighlightSheet.h"
#include "base/qt/MessageBoxes.h"
#include "highlights/qt/ColorGrid.h"
#include "highlights/qt/HighlightDialogs.h"
#include "highlights/qt/HighlightItemView.h"
#include "highlights/qt/QtSoundPlayer.h"
#include "terminal/Palette.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace steward {
namespace {

// The sheet's dialogs answer from lists; every message is kept.
class SheetDialogs : public HighlightDialogs, public MessageBoxes {
  public:
    void ShowMessage(QWidget*, const char* text, const char*) override { messages.push_back(text); }
    void Beep() override {}
    bool AskString(QWidget*, const char*, char* answer, std::size_t capacity) override
    {
        shown.emplace_back(answer);
        limits.push_back(capacity - 1);
        if (answers.empty())
            return false;
        std::snprintf(answer, capacity, "%s", answers.front().c_str());
        answers.erase(answers.begin());
        return true;
    }
    std::string ChooseSoundFile(QWidget*, const std::string&) override { return soundFile; }

    QtSoundPlayer player;
    std::vector<std::string> answers, shown, messages;
    std::vector<std::size_t> limits;
    std::string soundFile;
};

enum Tab { DEFAULTS, STRINGS, NAMES };

class HighlightSheetTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        sounds.SetSoundPath(QFile::encodeName(folder.path()).toStdString());
        lists.StringHighlights.Add("Mara", 14);
        lists.NameHighlights.Add("Orla", 14);
    }

    HighlightSheet& Sheet()
    {
        if (!sheet_)
            sheet_ = std::make_unique<HighlightSheet>(
                HighlightSheetLinks{settings, lists, sounds, dialogs, dialogs}, nullptr);
        return *sheet_;
    }
    HighlightPage& Open(Tab tab)
    {
        Sheet().Tabs()->setCurrentIndex(tab);
        return *Sheet().Page(tab);
    }
    static void ClickCell(HighlightPage& page, int cell, Qt::MouseButton button)
    {
        QTest::mouseClick(page.Grid(), button, {}, page.Grid()->CellRect(cell).center());
    }
    static void Click(HighlightPage& page, PageButton button)
    {
        QTest::mouseClick(page.Button(button), Qt::LeftButton);
    }
    static void WriteFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
    Settings settings;
    HighlightStore lists;
    SheetDialogs dialogs;
    SoundFolder sounds{dialogs.player};
    std::unique_ptr<HighlightSheet> sheet_;
};

TEST_F(HighlightSheetTest, AnEditReachesTheStoreOnlyOnOkOrApply)
{
    enum class Ending { Ok, Apply, Cancel, ApplyThenCancel };
    const struct {
        Tab tab;
        Ending ending;
        bool stored;
    } rows[] = {{DEFAULTS, Ending::Ok, true},   {DEFAULTS, Ending::Cancel, false},
                {STRINGS, Ending::Apply, true}, {STRINGS, Ending::Cancel, false},
                {NAMES, Ending::Ok, true},      {NAMES, Ending::ApplyThenCancel, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.ending) * 10 + row.tab);
        const auto stored = [&] {
            if (row.tab == DEFAULTS)
                return settings.SaysColor;
            return (row.tab == STRINGS ? lists.StringHighlights : lists.NameHighlights).Color(0);
        };
        sheet_.reset();
        HighlightPage& page = Open(row.tab);
        const unsigned char before = stored();
        ClickCell(page, 1, Qt::RightButton);
        EXPECT_EQ(stored(), before);
        EXPECT_TRUE(Sheet().ApplyButton()->isEnabled());
        if (row.ending == Ending::Apply || row.ending == Ending::ApplyThenCancel)
            QTest::mouseClick(Sheet().ApplyButton(), Qt::LeftButton);
        if (row.ending == Ending::Ok)
            Sheet().accept();
        if (row.ending == Ending::Cancel || row.ending == Ending::ApplyThenCancel)
            Sheet().reject();
        EXPECT_EQ(stored(), row.stored ? (before & 0x0F) | 0x10 : before);
    }
}

TEST_F(HighlightSheetTest, NewAndChangeAskAndAPageNeverOpenedIsNotWritten)
{
    lists.StringHighlights.SetText(0, "{Gong}$Mara");
    lists.NameHighlights.SetText(2, "after a gap");
    HighlightPage& page = Open(STRINGS);
    EXPECT_EQ(page.SlotsLeft()->text(), QStringLiteral("4095"));
    dialogs.answers = {"say \"hi\" \xA3\x81", "", "Orla"};
    Click(page, PageButton::New);
    EXPECT_EQ(page.SlotsLeft()->text(), QStringLiteral("4094"));
    Click(page, PageButton::New);
    EXPECT_EQ(page.SlotsLeft()->text(), QStringLiteral("4094")) << "an empty answer adds nothing";
    const QPoint item = page.List()->visualRect(page.List()->model()->index(0, 0)).center();
    QTest::mouseClick(page.List()->viewport(), Qt::LeftButton, {}, item);
    QTest::mouseDClick(page.List()->viewport(), Qt::LeftButton, {}, item);
    EXPECT_EQ(dialogs.shown.back(), "Mara") << "change starts from the match text";
    EXPECT_EQ(dialogs.limits, (std::vector<std::size_t>{HIGHLIGHT_ASK_LIMIT, HIGHLIGHT_ASK_LIMIT,
                                                        HIGHLIGHT_TEXT_MAX - 7}));
    QTest::mouseClick(page.Box(HighlightFlag::CaseSensitive), Qt::LeftButton);
    Sheet().accept();
    EXPECT_STREQ(lists.StringHighlights.Text(0), "{Gong}$@Orla");
    EXPECT_STREQ(lists.StringHighlights.Text(1), "say \"hi\" ??");
    EXPECT_STREQ(lists.NameHighlights.Text(1), "") << "an applied names page would close the gap";
    EXPECT_EQ(Sheet().Page(NAMES), nullptr);

    HighlightList full;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i)
        full.SetText(i, "x");
    lists.NameHighlights = full;
    sheet_.reset();
    Open(NAMES);
    EXPECT_EQ(Sheet().Page(NAMES)->SlotsLeft()->text(), QStringLiteral("   0"));
    Click(*Sheet().Page(NAMES), PageButton::New);
    EXPECT_EQ(dialogs.shown.size(), 3u) << "a full list asks nothing";
}

TEST_F(HighlightSheetTest, TheSoundChooserTakesWaveFilesAndSaysWhatItCannotTake)
{
    QTemporaryDir elsewhere;
    WriteFile(elsewhere.filePath("notes.wav"), "plain text");
    WriteFile(elsewhere.filePath("Bell.wav"), QByteArray("RIFF\x24\0\0\0WAVEfmt ", 16));
    HighlightPage& page = Open(STRINGS);
    dialogs.soundFile = QFile::encodeName(elsewhere.filePath("notes.wav")).toStdString();
    Click(page, PageButton::Browse);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_NE(dialogs.messages[0].find("is not a wave sound"), std::string::npos);
    EXPECT_EQ(page.SoundList()->currentIndex(), 0);
    dialogs.messages.clear();
    dialogs.soundFile = QFile::encodeName(elsewhere.filePath("Bell.wav")).toStdString();
    Click(page, PageButton::Browse);
    EXPECT_EQ(page.SoundList()->currentText(), QStringLiteral("Bell"));
    EXPECT_TRUE(page.Button(PageButton::Play)->isEnabled());
    ASSERT_TRUE(QFile::remove(folder.filePath("Bell.wav")));
    Click(page, PageButton::Play);
    EXPECT_EQ(dialogs.messages.size(), 1u) << "a sound gone from the folder is said";
    Sheet().accept();
    EXPECT_STREQ(lists.StringHighlights.Text(0), "{Bell}Mara");
}

TEST_F(HighlightSheetTest, TheListDrawsTheMatchTextInItsColoursBesideTheIcons)
{
    lists.StringHighlights.SetText(0, "{Gong}$MMMM");
    lists.StringHighlights.SetColor(0, 0x1C);
    settings.DefaultBackColor = 0xFFFFFF;
    HighlightPage& page = Open(STRINGS);
    Sheet().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Sheet()));
    const QImage drawn = page.List()->viewport()->grab().toImage();
    const QRect row = page.List()->visualRect(page.List()->model()->index(0, 0));
    auto holds = [&](int left, int right, QRgb color) {
        for (int x = left; x < right; ++x) {
            for (int y = row.top(); y <= row.bottom(); ++y) {
                if ((drawn.pixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF))
                    return true;
            }
        }
        return false;
    };
    const QRgb silver = qRgb(192, 192, 192);
    EXPECT_TRUE(holds(0, ITEM_ICON_WIDTH, silver)) << "the chooser on the selected item";
    EXPECT_TRUE(holds(ITEM_ICON_WIDTH, 2 * ITEM_ICON_WIDTH, silver)) << "the speaker";
    EXPECT_TRUE(holds(ITEM_TEXT_LEFT, drawn.width(), qRgb(255, 0, 0))) << "red letters";
    EXPECT_TRUE(holds(ITEM_TEXT_LEFT, drawn.width(), qRgb(0, 0, 0))) << "on black";
    EXPECT_FALSE(holds(ITEM_ICON_WIDTH, ITEM_TEXT_LEFT, qRgb(255, 0, 0))) << "no marker drawn";
}

TEST_F(HighlightSheetTest, TabWalksThePageEnterIsOkAndEscapeIsCancel)
{
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        sheet_.reset();
        HighlightPage& page = Open(STRINGS);
        Sheet().show();
        QApplication::setActiveWindow(&Sheet());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Sheet()));
        page.List()->setFocus();
        const QWidget* expected[] = {page.Button(PageButton::New),
                                     page.Button(PageButton::Change),
                                     page.Button(PageButton::Delete),
                                     page.Button(PageButton::Sort),
                                     page.SoundList(),
                                     page.Button(PageButton::Browse),
                                     page.Box(HighlightFlag::EntireLine)};
        for (const QWidget* next : expected) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(QApplication::focusWidget(), next) << next->metaObject()->className();
        }
        ClickCell(page, 12, Qt::LeftButton);
        page.List()->setFocus();
        QTest::keyClick(page.List(), key);
        const bool ok = key == Qt::Key_Return;
        EXPECT_EQ(Sheet().result(), ok ? QDialog::Accepted : QDialog::Rejected);
        EXPECT_EQ(lists.StringHighlights.Color(0), ok ? 12 : 14);
    }
}

} // namespace
} // namespace steward
