#pragma once

#include "session/WindowArrangement.h"
#include "terminal/ChildWindows.h"

#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

#include <array>
#include <memory>
#include <string>

class QWidget;

namespace steward {

class AnsiWindow;
class TextBuffer;
class AnsiWindowWidget;
class LinePipeline;
class MdiClient;
class TextWindowServices;
class StewardOptions;
struct CharacterProfile;

// The child-window registry: one record per row of the WindowTable (its text window and the
// sub-window that holds it), and the one writer of the names by which core reaches them.
class ChildWindowSet : public QObject, public ChildWindowHost {
    Q_OBJECT
  public:
    struct Links {
        MdiClient& Area;
        ChildWindows& Windows;
        const CharacterProfile& Profile;
        const StewardOptions& Steward;
        LinePipeline& Pipeline;
        QWidget* CommandLine;
        // The popup menus' commands, dialogs and editor.
        TextWindowServices* Services;
    };

    explicit ChildWindowSet(const Links& links);

    // Opens a new window for the row in the text area; null when it cannot be made.
    AnsiWindow* Open(WindowRow row);
    // CMD_OPEN_*_WINDOW: a new window for the row, the arrangement, and the command line focused.
    void OpenCommand(WindowRow row);
    // The windows that the profile's "Open Windows" names, the active one last.
    void Restore(const std::string& profilePath);
    // Writes each open window's state and the profile's "Open Windows".
    [[nodiscard]] bool Save(const std::string& profilePath);

    // The text of each row's window while the character changes.
    using SavedBuffers = std::array<std::unique_ptr<TextBuffer>, WINDOW_ROWS>;
    // Copies the text of every open window, then closes them all.
    SavedBuffers CloneAndClose();
    // Gives each row's copy to the row's window; the copy of a row without one is dropped.
    void RestoreBuffers(SavedBuffers& saved);
    // ArrangeWindows with the profile's AutoArrange.
    void Arrange(bool force);

    AnsiWindow* Window(WindowRow row) const;
    QMdiSubWindow* Child(WindowRow row) const { return rows_[row].Sub; }
    // The row of the active sub-window, or -1.
    int ActiveRow() const;
    AnsiWindow* ActiveWindow() const;
    // "Find...": the find bar of the active window, or of the Game window when none is active.
    void FindInActiveWindow();
    void EndScrollback();

    // ChildWindowHost.
    bool Exists(WindowRow row) const override { return Child(row) != nullptr; }
    bool IsMinimised(WindowRow row) const override;
    bool IsMaximised(WindowRow row) const override;
    void Restore(WindowRow row) override;
    void Maximise(WindowRow row) override;
    void Move(WindowRow row, const Rect& place) override;
    void Activate(WindowRow row) override;
    Rect ClientArea() const override;
    void FocusCommandLine() override;

  protected:
    // A closed sub-window loses its text window at once and goes itself later.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Record {
        QPointer<QMdiSubWindow> Sub;
    };

    QMdiSubWindow* AddChild(WindowRow row, AnsiWindowWidget* view, const Rect& place);
    // The row is empty again; the others are arranged unless the area is going.
    void Forget(WindowRow row);
    // Where core reads the row's window.
    AnsiWindow*& Published(WindowRow row);

    Links links_;
    std::array<Record, WINDOW_ROWS> rows_;
};

} // namespace steward
