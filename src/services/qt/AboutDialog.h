#pragma once

#include <QDialog>

namespace steward {

// ABOUT_DIALOG: the program's name, its version and its makers, with one button.
class AboutDialog : public QDialog {
    Q_OBJECT
  public:
    explicit AboutDialog(QWidget* owner);
};

// Runs the dialog modally, centred on the screen.
void ShowAboutDialog(QWidget* owner);

} // namespace steward
