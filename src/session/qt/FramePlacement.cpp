#include "session/qt/FramePlacement.h"

#include <QScreen>
#include <QWidget>

namespace steward {

namespace {

// A stored size below this is taken as damaged and not applied.
constexpr int SMALLEST_STORED_SIDE = 50;

} // namespace

bool FramePlacement::GetWindowPlacement(WindowPlacementRecord& placement)
{
    const QRect normal =
        window_.normalGeometry().isValid() ? window_.normalGeometry() : window_.geometry();
    placement = WindowPlacementRecord{};
    placement.showCmd = window_.isMaximized()   ? SW_SHOWMAXIMIZED
                        : window_.isMinimized() ? SW_SHOWMINIMIZED
                                                : SW_SHOWNORMAL;
    placement.rcNormalPosition = {normal.left(), normal.top(), normal.left() + normal.width(),
                                  normal.top() + normal.height()};
    return true;
}

void FramePlacement::SetWindowPlacement(const WindowPlacementRecord& placement)
{
    const RectRecord& r = placement.rcNormalPosition;
    const int width = r.right - r.left;
    const int height = r.bottom - r.top;
    if (width >= SMALLEST_STORED_SIDE && height >= SMALLEST_STORED_SIDE)
        window_.setGeometry(r.left, r.top, width, height);
    ShowWindow(placement.showCmd);
}

void FramePlacement::ShowWindow(std::uint32_t showCmd)
{
    switch (showCmd) {
    case SW_SHOWMAXIMIZED:
        window_.showMaximized();
        break;
    case SW_SHOWMINIMIZED:
        window_.showMinimized();
        break;
    default:
        window_.showNormal();
        break;
    }
}

void FramePlacement::UpdateWindow()
{
    window_.update();
}

void PlaceFrame(QWidget& frame, const std::string& profilePath)
{
    FramePlacement placement(frame);
    if (ReadPlacement(profilePath, "Windows", "MainWindow", placement))
        return;
    // Without a window manager a maximise does nothing, so the frame takes the screen first.
    if (QScreen* screen = frame.screen())
        frame.setGeometry(screen->availableGeometry());
    frame.showMaximized();
    frame.update();
}

} // namespace steward
