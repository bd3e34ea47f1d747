#pragma once

#include "config/IniStore.h"

#include <string>

class QWidget;

namespace steward {

// A top-level window's placement as the profile stores it: its normal geometry, never the
// maximised one, so that it does not drift from run to run.
class FramePlacement : public PlacementTarget {
  public:
    explicit FramePlacement(QWidget& window) : window_(window) {}

    bool GetWindowPlacement(WindowPlacementRecord& placement) override;
    void SetWindowPlacement(const WindowPlacementRecord& placement) override;
    void ShowWindow(std::uint32_t showCmd) override;
    void UpdateWindow() override;

  private:
    QWidget& window_;
};

// The frame's stored placement, or without one the whole screen, maximised.
void PlaceFrame(QWidget& frame, const std::string& profilePath);

} // namespace steward
