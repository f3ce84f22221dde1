// A pointer inside one block of memory, kept as a 32-bit offset.
#pragma once

#include <cstdint>

namespace vlq {

// The offset counts from the field itself; 0 is null. So the layout of a state does not depend on
// the width of a pointer, and no state exceeds 2 GiB.
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

}  // namespace vlq
