#include "session/qt/ProgramFiles.h"

#include "highlights/qt/QtSoundPlayer.h"

#include <QDir>
#include <QFile>

namespace steward {

namespace {

constexpr char VERSION_NOTES[] = "Version Notes.Txt";

} // namespace

void InstallProgramFiles(const std::string& folder)
{
    const QString base = QString::fromLocal8Bit(folder.c_str());
    const QString notes = QDir(base).filePath(QString::fromLatin1(VERSION_NOTES));
    if (!QFile::exists(notes) && QFile::copy(QStringLiteral(":/") + VERSION_NOTES, notes))
        QFile::setPermissions(notes, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                         QFile::ReadOther);
    InstallDefaultSounds(base);
}

} // namespace steward
