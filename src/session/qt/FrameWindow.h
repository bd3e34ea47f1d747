#pragma once

#include <QMainWindow>

namespace steward {

// The client's main window.
class FrameWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit FrameWindow(QWidget* parent = nullptr);
};

} // namespace steward
