#pragma once

#include "base/FrameGate.h"
#include "base/qt/AppearanceDialogs.h"
#include "panels/MultiControl.h"
#include "panels/qt/BitmapImage.h"

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace steward {

class PanelResources;

// The one window kind of every panel control: it owns its handler with the handler's data and,
// for the kinds that show a picture of their own, that picture. It paints only when the
// handler says that the picture changed, and at most once per display frame.
class MultiControl : public QWidget, public GaugeView, public PanelView {
    Q_OBJECT
  public:
    MultiControl(QWidget* parent, std::unique_ptr<ControlHandler> handler,
                 PanelResources& resources, const char* pictureName = nullptr);

    int Id() const { return id_; }
    ControlHandler& Handler() { return *handler_; }

    void Repaint() override;
    void Repaint(bool erase) override;

    // Tests give their own colour dialog; Qt's otherwise.
    void SetDialogs(AppearanceDialogs* dialogs) { dialogs_ = dialogs ? dialogs : &qtDialogs_; }
    // A command of the gauge's popup menu; false when the control has no such command.
    bool MenuCommand(int command);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    std::unique_ptr<ControlHandler> handler_;
    PanelResources& resources_;
    BitmapImage picture_;
    QString scratch_;
    QtAppearanceDialogs qtDialogs_;
    AppearanceDialogs* dialogs_ = &qtDialogs_;
    int id_;
    FrameGate gate_{DISPLAY_FRAME_MS};
    QElapsedTimer clock_;
    QTimer repaintTimer_;
};

} // namespace steward
