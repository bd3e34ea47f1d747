#include "analysis/qt/QtSpeech.h"

#include "base/Trace.h"

#include <QTextToSpeech>

namespace steward {

QtSpeech::QtSpeech() = default;

QtSpeech::~QtSpeech() = default;

// An engine may pass through its error state for one text and speak the next; one that is
// still in it when the next text is due speaks no more in this run.
bool QtSpeech::Available()
{
    if (!tried_) {
        tried_ = true;
        if (!QTextToSpeech::availableEngines().isEmpty()) {
            engine_ = std::make_unique<QTextToSpeech>();
            connect(engine_.get(), &QTextToSpeech::stateChanged, this,
                    [this](QTextToSpeech::State state) {
                        if (state == QTextToSpeech::Error)
                            Trace("SPEAK: error: %s\n", qPrintable(engine_->errorString()));
                        if (speaking_ && state != QTextToSpeech::Speaking)
                            Finish();
                    });
        }
    }
    if (!engine_ || broken_)
        return false;
    if (engine_->state() == QTextToSpeech::Error) {
        broken_ = true;
        Later(failed_);
        return false;
    }
    return true;
}

void QtSpeech::Speak(const char* text)
{
    speaking_ = true;
    if (!Available()) {
        Finish();
        return;
    }
    Trace("SPEAK: %s\n", text);
    engine_->say(QString::fromLatin1(text));
}

void QtSpeech::Finish()
{
    speaking_ = false;
    Later(finished_);
}

// The next text starts from the loop, never from inside the engine's own signal.
void QtSpeech::Later(const std::function<void()>& call)
{
    QMetaObject::invokeMethod(
        this,
        [&call] {
            if (call)
                call();
        },
        Qt::QueuedConnection);
}

} // namespace steward
