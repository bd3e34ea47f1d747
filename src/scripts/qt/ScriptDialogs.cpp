#include "scripts/qt/ScriptDialogs.h"

#include "config/FileHandle.h"
#include "base/qt/CenterWindow.h"

#include <QButtonGroup>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWizard>
#include <QWizardPage>

namespace steward {

namespace {

// The name field of the creation sheet takes at most 128 characters.
constexpr int NEW_SCRIPT_NAME_LIMIT = 128;

QString FromPath(const std::string& path)
{
    return QString::fromLocal8Bit(path.c_str());
}

std::string ToPath(const QString& path)
{
    return path.toLocal8Bit().toStdString();
}

QLabel* Text(const char* text)
{
    auto* label = new QLabel(QString::fromLatin1(text));
    label->setWordWrap(true);
    return label;
}

// SCSTW1: which kind of script, command line (.Cmd) or script menu (.Stw).
class ScriptKindPage : public QWizardPage {
  public:
    ScriptKindPage()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(Text("Steward scripts (identified by their .Stw file extension) can "
                               "only be executed from the Script menu.  These scripts are "
                               "generally used for movement around the lands."));
        layout->addWidget(Text("Command line scripts (identified by their .Cmd file extension) "
                               "are invoked directly from the Steward's input line.  These "
                               "scripts can take replaceable parameters from the command line."));
        layout->addWidget(Text("How will this script be executed?"));
        commandLine_ = new QRadioButton(QStringLiteral("Command line"));
        auto* menu = new QRadioButton(QStringLiteral("Script menu"));
        commandLine_->setChecked(true);
        layout->addWidget(commandLine_);
        layout->addWidget(menu);
    }
    bool CommandLineScript() const { return commandLine_->isChecked(); }

  private:
    QRadioButton* commandLine_;
};

// SCSTW2: the name; Finish creates the empty file, unless one of that name exists.
class ScriptNamePage : public QWizardPage {
  public:
    ScriptNamePage(const std::string& folder, const ScriptKindPage& kind)
        : folder_(folder), kind_(kind)
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(Text(
            "Please enter the name of this new script (without a filename extension).  If this "
            "is a command line script, it is highly recommended that you keep the filename "
            "short, since you will have to type in this filename on the command line to "
            "execute it."));
        layout->addWidget(Text("What would you like to name this new script file?"));
        name_ = new QLineEdit;
        name_->setMaxLength(NEW_SCRIPT_NAME_LIMIT);
        layout->addWidget(name_);
    }

    bool validatePage() override
    {
        if (name_->text().isEmpty())
            return false;
        const char* extension = kind_.CommandLineScript() ? ".Cmd" : ".Stw";
        path_ = folder_ + "/" + ToPath(name_->text()) + extension;
        if (QFile::exists(FromPath(path_))) {
            QMessageBox::information(this, QStringLiteral("Create Error"),
                                     QStringLiteral("That file already exists...please choose "
                                                    "another name."));
            name_->clear();
            name_->setFocus();
            return false;
        }
        File(std::fopen(path_.c_str(), "wb"));
        return true;
    }
    const std::string& Path() const { return path_; }

  private:
    std::string folder_;
    const ScriptKindPage& kind_;
    QLineEdit* name_;
    std::string path_;
};

} // namespace

std::string ChooseScriptFileDialog(QWidget* parent, const std::string& folder, bool forEditing)
{
    const QString filter =
        forEditing ? QStringLiteral("Steward Script Files (*.Stw *.stw *.Cmd *.cmd);;Command Line "
                                    "Scripts (*.Cmd *.cmd);;Menu Scripts (*.Stw *.stw)")
                   : QStringLiteral("Steward Script File (*.Stw *.stw)");
    return ToPath(QFileDialog::getOpenFileName(parent, QStringLiteral("Choose a Script File"),
                                               FromPath(folder), filter));
}

std::string RecordScriptFileDialog(QWidget* parent, const std::string& folder)
{
    QFileDialog dialog(parent, QStringLiteral("Record Script File"),
                       FromPath(folder + "/New Script"),
                       QStringLiteral("Steward Script File (*.stw)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("stw"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return ToPath(dialog.selectedFiles().first());
}

std::string ScriptCreatorDialog(QWidget* parent, const std::string& folder)
{
    QWizard sheet(parent);
    sheet.setWindowTitle(QStringLiteral("Create Script Steward"));
    auto* kind = new ScriptKindPage;
    auto* name = new ScriptNamePage(folder, *kind);
    sheet.addPage(kind);
    sheet.addPage(name);
    CenterWindow(sheet);
    if (sheet.exec() != QDialog::Accepted)
        return {};
    return name->Path();
}

} // namespace steward
