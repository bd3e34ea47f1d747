#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace steward {

// SIGTERM and SIGINT reach the loop through a pipe that the signal handler writes one byte
// into, so the program ends in order at the loop's next turn; without a pipe the signals keep
// their default action.
class SignalPipe : public QObject {
    Q_OBJECT
  public:
    explicit SignalPipe(std::function<void()> onSignal, QObject* parent = nullptr);
    ~SignalPipe() override;

  private:
    void Drain();

    std::function<void()> onSignal_;
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace steward
