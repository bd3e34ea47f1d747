#pragma once

#include "terminal/AnsiWindow.h"
#include "terminal/qt/AppearanceDialogs.h"
#include "terminal/qt/PainterLayer.h"

#include <QFont>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

class QMdiSubWindow;
class QScrollBar;

namespace steward {

// Ids of the popup menu's Appearance commands.
constexpr int IDM_CHANGE_FONT = 1800;
constexpr int IDM_CHANGE_BACKGROUND = 1801;
constexpr int IDM_CHANGE_FOREGROUND = 1804;

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
    };

    // Null when the window's buffers cannot be made.
    // Made without a parent: hand it to QMdiSubWindow::setWidget with release().
    static std::unique_ptr<AnsiWindowWidget> Create(const char* name, const Parts& parts);

    AnsiWindow& Window() { return *window_; }
    const QFont& CurrentFont() const { return font_; }
    QScrollBar* ScrollBar() const { return scrollBar_; }
    // The widget that takes the focus whenever this window would get it.
    void SetCommandLine(QWidget* commandLine) { commandLine_ = commandLine; }
    // A command of the popup menu: one of the IDM_ values.
    void MenuCommand(int id);

    // AnsiWindowHost. The placement is that of the sub-window holding this widget, so the
    // frame can restore it through ReadPlacement with this widget as the target.
    Rect GetClientRect() const override;
    void InvalidateRect(bool erase) override;
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

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    explicit AnsiWindowWidget(const Parts& parts);

    void ScrollBarAction(int action);
    void FollowSubWindow();
    void SubWindowStateChanged(Qt::WindowStates before, Qt::WindowStates now);
    void ShowPopupMenu(const QPoint& at);
    // The sub-window holding this widget, or the widget itself outside the text area.
    QWidget* Frame();

    QtAppearanceDialogs qtDialogs_;
    AppearanceDialogs* dialogs_;
    std::unique_ptr<AnsiWindow> window_;
    PainterLayer layer_;
    QFont font_;
    QScrollBar* scrollBar_;
    std::int32_t scrollPos_ = 0;
    QTimer repaintTimer_;
    bool repaintPending_ = false;
    QPointer<QWidget> commandLine_;
    QPointer<QMdiSubWindow> subWindow_;
    QMetaObject::Connection subWindowConnection_;
};

} // namespace steward
