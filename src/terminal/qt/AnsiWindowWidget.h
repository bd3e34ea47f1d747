#pragma once

#include "base/qt/AppearanceDialogs.h"
#include "terminal/AnsiWindow.h"
#include "terminal/qt/FindBar.h"
#include "terminal/qt/PainterLayer.h"

#include <QFont>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

class QMdiSubWindow;
class QMenu;
class QScrollBar;

namespace steward {

// Ids of the popup menu's own commands; Copy and Copy Special carry the frame's numbers.
constexpr int IDM_CHANGE_FONT = 1800;
constexpr int IDM_CHANGE_BACKGROUND = 1801;
constexpr int IDM_COPY_ALL_TO_CLIPBOARD = 1802;
constexpr int IDM_COPY_ALL_TO_FILE = 1803;
constexpr int IDM_CHANGE_FOREGROUND = 1804;
constexpr int IDM_EDIT = 1850;
constexpr int IDM_RESTORE = 1851;
constexpr int IDM_MAXIMIZE = 1852;
constexpr int IDM_CLOSE = 1853;
constexpr int IDM_FIND = 1854;

// While a drag holds the pointer above or below the window, the window scrolls one line this
// often.
constexpr int DRAG_SCROLL_INTERVAL_MS = 50;

// While text floods in, a window paints at most once per display frame.
constexpr int REPAINT_INTERVAL_MS = 16;

// A text window as a widget for a sub-window of the text area: it owns the AnsiWindow, paints
// it through a PainterLayer, measures its font and carries its scroll bar.
class AnsiWindowWidget : public QWidget, public AnsiWindowHost {
    Q_OBJECT
  public:
    struct Parts {
        const Settings& Options;
        // The profile's .Dat file to read the window's state from; null gives the defaults.
        const char* ProfilePath = nullptr;
        // Given to the Game window only.
        PromptState* Prompt = nullptr;
        // Null uses Qt's dialogs.
        AppearanceDialogs* Dialogs = nullptr;
        // Null leaves the frame, file and editor commands of the popup menu without effect.
        TextWindowServices* Services = nullptr;
        // Null keeps the standard behaviour.
        const StewardOptions* Steward = nullptr;
        std::uint32_t ScrollbackBytes = 0;
    };

    // Null when the window's buffers cannot be made.
    // Made without a parent: hand it to QMdiSubWindow::setWidget with release().
    static std::unique_ptr<AnsiWindowWidget> Create(const char* name, const Parts& parts);

    AnsiWindow& Window() { return *window_; }
    const QFont& CurrentFont() const { return font_; }
    QScrollBar* ScrollBar() const { return scrollBar_; }
    // The widget that takes the focus whenever this window would get it.
    void SetCommandLine(QWidget* commandLine) { commandLine_ = commandLine; }
    // A command of the popup menu: one of the IDM_ values or a forwarded frame command.
    void MenuCommand(int id);
    // The popup menu's items for the window as it is now; each action's data is its command.
    void FillPopupMenu(QMenu& menu);
    // Changes whenever the window's text or its look may have changed, so that a screen
    // reader's copy of the text is made again.
    quint64 TextVersion() const { return textVersion_; }
    // "Find...": the find bar below the text, its field focused.
    void OpenFindBar();
    FindBar* Finder() const { return findBar_; }

    // AnsiWindowHost. The placement is that of the sub-window holding this widget, so the
    // frame can restore it through ReadPlacement with this widget as the target.
    Rect GetClientRect() const override;
    void InvalidateRect(bool erase) override;
    void TextAppended(TextBuffer::Position from) override;
    void UpdateWindow() override;
    void SetScrollRange(std::int32_t minimum, std::int32_t maximum, bool redraw) override;
    void SetScrollPos(std::int32_t position, bool redraw) override;
    bool IsActiveChild() const override;
    void FocusCommandLine() override;
    void ClearTitle() override;
    void SelectFont(const LogFontRecord* record, LogFontRecord& inUse,
                    FontMeasure& measure) override;
    bool GetWindowPlacement(WindowPlacementRecord& placement) override;
    void SetWindowPlacement(const WindowPlacementRecord& placement) override;
    void ShowWindow(std::uint32_t showCmd) override;
    bool PickColor(COLORREF& color, bool foregroundRule) override;
    bool PickFont(const LogFontRecord& font, LogFontRecord& record) override;
    void Beep() override;
    void SetClipboardText(const std::string& text) override;
    void DropCommandLineSelection() override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    explicit AnsiWindowWidget(const Parts& parts);

    void ScrollBarAction(int action);
    void FollowSubWindow();
    void SubWindowStateChanged(Qt::WindowStates before, Qt::WindowStates now);
    void ShowPopupMenu(const QPoint& at);
    void DragStep();
    bool OnSplitBar(int y) const;
    void LayOutAroundFindBar();
    void CloseFindBar();
    // The sub-window holding this widget, or the widget itself outside the text area.
    QWidget* Frame();

    QtAppearanceDialogs qtDialogs_;
    AppearanceDialogs* dialogs_;
    TextWindowServices* services_;
    std::unique_ptr<AnsiWindow> window_;
    PainterLayer layer_;
    QFont font_;
    QScrollBar* scrollBar_;
    std::int32_t scrollPos_ = 0;
    QTimer repaintTimer_;
    bool repaintPending_ = false;
    // The timer has asked Qt for a paint that has not happened yet; the next frame is counted
    // from that paint, not from the request.
    bool paintRequested_ = false;
    quint64 textVersion_ = 0;
    // Repeats the last drag step while the pointer stays outside the window.
    QTimer dragScrollTimer_;
    QPoint dragPoint_;
    QPointer<QWidget> commandLine_;
    // Made on the first "Find...".
    FindBar* findBar_ = nullptr;
    // The bar between a frozen view and its live tail is being dragged.
    bool draggingSplit_ = false;
    QPointer<QMdiSubWindow> subWindow_;
    QMetaObject::Connection subWindowConnection_;
};

} // namespace steward
