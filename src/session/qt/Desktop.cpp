#include "session/qt/Desktop.h"

#include "base/ByteText.h"

#include "base/qt/CenterWindow.h"
#include "scripts/qt/ScriptDialogs.h"
#include "session/qt/ExitDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QUrl>

namespace steward {

namespace {

// A dialog of one text field that takes at most limit characters, with OK and a button that
// ends it without the text; true with the field's text on OK.
bool AskLine(QWidget* parent, const QString& title, const QString& label, const QString& reject,
             int limit, QString& text)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto* field = new QLineEdit(text, &dialog);
    field->setMaxLength(limit);
    auto* buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(QDialogButtonBox::Ok);
    buttons->addButton(reject, QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* form = new QFormLayout(&dialog);
    form->addRow(label, field);
    form->addRow(buttons);
    CenterWindow(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    text = field->text();
    return true;
}

} // namespace

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
    CopyCut(path, capacity, chosen.constData());
    return true;
}

bool QtDesktop::AskString(QWidget* parent, const char* title, char* answer, std::size_t capacity)
{
    if (capacity == 0)
        return false;
    QString text = QString::fromLatin1(answer);
    if (!AskLine(parent, QString::fromLatin1(title), QString(), QStringLiteral("Cancel"),
                 static_cast<int>(capacity - 1), text))
        return false;
    CopyCut(answer, capacity, text.toLatin1().constData());
    return true;
}

bool QtDesktop::AskDragTarget(QWidget* parent, std::string& target)
{
    constexpr int DRAG_FIELD_LIMIT = 60;
    QString text = QString::fromLatin1(target.c_str());
    if (!AskLine(parent, QStringLiteral("Drag Someone"), QStringLiteral("Drag who:"),
                 QStringLiteral("Stop Dragging"), DRAG_FIELD_LIMIT, text))
        return false;
    target = text.toLatin1().toStdString();
    return true;
}

void QtDesktop::Beep()
{
    QApplication::beep();
}

std::string QtDesktop::PickFolder(QWidget* parent, const char* title)
{
    const QString folder = QFileDialog::getExistingDirectory(parent, QString::fromLatin1(title),
                                                             QString(), QFileDialog::ShowDirsOnly);
    return folder.toLocal8Bit().toStdString();
}

std::string QtDesktop::ChooseScriptFile(QWidget* parent, const std::string& folder, bool forEditing)
{
    return ChooseScriptFileDialog(parent, folder, forEditing);
}

std::string QtDesktop::AskRecordFile(QWidget* parent, const std::string& folder)
{
    return RecordScriptFileDialog(parent, folder);
}

std::string QtDesktop::CreateScript(QWidget* parent, const std::string& folder)
{
    return ScriptCreatorDialog(parent, folder);
}

std::string QtDesktop::ChooseSoundFile(QWidget* parent, const std::string& folder)
{
    const QString path = QFileDialog::getOpenFileName(
        parent, QStringLiteral("Choose a Sound"), QFile::decodeName(folder.c_str()),
        QStringLiteral("Wave Sounds (*.wav *.WAV *.Wav);;All Files (*)"));
    return QFile::encodeName(path).toStdString();
}

} // namespace steward
