#include "base/ColorCode.h"

namespace steward {

char* AppendColorOn(char* out, unsigned char color)
{
    if ((color >> 4) != 0)
        *out++ = static_cast<char>(COLOR_BACKGROUND + (color >> 4));
    *out++ = static_cast<char>(COLOR_FOREGROUND + (color & 0x0F));
    return out;
}

char* AppendColorOff(char* out, unsigned char color)
{
    if ((color >> 4) != 0)
        *out++ = static_cast<char>(COLOR_BACKGROUND_OFF);
    *out++ = static_cast<char>(COLOR_FOREGROUND_OFF);
    return out;
}

} // namespace steward
