#include "session/qt/ConnectDialog.h"

#include "base/qt/CenterWindow.h"

#include "connection/ConnectionString.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace steward {

ConnectDialog::ConnectDialog(const std::string& host, int port, QWidget* parent)
    : QDialog(parent), host_(new QLineEdit(this)), port_(new QLineEdit(this))
{
    setWindowTitle(QStringLiteral("Thornmere"));
    setWindowIcon(QIcon(QStringLiteral(":/AppIcon.png")));

    auto* title = new QLabel(this);
    title->setPixmap(QPixmap(QStringLiteral(":/GameTitle.png")));
    title->setAlignment(Qt::AlignCenter);

    host_->setMaxLength(HOST_FIELD_LIMIT);
    host_->setText(QString::fromLatin1(host.c_str()));
    port_->setMaxLength(PORT_FIELD_LIMIT);
    port_->setText(QString::number(port));

    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("Host to Connect To:"), host_);
    fields->addRow(QStringLiteral("Port:"), port_);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* connectButton =
        buttons->addButton(QStringLiteral("Connect"), QDialogButtonBox::AcceptRole);
    QPushButton* offline =
        buttons->addButton(QStringLiteral("Run in OFFLINE Mode"), QDialogButtonBox::ActionRole);
    QPushButton* cancel =
        buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    connectButton->setDefault(true);
    connect(connectButton, &QPushButton::clicked, this, [this] { Finish(ConnectChoice::Connect); });
    connect(offline, &QPushButton::clicked, this, [this] { Finish(ConnectChoice::Offline); });
    connect(cancel, &QPushButton::clicked, this, [this] { Finish(ConnectChoice::Cancel); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(fields);
    layout->addWidget(buttons);
}

std::string ConnectDialog::Host() const
{
    return host_->text().toLatin1().toStdString();
}

int ConnectDialog::Port() const
{
    return static_cast<int>(ReadPortNumber(port_->text().toLatin1().constData()));
}

void ConnectDialog::Finish(ConnectChoice choice)
{
    choice_ = choice;
    if (choice == ConnectChoice::Cancel)
        reject();
    else
        accept();
}

ConnectChoice ShowConnectDialog(QWidget* parent, std::string& host, int& port)
{
    ConnectDialog dialog(host, port, parent);
    CenterWindow(dialog);
    dialog.exec();
    host = dialog.Host();
    port = dialog.Port();
    return dialog.Choice();
}

} // namespace steward
