#pragma once

#include "panels/MultiControl.h"
#include "panels/StatusPanel.h"
#include "panels/ToolButtonPlaces.h"
#include "panels/qt/PanelResources.h"
#include "panels/qt/ToolButtons.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace steward {

class MultiControl;

// The status panel on the frame: every control of the StatusPanel in its window, the labels
// and boxes around them, and the tool buttons; placed anew on each layout of the frame.
class StatusPanelView {
  public:
    StatusPanelView(QWidget& frame, StatusPanel& panel, std::function<void(int)> command);
    // The panel's states outlive their windows: they stop asking for repaints here.
    ~StatusPanelView();

    // The panel with its top at panelTop, the tool buttons at their places.
    void Place(int panelTop, const ToolButtonPlaces& buttons);
    ToolButtons& Buttons() { return buttons_; }

  private:
    struct Placed {
        MultiControl* Control;
        int X;
        int Y;
    };
    MultiControl* Add(std::unique_ptr<ControlHandler> handler, int x, int y, int width, int height,
                      const char* picture = nullptr);
    void AddGauge(Gauge& gauge, int x, int y, int width, int height);
    void AddBox(PanelText& text, int x, int y, int width);
    void AddLabel(const char* text, int x, int y, int width, std::uint32_t color = LABEL_BOX_COLOR);

    QWidget& frame_;
    StatusPanel& panel_;
    PanelResources resources_;
    ToolButtons buttons_;
    std::vector<Placed> placed_;
};

} // namespace steward
