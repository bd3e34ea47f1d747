#pragma once

#include <QByteArray>

#include <map>

class Connection;
class Game;

// A command's arguments: everything behind the first word, with blanks trimmed.
using CommandHandler = void (*)(Game& game, Connection& connection, const QByteArray& args);

// Maps the first word of a line to its handler; words are compared in lower case.
class CommandTable {
  public:
    CommandTable();

    void Add(const char* word, CommandHandler handler) { handlers[word] = handler; }
    // Runs the line's command; false when the first word is unknown.
    bool Run(Game& game, Connection& connection, const QByteArray& line) const;

  private:
    std::map<QByteArray, CommandHandler> handlers;
};

void AddMoveCommands(CommandTable& table);
void AddTalkCommands(CommandTable& table);
void AddInfoCommands(CommandTable& table);
void AddBodyCommands(CommandTable& table);
