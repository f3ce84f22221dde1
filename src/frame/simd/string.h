// The processor's string instructions on 8-byte words. They start slowly (some ten nanoseconds) and
// then move whole cache lines, on all processors of the last decades; on a recent one they do so
// without reading the lines that they write.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vlq {

// The regions are apart.
inline void copyWords(void* dst, const void* src, std::size_t count) {
    asm volatile("rep movsq" : "+D"(dst), "+S"(src), "+c"(count) : : "memory");
}

inline void fillWords(void* dst, std::uint64_t word, std::size_t count) {
    asm volatile("rep stosq" : "+D"(dst), "+c"(count) : "a"(word) : "memory");
}

}  // namespace vlq
