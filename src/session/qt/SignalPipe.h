#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace steward {

// SIGTERM and SIGINT reach the loop through a pipe that the signal handler writes one byte
// into, so the program ends in order at the loop's next turn.
class SignalPipe : public QObject {
    Q_OBJECT
  public:
    explicit SignalPipe(std::function<void()> onSignal, QObject* parent = nullptr);
    ~SignalPipe() override;

    // False when the pipe could not be made; the signals then keep their default action.
    bool IsWatching() const { return notifier_ != nullptr; }

  private:
    void Drain();

    std::function<void()> onSignal_;
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace steward
