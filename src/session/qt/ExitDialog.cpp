#include "session/qt/ExitDialog.h"

#include <QMessageBox>
#include <QPushButton>

namespace steward {

bool AskExit(QWidget* parent)
{
    QMessageBox box(parent);
    box.setWindowTitle(QStringLiteral("Exit Thornmere"));
    box.setIcon(QMessageBox::Question);
    box.setText(
        QStringLiteral("You are still connected to the game. Leave it and close the client?"));
    QPushButton* yes =
        box.addButton(QStringLiteral("Yes, E&xit Thornmere"), QMessageBox::AcceptRole);
    QPushButton* cancel = box.addButton(QStringLiteral("&Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == yes;
}

} // namespace steward
