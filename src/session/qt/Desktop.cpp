#include "session/qt/Desktop.h"

#include "session/qt/ExitDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QUrl>

#include <cstdio>

namespace steward {

ConnectChoice QtDesktop::AskConnection(QWidget* parent, std::string& host, int& port)
{
    return ShowConnectDialog(parent, host, port);
}

bool QtDesktop::AskExit(QWidget* parent)
{
    return steward::AskExit(parent);
}

void QtDesktop::ShowMessage(QWidget* parent, const char* text, const char* title)
{
    QMessageBox box(parent);
    if (title)
        box.setWindowTitle(QString::fromLatin1(title));
    box.setText(QString::fromLatin1(text));
    box.exec();
}

bool QtDesktop::RunEditor(const std::string& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromLocal8Bit(path.c_str())));
}

bool QtDesktop::AskSaveFileName(QWidget* parent, const SaveFileRequest& request, char* path,
                                std::size_t capacity)
{
    const QString start = QDir(QString::fromLocal8Bit(request.Folder))
                              .filePath(QString::fromLatin1(request.FileName) + '.' +
                                        QString::fromLatin1(request.DefaultExtension));
    const QString filter = QStringLiteral("%1 (%2)").arg(
        QString::fromLatin1(request.FilterName), QString::fromLatin1(request.FilterPattern));
    QFileDialog dialog(parent, QString::fromLatin1(request.Title), start, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QString::fromLatin1(request.DefaultExtension));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    const QByteArray chosen = dialog.selectedFiles().front().toLocal8Bit();
    std::snprintf(path, capacity, "%s", chosen.constData());
    return true;
}

bool QtDesktop::AskString(QWidget* parent, const char* title, char* answer, std::size_t capacity)
{
    bool ok = false;
    const QString text = QInputDialog::getText(parent, QString::fromLatin1(title), QString(),
                                               QLineEdit::Normal, QString(), &ok);
    if (!ok)
        return false;
    std::snprintf(answer, capacity, "%s", text.toLatin1().constData());
    return true;
}

bool QtDesktop::AskDragTarget(QWidget* parent, std::string& target)
{
    constexpr int DRAG_FIELD_LIMIT = 60;
    QDialog dialog(parent);
    dialog.setWindowTitle(QStringLiteral("Drag Someone"));
    auto* field = new QLineEdit(QString::fromLatin1(target.c_str()), &dialog);
    field->setMaxLength(DRAG_FIELD_LIMIT);
    auto* buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(QDialogButtonBox::Ok);
    buttons->addButton(QStringLiteral("Stop Dragging"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* form = new QFormLayout(&dialog);
    form->addRow(QStringLiteral("Drag who:"), field);
    form->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    target = field->text().toLatin1().toStdString();
    return true;
}

void QtDesktop::Beep()
{
    QApplication::beep();
}

} // namespace steward
