// Bit streams one bit at a time, most significant bit of a byte first.
#pragma once

#include <cstdint>
#include <vector>

namespace vlqtest {

inline int bitAt(const std::vector<std::uint8_t>& bytes, std::int64_t bit) {
    return bytes[static_cast<std::size_t>(bit / 8)] >> (7 - bit % 8) & 1;
}
inline void putBit(std::vector<std::uint8_t>& bytes, std::int64_t bit, int value) {
    auto& byte = bytes[static_cast<std::size_t>(bit / 8)];
    const int mask = 0x80 >> (bit % 8);
    byte = static_cast<std::uint8_t>(value ? byte | mask : byte & ~mask);
}

// Returns the bit offset of the end; the rest of the last byte is cleared.
inline std::int64_t packBitsRef(const std::vector<std::uint32_t>& values,
                                const std::vector<std::int32_t>& widths,
                                std::vector<std::uint8_t>& dst, std::int64_t offset) {
    std::int64_t bit = offset;
    for (std::size_t i = 0; i < values.size(); ++i) {
        int width = widths[i];
        if (width < 0) width = 0;
        if (width > 32) width = 32;
        for (int k = width - 1; k >= 0; --k) putBit(dst, bit++, values[i] >> k & 1);
    }
    if (bit != offset) {
        for (std::int64_t rest = bit; rest % 8 != 0; ++rest) putBit(dst, rest, 0);
    }
    return bit;
}

}  // namespace vlqtest
