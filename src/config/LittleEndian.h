#pragma once

#include <cstddef>
#include <cstdint>

namespace steward {

// Stored records keep their little-endian layouts whatever the host's byte order.
inline void PutU16(std::uint8_t* at, std::uint16_t value)
{
    at[0] = static_cast<std::uint8_t>(value);
    at[1] = static_cast<std::uint8_t>(value >> 8);
}

inline void PutU32(std::uint8_t* at, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        at[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

inline std::uint16_t GetU16(const std::uint8_t* at)
{
    return static_cast<std::uint16_t>(at[0] | (at[1] << 8));
}

inline std::uint32_t GetU32(const std::uint8_t* at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= static_cast<std::uint32_t>(at[i]) << (8 * i);
    return value;
}

inline void PutI32(std::uint8_t* at, std::int32_t value)
{
    PutU32(at, static_cast<std::uint32_t>(value));
}
inline std::int32_t GetI32(const std::uint8_t* at)
{
    return static_cast<std::int32_t>(GetU32(at));
}

} // namespace steward
