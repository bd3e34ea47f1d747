#include "session/WindowArrangement.h"

#include "base/ByteText.h"

namespace steward {

namespace {

const WindowTableRow* FindLetter(char letter)
{
    const char lower = static_cast<char>(FoldCase(static_cast<unsigned char>(letter)));
    for (const WindowTableRow& row : WindowTable)
        if (row.Letter == lower)
            return &row;
    return nullptr;
}

void AddOnce(RestorePlan& plan, WindowRow row)
{
    for (int i = 0; i < plan.Count; ++i)
        if (plan.Rows[i] == row)
            return;
    plan.Rows[plan.Count++] = row;
}

} // namespace

void ArrangeWindows(ChildWindowHost& host, bool force, bool autoArrange)
{
    if (!force && !autoArrange)
        return;
    std::array<WindowRow, WINDOW_ROWS> listed{};
    int count = 0;
    for (const WindowTableRow& row : WindowTable) {
        if (!host.Exists(row.Row))
            continue;
        if (host.IsMinimised(row.Row) || host.IsMaximised(row.Row))
            host.Restore(row.Row);
        listed[count++] = row.Row;
    }
    if (count == 0)
        return;

    const Rect client = host.ClientArea();
    int band = client.Height() / 4;
    if (count > 1) {
        int column = client.Width() / (count - 1);
        for (int i = 1; i < count; ++i)
            host.Move(listed[i], RectAt((i - 1) * column, 0, column, band));
        host.Move(listed[0], RectAt(0, band, client.Width(), client.Height() - band));
    } else {
        host.Maximise(listed[0]);
    }

    if (host.Exists(GAME_ROW) && !host.IsMinimised(GAME_ROW))
        host.Activate(GAME_ROW);
    host.FocusCommandLine();
}

Rect ChildCreationRect(bool autoArrange, int openCount)
{
    if (autoArrange)
        return RectAt(1, 1, 100, 100);
    return RectAt(25 * openCount, 25 * openCount, 400, 200);
}

std::string OpenWindowsLetters(const std::array<bool, WINDOW_ROWS>& open, int activeRow)
{
    std::string letters;
    for (const WindowTableRow& row : WindowTable) {
        if (!open[row.Row])
            continue;
        bool active = row.Row == activeRow;
        letters += active ? static_cast<char>(UpperCase(static_cast<unsigned char>(row.Letter))) : row.Letter;
    }
    return letters;
}

RestorePlan PlanRestore(const char* letters)
{
    RestorePlan plan;
    const WindowTableRow* last = nullptr;
    for (const char* c = letters; *c; ++c) {
        const WindowTableRow* row = FindLetter(*c);
        if (!row)
            continue;
        if (std::isupper(static_cast<unsigned char>(*c)))
            last = row;
        else
            AddOnce(plan, row->Row);
    }
    if (last)
        AddOnce(plan, last->Row);
    AddOnce(plan, GAME_ROW);
    return plan;
}

} // namespace steward
