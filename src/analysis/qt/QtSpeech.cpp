#include "analysis/qt/QtSpeech.h"

#include "base/Trace.h"

#include <QTextToSpeech>

namespace steward {

QtSpeech::QtSpeech() = default;

QtSpeech::~QtSpeech() = default;

bool QtSpeech::Available()
{
    if (!tried_) {
        tried_ = true;
        if (!QTextToSpeech::availableEngines().isEmpty()) {
            engine_ = std::make_unique<QTextToSpeech>();
            connect(engine_.get(), &QTextToSpeech::stateChanged, this,
                    [this](QTextToSpeech::State state) {
                        if (speaking_ && state != QTextToSpeech::Speaking)
                            Finish();
                    });
        }
    }
    if (engine_ && engine_->state() == QTextToSpeech::Error) {
        Trace("Speech engine \"%s\" failed: %s\n", qPrintable(engine_->engine()),
              qPrintable(engine_->errorString()));
        engine_.reset();
    }
    return engine_ != nullptr;
}

void QtSpeech::Speak(const char* text)
{
    speaking_ = true;
    if (!Available()) {
        Finish();
        return;
    }
    engine_->say(QString::fromLatin1(text));
}

// The next text starts from the loop, never from inside the engine's own signal.
void QtSpeech::Finish()
{
    speaking_ = false;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (finished_)
                finished_();
        },
        Qt::QueuedConnection);
}

} // namespace steward
