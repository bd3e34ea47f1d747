#include "highlights/qt/QtSoundPlayer.h"

#include "session/qt/ProgramFiles.h"

#include <QAudioDevice>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

// The compiled-in files sit in the static ui library, whose resource initialiser nothing else
// references, so it is called here by name; it must be called outside any namespace.
static void LoadResources()
{
    static const bool loaded = [] {
        Q_INIT_RESOURCE(resources);
        return true;
    }();
    (void)loaded;
}

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

void InstallDefaultSounds(const QString& folder)
{
    LoadResources();
    InstallMissingResources(QStringLiteral(":/sounds"), folder);
}

} // namespace steward
