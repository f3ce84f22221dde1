// Memory aligned to 64 bytes.
#include <cstdint>
#include <cstdlib>

#include "vlqs/core.h"

namespace {
constexpr std::size_t kAlignment = 64;
}

void* vlqMalloc(Vlq64s bytes) {
    if (bytes < 1) return nullptr;
    const std::size_t size = static_cast<std::size_t>(bytes);
    // aligned_alloc wants a multiple of the alignment; a size that cannot be rounded is refused.
    const std::size_t rounded = (size + kAlignment - 1) & ~(kAlignment - 1);
    if (rounded > static_cast<std::size_t>(PTRDIFF_MAX)) return nullptr;
    return std::aligned_alloc(kAlignment, rounded);
}

void vlqFree(void* block) { std::free(block); }

void* vlqAlignPtr(void* ptr, Vlq32s alignBytes) {
    const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(ptr);
    const std::uintptr_t slack = (0 - address) & (static_cast<std::uintptr_t>(alignBytes) - 1);
    return static_cast<char*>(ptr) + slack;
}
