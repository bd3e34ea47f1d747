#include "session/qt/FrameWindow.h"

namespace steward {

FrameWindow::FrameWindow(QWidget* parent) : QMainWindow(parent)
{
    setWindowTitle("Thornmere Steward");
    resize(800, 600);
}

} // namespace steward
