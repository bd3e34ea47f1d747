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

// The Qt key to translate for a key event: a digit key of the main row stands for its digit
// whatever Shift or the layout make of it, found by its physical key (the native scan code of
// X11 and Wayland, the virtual key of Windows); every other key is the key Qt reports.
int PhysicalKey(int qtKey, Qt::KeyboardModifiers modifiers, quint32 nativeScanCode,
                quint32 nativeVirtualKey);

} // namespace steward
