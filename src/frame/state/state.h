// The record scheme: one block that holds a record and its tables, referred to by relative
// pointers; memory that the caller brought, aligned up; work buffers, the caller's or our own.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "vlqs/frame.h"
#include "vlqs/types.h"

namespace vlq {

// A reference inside one block: a 32-bit offset from the field itself, 0 for null. It keeps the
// layout of a record independent of the width of a pointer.
template <class T>
class RelPtr {
public:
    RelPtr() = default;
    RelPtr(const RelPtr&) = delete;
    RelPtr& operator=(const RelPtr& other) { return *this = other.get(); }
    RelPtr& operator=(T* target) {
        offset_ = target
                      ? static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(target) - here())
                      : 0;
        return *this;
    }
    T* get() const { return offset_ ? reinterpret_cast<T*>(here() + offset_) : nullptr; }
    operator T*() const { return get(); }
    T* operator->() const { return get(); }

private:
    std::intptr_t here() const { return reinterpret_cast<std::intptr_t>(this); }
    std::int32_t offset_;
};

// First address at or after p on a boundary of `alignment`, a power of two.
template <class T>
inline T* alignUp(T* p, std::size_t alignment) {
    const auto slack = (0 - reinterpret_cast<std::uintptr_t>(p)) & (alignment - 1);
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + slack);
}

constexpr Vlq64s roundUp(Vlq64s bytes, Vlq64s multiple) {
    return (bytes + multiple - 1) & -multiple;
}
constexpr Vlq64s roundDown(Vlq64s bytes, Vlq64s multiple) { return bytes & -multiple; }

// Lengths are 32-bit: a larger record cannot be built, and its size query answers the greatest
// number.
constexpr Vlq64s kLargestRecord = std::numeric_limits<Vlq32s>::max();
constexpr bool fitsRecord(Vlq64s bytes) { return bytes < kLargestRecord; }
constexpr Vlq32s toldSize(Vlq64s bytes) {
    return static_cast<Vlq32s>(bytes < kLargestRecord ? bytes : kLargestRecord);
}

// Carves a block from front to back. The size of the block is the size query's answer; debug
// builds assert that the tables stay inside it.
class Cursor {
public:
    Cursor(void* block, [[maybe_unused]] Vlq64s bytes) : next_(static_cast<char*>(block)) {
#if !defined(NDEBUG)
        end_ = next_ + bytes;
#endif
    }
    template <class T>
    T* take(Vlq64s count, std::size_t alignment = 1) {
        char* start = alignUp(next_, alignment);
        next_ = start + count * static_cast<Vlq64s>(sizeof(T));
#if !defined(NDEBUG)
        assert(next_ <= end_);
#endif
        return reinterpret_cast<T*>(start);
    }

private:
    char* next_;
#if !defined(NDEBUG)
    char* end_;
#endif
};

// The work buffer of one call: the caller's, aligned up to 64 bytes, or one allocated for the call.
class WorkBuffer {
public:
    WorkBuffer(Vlq8u* callers, Vlq32s bytes) {
        if (bytes < 1) return;
        if (callers)
            data_ = alignUp(callers, 64);
        else if (owned_ = vlqsMalloc_8u(bytes); owned_)
            data_ = owned_;
        else
            refused_ = true;
    }
    ~WorkBuffer() {
        if (owned_) vlqsFree(owned_);
    }
    WorkBuffer(const WorkBuffer&) = delete;
    WorkBuffer& operator=(const WorkBuffer&) = delete;

    bool refused() const { return refused_; }
    Vlq8u* data() const { return data_; }

private:
    Vlq8u* data_ = nullptr;
    Vlq8u* owned_ = nullptr;
    bool refused_ = false;
};

}  // namespace vlq
