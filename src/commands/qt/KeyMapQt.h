#pragma once

#include "commands/KeyModifiers.h"

#include <Qt>

namespace steward {

struct TranslatedKey {
    int VirtualKey = 0; // 0 for a key the filter does not know
    KeyModifiers Modifiers = 0;
};

// Maps a Qt key to its virtual key and KeyModifiers. Qt cannot read the NumLock toggle, so a
// keypad digit or "." sets numLockOn, a keypad navigation key clears it, and the keypad's
// operators and every other key leave it as it was.
TranslatedKey TranslateKey(int qtKey, Qt::KeyboardModifiers modifiers, bool& numLockOn);

} // namespace steward
