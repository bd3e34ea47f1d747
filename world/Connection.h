#pragma once

#include "LineReader.h"
#include "Player.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTcpSocket>

class QFile;

// One TCP connection: reads lines, queues output within a bound, and holds the player.
class Connection : public QObject {
    Q_OBJECT
  public:
    // A player who lets this much output pile up unread is disconnected.
    static constexpr qint64 MaxQueuedOutput = 1 << 20;
    static constexpr qint64 ReadChunk = 4096;

    enum class Stage { AskingName, Playing, Passive };

    Connection(QTcpSocket* socket, int number, QFile* recording, QObject* parent);
    ~Connection() override;

    Player player;
    Stage stage = Stage::AskingName;

    void Send(const QByteArray& bytes);
    // Line of game text with CR LF behind it.
    void SendLine(const QByteArray& text) { Send(text + "\r\n"); }
    // Ends an answer: a bare ">" or, in status mode, a full status record.
    void SendPrompt();
    // Something happened on its own: shown on a fresh line and followed by a new prompt.
    void Notify(const QByteArray& text);
    void Close(const char* reason);

    qint64 QueuedOutput() const;
    // True when the player left by quitting rather than by losing the connection.
    bool ClosedOnPurpose() const { return closedOnPurpose; }
    QTcpSocket* Socket() const { return socket; }

  signals:
    void LineReceived(Connection* connection, const QByteArray& line);
    void Closed(Connection* connection);
    void Drained(Connection* connection);

  private:
    void ReadInput();
    void Finish();

    QPointer<QTcpSocket> socket;
    LineReader reader;
    QFile* recording;
    int number;
    QByteArray peer;
    QElapsedTimer age;
    qint64 bytesIn = 0;
    qint64 bytesOut = 0;
    bool promptPending = false;
    const char* closeReason = "dropped";
    bool finished = false;
    bool closedOnPurpose = false;
};
