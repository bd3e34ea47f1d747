#pragma once

#include "terminal/TextBuffer.h"

#include <QAccessibleWidget>

namespace steward {

class AnsiWindowWidget;

// A screen reader gets the last 256 KB of a window's text: more than a standard ring holds, and
// little enough to be read again after every append of a long scrollback.
constexpr std::uint32_t ACCESSIBLE_TEXT_BYTES = 256 * 1024;

// A text window as a screen reader sees it: the live text as "Copy All" gives it (from
// ACCESSIBLE_TEXT_BYTES before its end), the caret at its end, and the selection. The text is
// the game's, so a screen reader reads it but does not edit it or move the caret or the
// selection, which the player's mouse alone sets.
class AnsiWindowAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AnsiWindowAccessible(AnsiWindowWidget* widget);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    // QAccessibleTextInterface.
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override;
    void setCursorPosition(int) override {}
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    // Rows are not laid out for single characters; the window reports no character boxes.
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int, int) override {}
    // The text carries no attributes: one run from start to end.
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

  private:
    AnsiWindowWidget& Widget() const;
    // The export, made again only when the window's text has changed.
    const QString& Text() const;
    // Where a position of the displayed buffer lies in the text.
    int OffsetOf(TextBuffer::Position position) const;

    mutable QString text_;
    mutable quint64 version_ = 0;
    mutable bool made_ = false;
};

// Makes every AnsiWindowWidget answer with an AnsiWindowAccessible; once per process.
void InstallAnsiWindowAccessibility();
// Raises the text-inserted event for what an append that began at from added to the window.
void AnnounceAppendedText(AnsiWindowWidget& widget, TextBuffer::Position from);

} // namespace steward
