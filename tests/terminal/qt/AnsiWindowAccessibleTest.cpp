#include "terminal/qt/AnsiWindowAccessible.h"
#include "base/ColorCode.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace steward {
namespace {

// Position and text of each text-inserted event.
std::vector<std::pair<int, QString>> inserted;

void RecordInsert(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::TextInserted) {
        auto* insert = static_cast<QAccessibleTextInsertEvent*>(event);
        inserted.emplace_back(insert->changePosition(), insert->textInserted());
    }
}

std::string Colored(const char* text)
{
    char on[8];
    char off[8];
    return std::string(on, AppendColorOn(on, 12)) + text +
           std::string(off, AppendColorOff(off, 12));
}

class AccessibleWindowTest : public ::testing::Test {
  protected:
    // A screen reader listens: the platform's accessibility is on, the events recorded.
    void SetUp() override
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QAccessible::installUpdateHandler(RecordInsert);
        Fresh();
    }
    void TearDown() override { QAccessible::installUpdateHandler(nullptr); }
    void Fresh()
    {
        inserted.clear();
        widget = AnsiWindowWidget::Create("Thought Window", {settings});
        widget->resize(200, 100);
    }
    QAccessibleTextInterface& Text()
    {
        return *QAccessible::queryAccessibleInterface(widget.get())->textInterface();
    }
    TextBuffer& Live() { return widget->Window().GetLiveBuffer(); }

    Settings settings;
    std::unique_ptr<AnsiWindowWidget> widget;
};

struct AppendCase {
    const char* name;
    std::vector<std::string> appends;
    // What the last append added, as the screen reader hears it.
    QString lastInserted;
};

TEST_F(AccessibleWindowTest, TheTextIsTheExportEveryAppendIsAnnouncedAndTheSelectionIsTheCopied)
{
    std::vector<std::string> flood;
    for (int i = 0; i < 1500; ++i)
        flood.push_back("line " + std::to_string(i) + " of the flood\r\n");
    const AppendCase cases[] = {
        {"lines", {"one\r\n", "two\r\n"}, "two\r\n"},
        {"colour codes left out", {"a ", Colored("red") + "\r\n"}, "red\r\n"},
        {"tabs and bells", {"a\tb\a\r\n"}, "a      b\r\n"},
        {"a line that wraps",
         {std::string(80, 'w') + " " + std::string(80, 'v') + "\r\n"},
         QString(80, 'w') + " " + QString(80, 'v') + "\r\n"},
        {"a ring that drops its oldest text", flood, "line 1499 of the flood\r\n"},
    };
    for (const AppendCase& c : cases) {
        SCOPED_TRACE(c.name);
        Fresh();
        for (const std::string& text : c.appends) {
            widget->Window().AppendText(text.c_str());
            ASSERT_EQ(inserted.size(), &text - c.appends.data() + 1u);
            const auto& [position, added] = inserted.back();
            EXPECT_EQ(Text().text(position, position + added.size()), added);
        }
        const QString all = QString::fromStdString(Live().ExportPlainText());
        EXPECT_EQ(inserted.back().second, c.lastInserted);
        EXPECT_EQ(Text().text(0, Text().characterCount()), all);
        EXPECT_EQ(Text().cursorPosition(), all.size());
    }

    // The selection is where the window copies it from.
    Fresh();
    widget->Window().AppendText(("one " + Colored("two") + "\r\nthree\r\n").c_str());
    // Distances from the ring's head; a fresh ring's text starts behind its blank lines, which
    // are not exported. Empty: what Copy takes from the window.
    const std::int32_t text = INITIAL_LINE_FEEDS - 1;
    const std::tuple<std::int32_t, std::int32_t, QString> selections[] = {
        {text, text + 3, {}},      {text + 2, text + 8, {}}, {text + 5, text + 14, {}},
        {text + 14, text + 4, {}}, {text + 2, text + 2, {}}, {3, text + 2, "on"}};
    for (const auto& [start, end, given] : selections) {
        Live().SetSelection(start, end);
        const QString heard =
            given.isEmpty() ? QString::fromStdString(Live().SelectionText()) : given;
        ASSERT_EQ(Text().selectionCount(), heard.isEmpty() ? 0 : 1) << start;
        int from = -1;
        int to = -1;
        Text().selection(0, &from, &to);
        EXPECT_EQ(Text().text(from, to), heard) << start;
    }
}

TEST_F(AccessibleWindowTest, ALongScrollbackGivesItsLastPartFromALineStart)
{
    AnsiWindowWidget::Parts parts{settings};
    parts.ScrollbackBytes = 1 << 20;
    widget = AnsiWindowWidget::Create("Game Window", parts);
    std::string block;
    for (int i = 0; i < 1000; ++i)
        block += "line " + std::to_string(i) + " of a long scrollback\r\n";
    for (int i = 0; i < 30; ++i)
        widget->Window().AppendText(block.c_str());
    const QString all = QString::fromStdString(Live().ExportPlainText());
    const QString heard = Text().text(0, Text().characterCount());
    EXPECT_TRUE(all.endsWith(heard));
    EXPECT_GT(heard.size(), int{ACCESSIBLE_TEXT_BYTES} * 9 / 10);
    EXPECT_LE(heard.size(), int{ACCESSIBLE_TEXT_BYTES} * 11 / 10);
    EXPECT_TRUE(heard.startsWith("line ")) << heard.left(20).toStdString();
    const auto& [position, added] = inserted.back();
    EXPECT_EQ(Text().text(position, position + added.size()), added);
}

} // namespace
} // namespace steward
