#include "commands/qt/KeyFilterQt.h"
#include "commands/KeyboardDoubles.h"
#include "commands/qt/CommandLine.h"
#include "commands/qt/KeyMapQt.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

// A frame with a File menu and the command line, the keyboard wired to recording doubles.
class KeyFilterQtTest : public ::testing::Test {
  protected:
    KeyFilterQtTest()
    {
        fileMenu = window.menuBar()->addMenu("&File");
        fileMenu->addAction("E&xit");
        window.setCentralWidget(line);
        SetDefaultMacros(macros, false);
        qApp->installEventFilter(&qtFilter);
        window.show();
        QApplication::setActiveWindow(&window);
        line->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ~KeyFilterQtTest() override { qApp->removeEventFilter(&qtFilter); }

    void Click(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void ServeQueue() { ServeEnterKeys(queue, keyboard.Sender); }
    std::string Text() const { return line->text().toStdString(); }

    QMainWindow window;
    QMenu* fileMenu = nullptr;
    CommandLine* line = new CommandLine(&window); // owned by the window
    RecordingSink sink;
    RecordingQueue queue;
    RecordingHost host;
    Settings options;
    Keyboard keyboard{*line, sink, queue, host, options};
    CommandHistory& history = keyboard.History;
    MacroStore& macros = keyboard.Macros;
    KeyFilterQt qtFilter{keyboard.Filter, *line};
};

TEST_F(KeyFilterQtTest, TypedKeysReachTheKeyboardAndTheLine)
{
    QTest::keyClicks(line, "look");
    Click(Qt::Key_Return);
    EXPECT_EQ(queue.commands, std::vector<int>{MM_ENTER_KEY});
    ServeQueue();
    EXPECT_EQ(sink.sent, Strings{"look"});
    EXPECT_EQ(Text(), "");
    history.RememberCommand("kill rat", 4);
    Click(Qt::Key_Up);
    Click(Qt::Key_Up);
    EXPECT_EQ(Text(), "look");
    EXPECT_EQ(line->cursorPosition(), 4);
    Click(Qt::Key_Down);
    Click(Qt::Key_Left);
    Click(Qt::Key_Backspace);
    EXPECT_EQ(Text(), "kill rt");
    Click(Qt::Key_Escape);
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(host.calls, Strings{"endscrollback"});
    QTest::keyClicks(line, "caf");
    QKeyEvent accent(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier,
                     QString::fromUtf8("\xc3\xa9"));
    QApplication::sendEvent(line, &accent);
    QTest::keyClick(line, '!');
    EXPECT_EQ(Text(), "caf?!") << "characters outside ASCII become question marks";
    QTest::keyClicks(line, QString(300, 'a'));
    EXPECT_EQ(line->text().size(), 255);
    line->SetSelection(0, 1);
    line->TypeCharacter('b');
    EXPECT_EQ(line->text().left(2).toStdString(), "ba");
    EXPECT_EQ(line->text().size(), 255);
}

TEST_F(KeyFilterQtTest, AltKeysAreTheKeyboardsAndNeverOpenTheMenu)
{
    QSignalSpy shown(fileMenu, &QMenu::aboutToShow);
    Click(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(Text(), "");
    macros.SetMacro(KEY_ALT, 'F', "flee");
    Click(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(Text(), "flee");
    EXPECT_EQ(shown.count(), 0);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    line->clear();
    Click(Qt::Key_Alt, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), line);
    EXPECT_EQ(window.menuBar()->activeAction(), nullptr);
    // With Alt, a main row digit key selects its set whatever it types: XKB codes 10, 14, 19.
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        quint32 scanCode;
        const char* text;
        int set;
    } rows[] = {{Qt::Key_Exclam, Qt::AltModifier | Qt::ShiftModifier, 10, "!", 0},
                {Qt::Key_ParenLeft, Qt::AltModifier, 14, "(", 4},
                {Qt::Key_0, Qt::AltModifier | Qt::ShiftModifier, 19, "0", 9}};
    for (const auto& row : rows) {
        macros.SelectMacroSet(5);
        for (QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, row.key, row.modifiers, row.scanCode, 0, 0,
                            QString::fromLatin1(row.text));
            QApplication::sendEvent(line, &event);
        }
        EXPECT_EQ(macros.CurrentMacroSet(), row.set) << row.text;
    }
    QTest::keyClicks(line, "ok");
    EXPECT_EQ(Text(), "ok");
}

TEST_F(KeyFilterQtTest, ModalDialogsKeepTheirKeysAndNumLockIsFollowed)
{
    macros.SetMacro(KEY_ALT, 'F', "flee");
    QDialog dialog(&window);
    auto* field = new QLineEdit(&dialog);
    dialog.open();
    field->setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(field, Qt::Key_F, Qt::AltModifier);
    QTest::keyClick(field, Qt::Key_8, Qt::KeypadModifier);
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(field->text().toStdString(), "f8");
    EXPECT_TRUE(sink.sent.empty());
    dialog.reject();
    line->setFocus();
    options.HonorNumLock = 1;
    QTest::keyClick(line, Qt::Key_8, Qt::KeypadModifier);
    QTest::keyClick(line, Qt::Key_Asterisk, Qt::KeypadModifier);
    EXPECT_EQ(Text(), "8*");
    EXPECT_TRUE(qtFilter.NumLockOn());
    QTest::keyClick(line, Qt::Key_Up, Qt::KeypadModifier);
    EXPECT_FALSE(qtFilter.NumLockOn());
    EXPECT_EQ(sink.sent, Strings{"n"}); // the macro's \x drops the typed digits
    QTest::keyClick(line, Qt::Key_Asterisk, Qt::KeypadModifier);
    EXPECT_EQ(sink.sent, (Strings{"n", "exp"}));
}

TEST(CommandLineEdit, ActsAsAnEditControl)
{
    CommandLine line;
    line.SetText("tell bob hi");
    EXPECT_EQ(line.cursorPosition(), 0);
    line.SetSelection(5, 8);
    int start = 0, end = 0;
    line.GetSelection(start, end);
    EXPECT_EQ(start, 5);
    EXPECT_EQ(end, 8);
    line.TypeCharacter('X');
    EXPECT_EQ(line.text().toStdString(), "tell X hi");
    line.GetSelection(start, end);
    EXPECT_EQ(start, 6);
    EXPECT_EQ(end, 6);
    line.Clear();
    EXPECT_EQ(line.text().toStdString(), "tell X hi");
    line.SetSelection(900, 900);
    EXPECT_EQ(line.cursorPosition(), 9);
    line.TypeCharacter('\x85');
    char text[8];
    EXPECT_EQ(line.GetText(text, sizeof text), 7u);
    EXPECT_STREQ(text, "tell X ");
}

TEST(KeyMap, QtKeysBecomeVirtualKeysAndModifiers)
{
    const Qt::KeyboardModifiers none = Qt::NoModifier, pad = Qt::KeypadModifier;
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        bool numLockBefore;
        int virtualKey;
        KeyModifiers expected;
        bool numLockAfter;
    } cases[] = {
        {Qt::Key_A, Qt::AltModifier | Qt::ShiftModifier, false, 'A', KEY_ALT | KEY_SHIFT, false},
        {Qt::Key_7, Qt::ControlModifier, true, '7', KEY_CTRL | KEY_NUMLOCK, true},
        {Qt::Key_F12, none, false, VK_F12, 0, false},
        {Qt::Key_Up, none, false, VK_UP, KEY_EXTENDED, false},
        {Qt::Key_Up, pad, true, VK_UP, 0, false},
        {Qt::Key_Clear, pad, true, VK_CLEAR, 0, false},
        {Qt::Key_5, pad, false, VK_NUMPAD0 + 5, KEY_NUMLOCK, true},
        {Qt::Key_Period, pad, false, VK_DECIMAL, KEY_NUMLOCK, true},
        {Qt::Key_Slash, pad, true, VK_DIVIDE, KEY_NUMLOCK, true},
        {Qt::Key_Minus, pad, false, VK_SUBTRACT, 0, false},
        {Qt::Key_Enter, pad, false, VK_RETURN, KEY_EXTENDED, false},
        {Qt::Key_Return, none, false, VK_RETURN, 0, false},
        {Qt::Key_Backtab, Qt::ShiftModifier, false, VK_TAB, KEY_SHIFT, false},
        {Qt::Key_Alt, Qt::AltModifier, false, VK_MENU, KEY_ALT, false},
        {Qt::Key_Backspace, none, false, 0, 0, false}};
    for (const auto& c : cases) {
        bool numLock = c.numLockBefore;
        TranslatedKey key = TranslateKey(c.key, c.modifiers, numLock);
        EXPECT_EQ(key.VirtualKey, c.virtualKey) << c.key;
        EXPECT_EQ(key.Modifiers, c.expected) << c.key;
        EXPECT_EQ(numLock, c.numLockAfter) << c.key;
    }
}

} // namespace
} // namespace steward::test
