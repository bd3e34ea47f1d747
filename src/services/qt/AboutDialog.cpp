#include "services/qt/AboutDialog.h"

#include "base/qt/CenterWindow.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace steward {

namespace {

constexpr const char* ABOUT_LINES[] = {
    "Thornmere Steward",
    "Version 1.04",
    "A client for the text role-playing game Thornmere.",
    "Written by the Thornmere Steward developers.",
    "Free software: share it, change it, play well.",
};

} // namespace

AboutDialog::AboutDialog(QWidget* owner) : QDialog(owner)
{
    setWindowTitle(QStringLiteral("About Thornmere Steward"));
    auto* layout = new QVBoxLayout(this);
    auto* row = new QHBoxLayout;
    auto* icon = new QLabel(this);
    icon->setPixmap(QPixmap(QStringLiteral(":/AppIcon.png")));
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* lines = new QVBoxLayout;
    for (const char* line : ABOUT_LINES)
        lines->addWidget(new QLabel(QString::fromLatin1(line), this));
    row->addLayout(lines);
    layout->addLayout(row);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}

void ShowAboutDialog(QWidget* owner)
{
    AboutDialog dialog(owner);
    CenterWindow(dialog);
    dialog.exec();
}

} // namespace steward
