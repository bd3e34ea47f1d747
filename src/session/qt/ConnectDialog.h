#pragma once

#include <QDialog>

#include <string>

class QLineEdit;

namespace steward {

// How the player left the connect dialog.
enum class ConnectChoice {
    Connect,
    Offline,
    Cancel,
};

// Lengths of the dialog's two fields.
constexpr int HOST_FIELD_LIMIT = 254;
constexpr int PORT_FIELD_LIMIT = 31;

// GET_HOST: the host and port to connect to, the offline choice, or the end of the program.
class ConnectDialog : public QDialog {
    Q_OBJECT
  public:
    ConnectDialog(const std::string& host, int port, QWidget* parent = nullptr);

    ConnectChoice Choice() const { return choice_; }
    // The fields as they stand; the port as its leading decimal digits, 0 without them.
    std::string Host() const;
    int Port() const;

    QLineEdit* HostField() const { return host_; }
    QLineEdit* PortField() const { return port_; }

  private:
    void Finish(ConnectChoice choice);

    QLineEdit* host_;
    QLineEdit* port_;
    ConnectChoice choice_ = ConnectChoice::Cancel;
};

// Shows the dialog centred on the screen; host and port come back as the player left them.
ConnectChoice ShowConnectDialog(QWidget* parent, std::string& host, int& port);

} // namespace steward
