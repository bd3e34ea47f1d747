#include "base/FrameCommand.h"
#include "support/TempFolder.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;

// Records what the popup menu asks of the program; the save dialog answers with savePath.
class RecordingServices : public TextWindowServices {
  public:
    void ForwardCommand(int command) override { forwarded.push_back(command); }
    bool AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity) override
    {
        askedTitle = request.Title;
        std::snprintf(path, capacity, "%s", savePath.c_str());
        return !savePath.empty();
    }
    void ShowMessage(const char* text, const char*) override { messages.push_back(text); }
    void RunNotepad(const std::string& path) override { edited = path; }
    std::string ProgramFolder() const override { return folder.Path(); }

    TempFolder folder;
    std::string savePath;
    std::string askedTitle;
    std::vector<int> forwarded;
    std::vector<std::string> messages;
    std::string edited;
};

constexpr char PARAGRAPH_WORD[] = "abcd ";

// A shown text window whose last four rows are "plain words here", "red alert now" with
// "alert" in red, and one paragraph broken over the last two rows.
class MouseTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        widget = AnsiWindowWidget::Create("Thought Window",
                                          {settings, nullptr, nullptr, nullptr, &services});
        widget->resize(400, 200);
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
        AnsiWindow& window = widget->Window();
        const std::int32_t columns =
            (window.GetClientRect().right - window.GetTextLeft()) / window.GetCharWidth()['a'];
        std::string paragraph;
        while (paragraph.size() < static_cast<std::size_t>(columns) * 3 / 2)
            paragraph += PARAGRAPH_WORD;
        window.AppendText(("plain words here\nred \x81"
                           "alert\xA0 now\n" +
                           paragraph + "end")
                              .c_str());
    }
    // The point left of column col on the row that many rows above the last.
    QPoint At(int rowFromBottom, int col)
    {
        AnsiWindow& window = widget->Window();
        const int row = window.GetRows() - 1 - rowFromBottom;
        return {window.GetTextLeft() + col * window.GetCharWidth()['a'],
                window.GetTextTop() + row * window.GetLineHeight() + window.GetLineHeight() / 2};
    }
    // The shown text of that row, as plain text.
    std::string RowText(int rowFromBottom)
    {
        TextBuffer& buffer = widget->Window().GetLiveBuffer();
        buffer.SeekFromEnd(rowFromBottom + 1);
        char line[READ_LINE_BUFFER_SIZE];
        std::int32_t limit = READ_LINE_LIMIT;
        std::string text;
        for (const char* c = buffer.ReadLine(line, limit, false, nullptr); *c; ++c)
            if (!IsColorCode(static_cast<unsigned char>(*c)))
                text += *c;
        return text;
    }
    void Drag(QPoint from, QPoint to)
    {
        QTest::mousePress(widget.get(), Qt::LeftButton, {}, from);
        QTest::mouseMove(widget.get(), to);
        QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, to);
    }
    std::string Copied()
    {
        QApplication::clipboard()->clear();
        widget->Window().Copy();
        return QApplication::clipboard()->text().toStdString();
    }

    Settings settings;
    RecordingServices services;
    std::unique_ptr<AnsiWindowWidget> widget;
};

// A drag selects the bytes between press and release, a double click a word, a shift click
// moves the edge, and the popup menu offers Copy only with a selection.
TEST_F(MouseTest, SelectsAndOffersCopy)
{
    const struct {
        int fromRow, fromCol, toRow, toCol;
        std::string copied;
    } cases[] = {{3, 0, 3, 5, "plain"},
                 {2, 2, 2, 8, "d aler"},
                 {2, 3, 3, 6, "words here\r\nred"},
                 // A soft line end copies as a space.
                 {1, 0, 0, 4, RowText(1) + " " + RowText(0).substr(0, 4)}};
    for (const auto& c : cases) {
        Drag(At(c.fromRow, c.fromCol), At(c.toRow, c.toCol));
        EXPECT_EQ(Copied(), c.copied);
    }
    QTest::mouseDClick(widget.get(), Qt::LeftButton, {}, At(2, 6));
    EXPECT_EQ(Copied(), "alert");
    QTest::mouseClick(widget.get(), Qt::LeftButton, Qt::ShiftModifier, At(2, 13));
    EXPECT_EQ(Copied(), "alert now");
    QTest::mouseClick(widget.get(), Qt::LeftButton, Qt::ShiftModifier, At(3, 6));
    EXPECT_EQ(Copied(), "words here\r\nred alert now");
    QTest::mouseClick(widget.get(), Qt::LeftButton, {}, At(3, 6));
    EXPECT_FALSE(widget->Window().HasSelection());
    QTest::mouseClick(widget.get(), Qt::LeftButton, Qt::ShiftModifier, At(3, 6));
    EXPECT_EQ(Copied(), "plain words here");

    QTest::mouseClick(widget.get(), Qt::LeftButton, {}, At(3, 6));
    QMenu plain;
    widget->FillPopupMenu(plain);
    EXPECT_EQ(plain.actions().first()->text(), "Maximize");
    Drag(At(3, 0), At(3, 5));
    QMenu selected;
    widget->FillPopupMenu(selected);
    EXPECT_EQ(selected.actions().first()->text(), "Copy");
    EXPECT_EQ(selected.actions().size(), plain.actions().size() + 3);
    widget->MenuCommand(CMD_COPY_TO_COMMAND_LINE);
    EXPECT_EQ(services.forwarded, std::vector<int>{CMD_COPY_TO_COMMAND_LINE});
}

TEST_F(MouseTest, CopyAllGoesToAFileAndTheEditor)
{
    const std::string all = widget->Window().GetLiveBuffer().ExportPlainText();
    services.savePath = services.folder.File("capture.txt");
    widget->MenuCommand(IDM_COPY_ALL_TO_FILE);
    EXPECT_EQ(services.askedTitle, "Save Scrollback Buffer As");
    EXPECT_EQ(ReadBytes(services.savePath), all);

    services.savePath = services.folder.File("missing/capture.txt");
    widget->MenuCommand(IDM_COPY_ALL_TO_FILE);
    EXPECT_EQ(services.messages, std::vector<std::string>{"Unable to create file!"});

    widget->MenuCommand(IDM_EDIT);
    ASSERT_FALSE(services.edited.empty());
    EXPECT_EQ(ReadBytes(services.edited), all);
    std::filesystem::remove(services.edited);
}

} // namespace
} // namespace steward
