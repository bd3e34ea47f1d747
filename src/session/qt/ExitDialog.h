#pragma once

class QWidget;

namespace steward {

// EXIT_DIALOG: true only when the player chose to leave the game.
bool AskExit(QWidget* parent);

} // namespace steward
