#pragma once

#include <QObject>

namespace steward {

class CommandLineEdit;
class KeyFilter;

// KeyFilter for the whole application: installed on the QApplication, it sees every key press
// before any widget, shortcut or menu, and acts once per press, on the focus widget's event.
class KeyFilterQt : public QObject {
    Q_OBJECT
  public:
    KeyFilterQt(KeyFilter& filter, CommandLineEdit& line, QObject* parent = nullptr);

    // A profile that honours NumLock starts with the keypad in macro mode.
    void SetNumLockOff() { numLockOn_ = false; }
    bool NumLockOn() const { return numLockOn_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    KeyFilter& filter_;
    CommandLineEdit& line_;
    bool numLockOn_ = false;
};

} // namespace steward
