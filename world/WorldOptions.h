#pragma once

#include <QHostAddress>
#include <QString>
#include <QStringList>

struct WorldOptions {
    static constexpr quint16 DefaultPort = 34283;

    QHostAddress listenAddress = QHostAddress::LocalHost;
    quint16 port = DefaultPort;
    quint32 seed = 1;
    bool quiet = false;
    QString replayFile;
    int replayBlock = 0;
    int replayPauseMs = 0;
    QString recordFile;
    qint64 floodBytes = 0;
    QString floodTrigger; // when set, a connection's flood waits for this line from it
    bool stamp = false;   // print a monotonic timestamp for the flood's ends and each line in
    QString helpText;     // set when --help asked for the usage instead of a server
};

// Reads the command line (program name first); on a bad option returns false with a message.
bool ParseWorldOptions(const QStringList& arguments, WorldOptions& options, QString& error);
