#include "session/WindowArrangement.h"

#include <cctype>
#include <cstring>

namespace steward {

namespace {

const WindowTableRow* FindLetter(char letter)
{
    char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
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

    Point client = host.ClientSize();
    int band = client.Y / 4;
    if (count > 1) {
        int column = client.X / (count - 1);
        for (int i = 1; i < count; ++i)
            host.Move(listed[i], {(i - 1) * column, 0, column, band});
        host.Move(listed[0], {0, band, client.X, client.Y - band});
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
        return {1, 1, 100, 100};
    return {25 * openCount, 25 * openCount, 400, 200};
}

void OpenWindowsLetters(const std::array<bool, WINDOW_ROWS>& open, int activeRow,
                        char (&out)[OPEN_WINDOWS_SIZE])
{
    std::size_t n = 0;
    for (const WindowTableRow& row : WindowTable) {
        if (!open[row.Row])
            continue;
        bool active = row.Row == activeRow;
        out[n++] = active ? static_cast<char>(std::toupper(row.Letter)) : row.Letter;
    }
    out[n] = '\0';
}

RestorePlan PlanRestore(const char* letters)
{
    RestorePlan plan;
    if (std::strcmp(letters, NO_OPEN_WINDOWS) == 0)
        letters = DEFAULT_OPEN_WINDOWS;
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
