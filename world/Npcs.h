#pragma once

#include <QObject>
#include <QTimer>

class Game;

// Townsfolk who come and go on their own, driven by the game's seeded random generator.
class Npcs : public QObject {
    Q_OBJECT
  public:
    Npcs(Game& game, QObject* parent);

  private:
    void Act();
    void ScheduleNext();

    Game& game;
    QTimer timer;
};
