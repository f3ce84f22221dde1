// Vector memory, by way of the core library.
#include "vlqs/core.h"
#include "vlqs/frame.h"

namespace {

template <class T>
T* allocate(Vlq32s len) {
    if (len < 1) return nullptr;
    // The product wraps in 32 bits, as the manual says; unsigned, so the wrap is defined.
    const Vlq32u bytes = static_cast<Vlq32u>(len) * static_cast<Vlq32u>(sizeof(T));
    return static_cast<T*>(vlqMalloc(static_cast<Vlq32s>(bytes)));
}

}  // namespace

Vlq8u* vlq::vlqsMalloc_8u(Vlq32s len) { return allocate<Vlq8u>(len); }
Vlq16s* vlq::vlqsMalloc_16s(Vlq32s len) { return allocate<Vlq16s>(len); }
Vlq32s* vlq::vlqsMalloc_32s(Vlq32s len) { return allocate<Vlq32s>(len); }
Vlq64s* vlq::vlqsMalloc_64s(Vlq32s len) { return allocate<Vlq64s>(len); }
Vlq64sc* vlq::vlqsMalloc_64sc(Vlq32s len) { return allocate<Vlq64sc>(len); }

void vlq::vlqsFree(void* ptr) { vlqFree(ptr); }
