// The work buffer of one call: the caller's, or one allocated for the call.
#pragma once

#include "frame/state/layout.h"
#include "vlqs/frame.h"

namespace vlq {

// The caller's buffer is used from its first 64-byte boundary on; the library's own is freed when
// the call ends, on every path. A call that never takes a buffer passes nullptr for the caller's.
class WorkBuffer {
public:
    WorkBuffer(Vlq8u* callers, Vlq64s bytes) {
        if (bytes < 1) return;
        if (callers)
            data_ = alignUp(callers, 64);
        else if (bytes > kSizeLimit || !(owned_ = vlqsMalloc_8u(static_cast<Vlq32s>(bytes))))
            refused_ = true;
        else
            data_ = owned_;
    }
    ~WorkBuffer() {
        if (owned_) vlqsFree(owned_);
    }
    WorkBuffer(const WorkBuffer&) = delete;
    WorkBuffer& operator=(const WorkBuffer&) = delete;

    bool refused() const { return refused_; }
    Vlq8u* data() const { return data_; }
    template <class T>
    T* as() const {
        return reinterpret_cast<T*>(data_);
    }

private:
    Vlq8u* data_ = nullptr;
    Vlq8u* owned_ = nullptr;
    bool refused_ = false;
};

}  // namespace vlq
