#include "base/qt/ProgramFiles.h"

#include "base/qt/ProgramResources.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace steward {

namespace {

constexpr char VERSION_NOTES[] = "Version Notes.Txt";
constexpr QFile::Permissions READ_ALL_WRITE_OWNER =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;

} // namespace

void InstallProgramFiles(const std::string& folder)
{
    const QString base = QString::fromLocal8Bit(folder.c_str());
    const QString notes = QDir(base).filePath(QString::fromLatin1(VERSION_NOTES));
    LoadProgramResources();
    InstallDefaultSounds(base);
    if (!QFile::exists(notes) && QFile::copy(QStringLiteral(":/") + VERSION_NOTES, notes))
        QFile::setPermissions(notes, READ_ALL_WRITE_OWNER);
    InstallMissingResources(QStringLiteral(":/scripts"), base);
}

void InstallDefaultSounds(const QString& folder)
{
    LoadProgramResources();
    InstallMissingResources(QStringLiteral(":/sounds"), folder);
}

void InstallMissingResources(const QString& resourceFolder, const QString& folder)
{
    const QDir resources(resourceFolder);
    for (const QString& name : resources.entryList(QDir::Files)) {
        const QString target = QDir(folder).filePath(name);
        if (QFileInfo::exists(target))
            continue;
        QFile::copy(resources.filePath(name), target);
        QFile::setPermissions(target, READ_ALL_WRITE_OWNER);
    }
}

} // namespace steward
