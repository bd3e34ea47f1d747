#include "base/Trace.h"
#include "base/qt/ProgramFiles.h"
#include "config/ConfigFiles.h"
#include "connection/ReplayFile.h"
#include "session/CharacterList.h"
#include "session/qt/Client.h"
#include "session/qt/Desktop.h"
#include "session/qt/SignalPipe.h"

#include <QApplication>
#include <QDir>
#include <QLockFile>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr char LOCK_FILE_NAME[] = "Thornmere Steward.lock";
constexpr char READ_ONLY_TEXT[] =
    "\r\n\r\n*** The data folder %s cannot be written: this session's settings, macros, "
    "highlights and logs will not be saved.\r\n\r\n";

// The diagnostic options first, then the connection string as it stands; speed takes the text
// of --speed, which main reads.
steward::ClientOptions ReadCommandLine(const QStringList& arguments, QString& speed)
{
    steward::ClientOptions options;
    int i = 1;
    for (; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--trace")) {
            steward::SetTraceEnabled(true);
        } else if (arguments[i] == QLatin1String("--character") && i + 1 < arguments.size()) {
            options.Character = arguments[++i].toLocal8Bit().toStdString();
        } else if (arguments[i] == QLatin1String("--packet-dump") && i + 1 < arguments.size()) {
            options.PacketDumpPath = arguments[++i].toLocal8Bit().toStdString();
        } else if (arguments[i] == QLatin1String("--replay") && i + 1 < arguments.size()) {
            options.ReplayPath = arguments[++i].toLocal8Bit().toStdString();
        } else if (arguments[i] == QLatin1String("--speed") && i + 1 < arguments.size()) {
            speed = arguments[++i];
        } else {
            break;
        }
    }
    options.ConnectionString = arguments.mid(i).join(' ').toLatin1().toStdString();
    return options;
}

// Reads the speed into the options; the reason when the replay's options do not go together.
const char* CheckReplayOptions(steward::ClientOptions& options, const QString& speed)
{
    if (options.ReplayPath.empty())
        return speed.isEmpty() ? nullptr : "--speed goes with --replay FILE";
    if (!options.ConnectionString.empty())
        return "--replay plays without a connection: give no connection string with it";
    if (!speed.isEmpty() &&
        !steward::ReadReplaySpeed(speed.toLatin1().constData(), options.ReplaySpeed))
        return "--speed: give a number of 0 or more, such as 2, 0.5 or 0 (as fast as it goes)";
    return nullptr;
}

std::string ProgramFolder()
{
    const char* xdg = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    const QByteArray executable = QCoreApplication::applicationDirPath().toLocal8Bit();
    return steward::FindProgramFolder(executable.constData(), xdg ? xdg : "", home ? home : "");
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QString speed;
    steward::ClientOptions options = ReadCommandLine(QCoreApplication::arguments(), speed);
    if (const char* problem = steward::CheckNameCharacters(options.Character.c_str());
        problem && !options.Character.empty()) {
        std::fprintf(stderr, "thornmere-steward: --character: %s\n", problem);
        return 2;
    }
    if (const char* problem = CheckReplayOptions(options, speed)) {
        std::fprintf(stderr, "thornmere-steward: %s\n", problem);
        return 2;
    }
    const std::string folder = ProgramFolder();

    QLockFile lock(QDir(QString::fromLocal8Bit(folder.c_str())).filePath(LOCK_FILE_NAME));
    lock.setStaleLockTime(0);
    // Another client holds the folder: it ends here; a folder that cannot be written still plays.
    const bool locked = lock.tryLock(0);
    if (!locked && lock.error() == QLockFile::LockFailedError)
        return 0;

    options.Files = steward::MakeConfigFiles(folder);
    steward::InstallProgramFiles(folder);
    steward::QtDesktop desktop;
    steward::Client client(std::move(options), desktop);
    // A signal during the start waits in the pipe until the loop runs.
    steward::SignalPipe stopSignals([&client] { client.Terminate(); });
    if (!client.Start() || client.Closed())
        return 0;
    if (!locked) {
        char text[sizeof READ_ONLY_TEXT + 4096];
        std::snprintf(text, sizeof text, READ_ONLY_TEXT, folder.c_str());
        client.PrintToGameWindow(text);
    }
    const int code = app.exec();
    client.Finish();
    return code;
}
