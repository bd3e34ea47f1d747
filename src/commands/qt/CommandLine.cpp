#include "commands/qt/CommandLine.h"

#include <algorithm>
#include <cstring>

namespace steward {

namespace {

// Characters outside printable ASCII become "?", so no typed byte can be taken for a colour.
QChar Typable(QChar c)
{
    return c.unicode() >= 0x20 && c.unicode() < 0x7F ? c : QChar('?');
}

} // namespace

CommandLine::CommandLine(QWidget* parent) : QLineEdit(parent)
{
    setObjectName("CommandLine");
    // A screen reader names the field, which has no label beside it.
    setAccessibleName(QStringLiteral("Command line"));
    setAccessibleDescription(QStringLiteral("Type a command for the game and press Enter."));
    setMaxLength(COMMAND_LINE_LIMIT);
    connect(this, &QLineEdit::textEdited, this, &CommandLine::ReplaceUntypable);
}

std::size_t CommandLine::GetText(char* out, std::size_t capacity) const
{
    QByteArray bytes = text().toLatin1();
    std::size_t length = std::min<std::size_t>(bytes.size(), capacity - 1);
    std::memcpy(out, bytes.constData(), length);
    out[length] = 0;
    return length;
}

void CommandLine::SetText(const char* text)
{
    QString typed = QString::fromLatin1(text);
    std::transform(typed.begin(), typed.end(), typed.begin(), Typable);
    setText(typed);
    setCursorPosition(0);
}

void CommandLine::SetSelection(int start, int end)
{
    int length = static_cast<int>(text().size());
    int from = std::clamp(std::min(start, end), 0, length);
    int to = std::clamp(std::max(start, end), 0, length);
    if (from == to)
        setCursorPosition(from);
    else
        setSelection(from, to - from);
}

void CommandLine::GetSelection(int& start, int& end) const
{
    if (!hasSelectedText()) {
        start = end = cursorPosition();
        return;
    }
    start = selectionStart();
    end = selectionEnd();
}

void CommandLine::TypeCharacter(char c)
{
    insert(QString(Typable(QChar::fromLatin1(c))));
}

void CommandLine::Cut()
{
    cut();
}

void CommandLine::Copy()
{
    copy();
}

void CommandLine::Paste()
{
    paste();
    ReplaceUntypable();
}

void CommandLine::Clear()
{
    if (hasSelectedText())
        del();
}

void CommandLine::SetFocus()
{
    setFocus(Qt::OtherFocusReason);
}

void CommandLine::ReplaceUntypable()
{
    QString typed = text();
    if (std::all_of(typed.begin(), typed.end(), [](QChar c) { return Typable(c) == c; }))
        return;
    int caret = cursorPosition();
    std::transform(typed.begin(), typed.end(), typed.begin(), Typable);
    setText(typed);
    setCursorPosition(caret);
}

} // namespace steward
