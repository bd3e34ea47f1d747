#include "terminal/qt/AnsiWindowAccessible.h"

#include "terminal/qt/AnsiWindowWidget.h"

#include <algorithm>

namespace steward {

namespace {

QString FromBytes(const std::string& text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String(AnsiWindowWidget::staticMetaObject.className()))
        return nullptr;
    auto* widget = qobject_cast<AnsiWindowWidget*>(object);
    return widget ? new AnsiWindowAccessible(widget) : nullptr;
}

} // namespace

AnsiWindowAccessible::AnsiWindowAccessible(AnsiWindowWidget* widget)
    : QAccessibleWidget(widget, QAccessible::EditableText)
{
}

AnsiWindowWidget& AnsiWindowAccessible::Widget() const
{
    return *static_cast<AnsiWindowWidget*>(widget());
}

void* AnsiWindowAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AnsiWindowAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return QString::fromLatin1(Widget().Window().GetWindowName());
    if (kind == QAccessible::Value)
        return Text();
    return QAccessibleWidget::text(kind);
}

QAccessible::State AnsiWindowAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    return state;
}

const QString& AnsiWindowAccessible::Text() const
{
    const quint64 version = Widget().TextVersion();
    if (!made_ || version != version_) {
        const TextBuffer& live = Widget().Window().GetLiveBuffer();
        // Closed by a line end, as the export is.
        text_ = FromBytes(live.PlainTextFrom(live.TailStart(ACCESSIBLE_TEXT_BYTES)) + "\r\n");
        version_ = version;
        made_ = true;
    }
    return text_;
}

int AnsiWindowAccessible::OffsetOf(TextBuffer::Position position) const
{
    const TextBuffer& shown = Widget().Window().DisplayedBuffer();
    const std::int32_t plain =
        shown.PlainDistance(shown.TailStart(ACCESSIBLE_TEXT_BYTES), position);
    return std::min<int>(plain, characterCount());
}

void AnsiWindowAccessible::selection(int selectionIndex, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = 0;
    if (selectionIndex != 0 || selectionCount() == 0)
        return;
    const TextBuffer& shown = Widget().Window().DisplayedBuffer();
    std::int32_t low = 0;
    std::int32_t high = 0;
    shown.SelectionRange(low, high);
    *startOffset = OffsetOf(shown.AdvancePos(shown.GetHeadPos(), low));
    *endOffset = OffsetOf(shown.AdvancePos(shown.GetHeadPos(), high));
}

int AnsiWindowAccessible::selectionCount() const
{
    return Widget().Window().HasSelection() ? 1 : 0;
}

int AnsiWindowAccessible::cursorPosition() const
{
    return characterCount();
}

QString AnsiWindowAccessible::text(int startOffset, int endOffset) const
{
    const QString& all = Text();
    startOffset = std::clamp<int>(startOffset, 0, all.size());
    endOffset = std::clamp<int>(endOffset, startOffset, all.size());
    return all.mid(startOffset, endOffset - startOffset);
}

int AnsiWindowAccessible::characterCount() const
{
    return static_cast<int>(Text().size());
}

int AnsiWindowAccessible::offsetAtPoint(const QPoint& point) const
{
    AnsiWindow& window = Widget().Window();
    const QPoint at = Widget().mapFromGlobal(point);
    return OffsetOf(window.PosFromPoint(at.x(), at.y()));
}

QString AnsiWindowAccessible::attributes(int, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

void InstallAnsiWindowAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    (void)installed;
}

void AnnounceAppendedText(AnsiWindowWidget& widget, TextBuffer::Position from)
{
    const TextBuffer& live = widget.Window().GetLiveBuffer();
    const TextBuffer::Position start = live.TailStart(ACCESSIBLE_TEXT_BYTES);
    if (live.Offset(from) < live.Offset(start))
        from = start;
    const std::string added = live.PlainTextFrom(from);
    if (added.empty())
        return;
    QAccessibleTextInsertEvent event(&widget, live.PlainDistance(start, from), FromBytes(added));
    QAccessible::updateAccessibility(&event);
}

} // namespace steward
