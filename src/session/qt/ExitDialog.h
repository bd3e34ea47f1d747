#pragma once

class QWidget;

namespace steward {

// The question before leaving: true only when the player chose to leave the game.
bool AskExit(QWidget* parent);

} // namespace steward
