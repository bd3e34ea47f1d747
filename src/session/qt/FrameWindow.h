#pragma once

#include "session/FrameLayout.h"
#include "session/MenuState.h"

#include <QMainWindow>
#include <QPointer>

#include <cstdint>
#include <functional>

namespace steward {

class FrameMenu;
class MdiClient;

// The frame's own surface: the panel's grey with a sunken edge around the text area.
class FrameSurface : public QWidget {
    Q_OBJECT
  public:
    explicit FrameSurface(QWidget* parent = nullptr);
    void SetEdge(const QRect& edge) { edge_ = edge; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect edge_;
};

// The client's main window: the menu bar, the text area and the command line, placed for the
// display mode with room for the panel. Everything it is asked to do goes back to the program
// through its handlers, by command number.
class FrameWindow : public QMainWindow {
    Q_OBJECT
  public:
    struct Handlers {
        std::function<void(int)> Command;
        std::function<MenuInputs()> ReadMenuInputs;
        // The frame is asked to close: true lets it.
        std::function<bool()> Close;
        // A wheel turn over the frame: Shift held, and the amount.
        std::function<void(bool, int)> Wheel;
        // The frame was resized and laid out anew.
        std::function<void()> Resized;
    };

    static constexpr int MIN_TRACK_SIZE = 350;

    explicit FrameWindow(Handlers handlers, QWidget* parent = nullptr);
    ~FrameWindow() override;

    MdiClient& Mdi() { return *mdi_; }
    FrameMenu& Menu() { return *menu_; }
    FrameSurface& Surface() { return *surface_; }

    // The command line is made elsewhere and placed here.
    void SetCommandLine(QWidget* commandLine);
    QWidget* CommandLine() const { return commandLine_; }
    void SetDisplayMode(std::uint8_t mode);
    // Places everything for the display mode, after a resize or a change of mode.
    void LayoutFrame();
    // The last layout, with the panel's PanelTop worked out for every mode.
    const FrameLayout& Layout() const { return layout_; }
    void FocusCommandLine();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Pause enters rest mode, Shift+Pause rests without snoring, wherever the focus is.
    void AddRestKeys();
    int CommandLineHeight() const;
    // After a menu, dialog or popup closed: the command line again, unless another of them is
    // still open or another window of ours is active.
    void ReturnFocus();
    bool FieldKeepsFocus() const;

    Handlers handlers_;
    FrameSurface* surface_;
    MdiClient* mdi_;
    FrameMenu* menu_;
    QPointer<QWidget> commandLine_;
    std::uint8_t displayMode_ = 0;
    FrameLayout layout_;
};

} // namespace steward
