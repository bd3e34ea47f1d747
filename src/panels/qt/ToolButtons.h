#pragma once

#include "panels/ToolButtonPlaces.h"
#include "panels/qt/BitmapImage.h"

#include <QAbstractButton>
#include <QString>

#include <array>
#include <functional>

namespace steward {

class PanelResources;

// An owner-drawn push button whose picture holds two faces side by side: at rest and held down.
class ToolButton : public QAbstractButton {
    Q_OBJECT
  public:
    ToolButton(QWidget* parent, const char* bitmapName, PanelResources& resources);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    BitmapImage picture_;
    PanelResources& resources_;
    QString scratch_;
};

// The four buttons that ready and put away weapon and shield; a click gives its frame command.
class ToolButtons {
  public:
    ToolButtons(QWidget& parent, PanelResources& resources, std::function<void(int)> command);
    // PlaceToolButtons: each button at its place, in creation order.
    void Place(const ToolButtonPlaces& places);
    ToolButton& Button(int i) { return *buttons_[i]; }

  private:
    std::array<ToolButton*, TOOL_BUTTON_COUNT> buttons_{};
};

} // namespace steward
