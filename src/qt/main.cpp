#include "base/Trace.h"
#include "base/qt/ProgramFiles.h"
#include "config/ConfigFiles.h"
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

// The diagnostic options first, then the connection string as it stands.
steward::ClientOptions ReadCommandLine(const QStringList& arguments)
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
        } else {
            break;
        }
    }
    options.ConnectionString = arguments.mid(i).join(' ').toLatin1().toStdString();
    return options;
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
    steward::ClientOptions options = ReadCommandLine(QCoreApplication::arguments());
    if (const char* problem = steward::CheckNameCharacters(options.Character.c_str());
        problem && !options.Character.empty()) {
        std::fprintf(stderr, "thornmere-steward: --character: %s\n", problem);
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
