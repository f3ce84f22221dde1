// Tags: the first field of a state names its kind, and every call compares it.
#pragma once

#include "vlqs/types.h"

namespace vlq {

// Four characters as the 32-bit value that spells them from the high byte down. Kinds that are
// numbered rather than named use their number.
constexpr Vlq32u tag(const char (&text)[5]) {
    Vlq32u value = 0;
    for (int i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(text[i]);
    return value;
}

// The tags that one call accepts.
template <Vlq32u... accepted>
constexpr bool isOneOf(Vlq32u value) {
    return ((value == accepted) || ...);
}

}  // namespace vlq
