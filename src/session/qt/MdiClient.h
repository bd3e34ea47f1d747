#pragma once

#include "session/WindowArrangement.h"

#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

#include <functional>

namespace steward {

// The area that holds the text windows: black, with the background picture in its middle,
// and one sub-window per row of the WindowTable at most.
class MdiClient : public QMdiArea, public ChildWindowHost {
    Q_OBJECT
  public:
    explicit MdiClient(QWidget* parent = nullptr);
    // The children die with the area; none of them starts an arrangement then.
    ~MdiClient() override;

    // Puts the widget into a new sub-window for the row, titled with the row's name; the row
    // is closed when the widget is destroyed.
    QMdiSubWindow* AddChild(WindowRow row, QWidget* widget, const Area& place);
    QMdiSubWindow* Child(WindowRow row) const { return rows_[row]; }
    // The row of the active sub-window, or -1.
    int ActiveRow() const;

    // FWM_CHILDCLOSED: what to do when a row's window closes while the area lives; a window
    // that the player closes is told before it goes.
    void SetChildClosedHandler(std::function<void(WindowRow)> handler);
    void SetCommandLine(QWidget* commandLine) { commandLine_ = commandLine; }

    // WM_MDITILE: horizontal tiling stacks the windows, vertical tiling sets them side by side.
    void TileHorizontally();
    void TileVertically();
    // WM_MDICASCADE: the open windows step down and right by a title bar's height each, every
    // one as large as the room left below and right of its corner.
    void Cascade();

    // ChildWindowHost.
    bool Exists(WindowRow row) const override;
    bool IsMinimised(WindowRow row) const override;
    bool IsMaximised(WindowRow row) const override;
    void Restore(WindowRow row) override;
    void Maximise(WindowRow row) override;
    void Move(WindowRow row, const Area& place) override;
    void Activate(WindowRow row) override;
    Area ClientArea() const override;
    void FocusCommandLine() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    // A closed sub-window loses its text window at once and goes itself later.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ChildClosed(WindowRow row);
    void Tile(bool stacked);
    QList<QMdiSubWindow*> ShownNormal();

    QImage background_;
    QPointer<QMdiSubWindow> rows_[WINDOW_ROWS];
    std::function<void(WindowRow)> childClosed_;
    QPointer<QWidget> commandLine_;
    bool dying_ = false;
};

} // namespace steward
