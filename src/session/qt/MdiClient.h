#pragma once

#include "base/Geometry.h"

#include <QImage>
#include <QMdiArea>
#include <QPointer>

namespace steward {

// The text area: black, with the background picture in its middle; the ChildWindowSet keeps
// track of the text windows in it.
class MdiClient : public QMdiArea {
    Q_OBJECT
  public:
    explicit MdiClient(QWidget* parent = nullptr);
    // The children die with the area; none of them starts an arrangement then.
    ~MdiClient() override;

    // True while the area destroys its children.
    bool Dying() const { return dying_; }
    void SetCommandLine(QWidget* commandLine) { commandLine_ = commandLine; }

    // Tiling: horizontal tiling stacks the windows, vertical tiling sets them side by side.
    // Each of the three leaves the focus on the command line.
    void TileHorizontally();
    void TileVertically();
    // Cascade: the open windows step down and right by a title bar's height each, every
    // one as large as the room left below and right of its corner.
    void Cascade();

    // The inner area; its corner is 0, 0.
    Rect ClientArea() const;
    void FocusCommandLine();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Tile(bool stacked);
    void Step();
    QList<QMdiSubWindow*> ShownNormal();

    QImage background_;
    QPointer<QWidget> commandLine_;
    bool dying_ = false;
};

} // namespace steward
