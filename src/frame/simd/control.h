// The processor's floating-point control word: rounding direction, flushing of subnormals.
#pragma once

#include <xmmintrin.h>

namespace vlq {

// While in scope, floats round to nearest, subnormals are kept and nothing traps, whatever the
// caller has set. The common case, a caller who has set nothing, costs one read.
class StandardFloatMode {
public:
    explicit StandardFloatMode(bool wanted = true) {
        if (!wanted) return;
        saved_ = read();
        changed_ = (saved_ & ~kFlags) != kStandard;
        if (changed_) write(kStandard);
    }
    ~StandardFloatMode() {
        if (changed_) write(saved_);
    }
    StandardFloatMode(const StandardFloatMode&) = delete;
    StandardFloatMode& operator=(const StandardFloatMode&) = delete;

private:
    static constexpr unsigned kFlags = 0x3F;
    static constexpr unsigned kStandard = 0x1F80;

    // The compiler knows no dependence between arithmetic and the control word; what keeps the
    // two in order is that vectors are read and written between these accesses.
    static unsigned read() {
        unsigned word;
        asm volatile("stmxcsr %0" : "=m"(word) : : "memory");
        return word;
    }
    static void write(unsigned word) { asm volatile("ldmxcsr %0" : : "m"(word) : "memory"); }

    unsigned saved_ = kStandard;
    bool changed_ = false;
};

}  // namespace vlq
