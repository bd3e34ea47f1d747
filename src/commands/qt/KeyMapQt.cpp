#include "commands/qt/KeyMapQt.h"

#include <cstddef>

namespace steward {

namespace {

struct KeyPair {
    int Qt;
    int Virtual;
};

// The navigation block; on the keypad the same keys mean NumLock is off.
constexpr KeyPair NAVIGATION_KEYS[] = {
    {Qt::Key_Insert, VK_INSERT}, {Qt::Key_Delete, VK_DELETE}, {Qt::Key_Home, VK_HOME},
    {Qt::Key_End, VK_END},       {Qt::Key_PageUp, VK_PRIOR},  {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_Left, VK_LEFT},     {Qt::Key_Right, VK_RIGHT},   {Qt::Key_Up, VK_UP},
    {Qt::Key_Down, VK_DOWN},
};

constexpr KeyPair KEYPAD_OPERATORS[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY},
    {Qt::Key_Plus, VK_ADD},
    {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Slash, VK_DIVIDE},
};

constexpr KeyPair PLAIN_KEYS[] = {
    {Qt::Key_Return, VK_RETURN},   {Qt::Key_Tab, VK_TAB},  {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Escape, VK_ESCAPE},   {Qt::Key_Alt, VK_MENU}, {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},
};

template <std::size_t N> int Find(const KeyPair (&pairs)[N], int qtKey)
{
    for (const KeyPair& pair : pairs) {
        if (pair.Qt == qtKey)
            return pair.Virtual;
    }
    return 0;
}

// A key of the numeric keypad, which Qt marks with KeypadModifier.
int KeypadKey(int qtKey, bool& numLockOn)
{
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) {
        numLockOn = true;
        return VK_NUMPAD0 + (qtKey - Qt::Key_0);
    }
    if (qtKey == Qt::Key_Period || qtKey == Qt::Key_Comma) {
        numLockOn = true;
        return VK_DECIMAL;
    }
    if (int key = Find(KEYPAD_OPERATORS, qtKey))
        return key;
    int navigation = qtKey == Qt::Key_Clear ? VK_CLEAR : Find(NAVIGATION_KEYS, qtKey);
    if (navigation)
        numLockOn = false;
    return navigation;
}

#ifdef Q_OS_WIN
// Windows names the main row's digit keys by their digits, whatever the layout.
int MainRowDigit(quint32, quint32 virtualKey)
{
    return virtualKey >= '0' && virtualKey <= '9' ? static_cast<int>(virtualKey - '0') : -1;
}
#else
// XKB key codes of the main row, "1" to "9" and then "0", are the same on every layout.
constexpr quint32 MAIN_ROW_FIRST_CODE = 10;
constexpr quint32 MAIN_ROW_LAST_CODE = 19;

int MainRowDigit(quint32 scanCode, quint32)
{
    if (scanCode < MAIN_ROW_FIRST_CODE || scanCode > MAIN_ROW_LAST_CODE)
        return -1;
    return static_cast<int>(scanCode - MAIN_ROW_FIRST_CODE + 1) % 10;
}
#endif

} // namespace

int PhysicalKey(int qtKey, Qt::KeyboardModifiers modifiers, quint32 nativeScanCode,
                quint32 nativeVirtualKey)
{
    if (modifiers & Qt::KeypadModifier)
        return qtKey;
    const int digit = MainRowDigit(nativeScanCode, nativeVirtualKey);
    return digit < 0 ? qtKey : Qt::Key_0 + digit;
}

TranslatedKey TranslateKey(int qtKey, Qt::KeyboardModifiers modifiers, bool& numLockOn)
{
    TranslatedKey key;
    if (qtKey == Qt::Key_Enter) {
        key.VirtualKey = VK_RETURN;
        key.Modifiers |= KEY_EXTENDED;
    } else if (modifiers & Qt::KeypadModifier) {
        key.VirtualKey = KeypadKey(qtKey, numLockOn);
    } else if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) {
        key.VirtualKey = 'A' + (qtKey - Qt::Key_A);
    } else if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) {
        key.VirtualKey = '0' + (qtKey - Qt::Key_0);
    } else if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12) {
        key.VirtualKey = VK_F1 + (qtKey - Qt::Key_F1);
    } else if (int navigation = Find(NAVIGATION_KEYS, qtKey)) {
        key.VirtualKey = navigation;
        key.Modifiers |= KEY_EXTENDED;
    } else if (qtKey == Qt::Key_Clear) {
        key.VirtualKey = KeypadKey(qtKey, numLockOn);
    } else {
        key.VirtualKey = Find(PLAIN_KEYS, qtKey);
    }
    if (modifiers & Qt::AltModifier)
        key.Modifiers |= KEY_ALT;
    if (modifiers & Qt::ShiftModifier)
        key.Modifiers |= KEY_SHIFT;
    if (modifiers & Qt::ControlModifier)
        key.Modifiers |= KEY_CTRL;
    if (numLockOn)
        key.Modifiers |= KEY_NUMLOCK;
    return key;
}

} // namespace steward
