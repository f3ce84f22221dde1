// The processor's string instructions on 8-byte words. They take some ten nanoseconds to start and
// then move whole cache lines, on recent processors without reading the lines that they write.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vlq {

// The regions do not overlap.
inline void copyWords(void* dst, const void* src, std::size_t count) {
    asm volatile("rep movsq" : "+D"(dst), "+S"(src), "+c"(count) : : "memory");
}

inline void fillWords(void* dst, std::uint64_t word, std::size_t count) {
    asm volatile("rep stosq" : "+D"(dst), "+c"(count) : "a"(word) : "memory");
}

}  // namespace vlq
