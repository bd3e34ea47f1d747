#include "base/ColorCode.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

struct Inserted {
    int position;
    QString text;
};

std::vector<Inserted> inserted;

void RecordInsert(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::TextInserted) {
        auto* insert = static_cast<QAccessibleTextInsertEvent*>(event);
        inserted.push_back({insert->changePosition(), insert->textInserted()});
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
    void SetUp() override
    {
        // A screen reader listens: the platform's accessibility is on, the events recorded.
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
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget.get());
        EXPECT_NE(accessible, nullptr);
        EXPECT_NE(accessible->textInterface(), nullptr);
        return *accessible->textInterface();
    }
    QString Export() { return QString::fromStdString(Live().ExportPlainText()); }
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

std::vector<std::string> ManyLines(int count)
{
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i)
        lines.push_back("line " + std::to_string(i) + " of the flood\r\n");
    return lines;
}

TEST_F(AccessibleWindowTest, TheTextIsTheExportAndEveryAppendIsAnnouncedWhereItLands)
{
    const AppendCase cases[] = {
        {"lines", {"one\r\n", "two\r\n"}, "two\r\n"},
        {"colour codes left out", {"a ", Colored("red") + "\r\n"}, "red\r\n"},
        {"a prompt, then the command's line", {"> ", "look\r\n"}, "look\r\n"},
        {"tabs and bells", {"a\tb\a\r\n"}, "a      b\r\n"},
        {"a line that wraps",
         {std::string(80, 'w') + " " + std::string(80, 'v') + "\r\n"},
         QString(80, 'w') + " " + QString(80, 'v') + "\r\n"},
        {"a ring that drops its oldest text", ManyLines(1500), "line 1499 of the flood\r\n"},
    };
    for (const AppendCase& c : cases) {
        SCOPED_TRACE(c.name);
        Fresh();
        for (const std::string& text : c.appends) {
            const std::size_t before = inserted.size();
            widget->Window().AppendText(text.c_str());
            ASSERT_EQ(inserted.size(), before + 1);
            const Inserted& last = inserted.back();
            EXPECT_EQ(Text().text(last.position, last.position + last.text.size()), last.text);
        }
        EXPECT_EQ(inserted.back().text, c.lastInserted);
        EXPECT_EQ(Text().text(0, Text().characterCount()), Export());
        EXPECT_EQ(Text().cursorPosition(), Export().size());
    }
}

struct SelectionCase {
    const char* name;
    // Distances from the ring's head; a fresh ring's text starts behind its blank lines.
    std::int32_t start;
    std::int32_t end;
    // Null: what Copy takes from the window.
    const char* heard;
};

TEST_F(AccessibleWindowTest, TheSelectionIsWhereTheWindowCopiesItFrom)
{
    widget->Window().AppendText(("one " + Colored("two") + "\r\nthree\r\n").c_str());
    const std::int32_t text = static_cast<std::int32_t>(INITIAL_LINE_FEEDS) - 1;
    const SelectionCase cases[] = {
        {"a word", text, text + 3, nullptr},
        {"across colour codes", text + 2, text + 8, nullptr},
        {"across a line end", text + 5, text + 14, nullptr},
        {"backwards", text + 14, text + 4, nullptr},
        {"nothing", text + 2, text + 2, nullptr},
        // The export leaves the blank lines of a fresh ring out.
        {"from the blank lines", 3, text + 2, "on"},
    };
    for (const SelectionCase& c : cases) {
        SCOPED_TRACE(c.name);
        Live().SetSelection(c.start, c.end);
        const QString heard =
            c.heard ? QString::fromLatin1(c.heard) : QString::fromStdString(Live().SelectionText());
        ASSERT_EQ(Text().selectionCount(), heard.isEmpty() ? 0 : 1);
        int start = -1;
        int end = -1;
        Text().selection(0, &start, &end);
        EXPECT_EQ(Text().text(start, end), heard);
    }
}

} // namespace
} // namespace steward
