#include "highlights/qt/QtSoundPlayer.h"

#include <QAudioDevice>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace steward {

QtSoundPlayer::QtSoundPlayer()
{
    if (!QMediaDevices::audioOutputs().isEmpty())
        effect_ = std::make_unique<QSoundEffect>();
}

QtSoundPlayer::~QtSoundPlayer() = default;

bool QtSoundPlayer::PlayFile(const char* path)
{
    const QString file = QFile::decodeName(path);
    if (!QFileInfo(file).isFile())
        return false;
    if (!effect_)
        return true;
    effect_->stop();
    effect_->setSource(QUrl::fromLocalFile(file));
    effect_->play();
    return true;
}

} // namespace steward
