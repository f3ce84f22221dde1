// Laying out a block: rounding, alignment, the size limit, and the cursor that carves arrays.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <type_traits>

#include "vlqs/types.h"

namespace vlq {

constexpr Vlq64s roundUp(Vlq64s bytes, Vlq64s multiple) {
    return (bytes + multiple - 1) & -multiple;
}
constexpr Vlq64s roundDown(Vlq64s bytes, Vlq64s multiple) { return bytes & -multiple; }

// First address at or after p on a boundary of `alignment`, a power of two.
template <class T>
inline T* alignUp(T* p, std::size_t alignment) {
    const auto slack = (0 - reinterpret_cast<std::uintptr_t>(p)) & (alignment - 1);
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + slack);
}

// Sizes are reported in 32 bits. A state of 2 GiB or more cannot be built: its size query returns
// the largest number, and Init refuses it.
inline constexpr Vlq64s kSizeLimit = std::numeric_limits<Vlq32s>::max();
constexpr bool fitsState(Vlq64s bytes) { return bytes < kSizeLimit; }
constexpr Vlq32s reportedSize(Vlq64s bytes) {
    return static_cast<Vlq32s>(fitsState(bytes) ? bytes : kSizeLimit);
}

// Carves a block from front to back. Debug builds assert that everything stays inside the size
// that was reported for the block.
class Cursor {
public:
    Cursor(void* block, [[maybe_unused]] Vlq64s bytes) : next_(static_cast<char*>(block)) {
#if !defined(NDEBUG)
        end_ = next_ + bytes;
#endif
    }
    // `count` elements, as they are found.
    template <class T>
    T* take(Vlq64s count, std::size_t alignment = 1) {
        char* start = alignUp(next_, alignment);
        next_ = start + count * static_cast<Vlq64s>(sizeof(T));
#if !defined(NDEBUG)
        assert(next_ <= end_);
#endif
        return reinterpret_cast<T*>(start);
    }
    // The same, for an array whose share of the block is stated in bytes.
    template <class T>
    T* takeBytes(Vlq64s bytes, std::size_t alignment = 1) {
        return reinterpret_cast<T*>(take<char>(bytes, alignment));
    }
    // A header with all fields zero.
    template <class Header>
    Header* takeHeader(std::size_t alignment) {
        return ::new (static_cast<void*>(take<Header>(1, alignment))) Header{};
    }

private:
    char* next_;
#if !defined(NDEBUG)
    char* end_;
#endif
};

}  // namespace vlq
