// The state of the processor's floating-point unit: rounding mode, flushing of subnormals, upper
// halves of the vector registers.
#pragma once

#include "frame/simd/vec.h"

namespace vlq {

// A function that has vectors among its arguments and is not inlined calls this last: for such a
// function GCC leaves it to the callers, which then slow down SSE code after them.
inline void clearUpperHalves() {
#if VLQ_SIMD_BYTES > 16
    _mm256_zeroupper();
#endif
}

// While in scope, floats round to nearest and subnormals are kept, whatever mode the caller has
// set. In the default mode it costs one addition.
class StandardFloatMode {
public:
    explicit StandardFloatMode(bool wanted = true) {
        if (!wanted || holds()) return;
        saved_ = read();
        changed_ = true;
        write(kStandard);
    }
    ~StandardFloatMode() {
        if (changed_) write(saved_);
    }
    StandardFloatMode(const StandardFloatMode&) = delete;
    StandardFloatMode& operator=(const StandardFloatMode&) = delete;

private:
    static constexpr unsigned kStandard = 0x1F80;

    // Tests the arithmetic itself, since reading the register takes some twenty cycles. Lane 0
    // is greater where sums round up, lane 1 smaller where they round down or to zero, and lane 2
    // zero where subnormal operands are treated as zero.
    static bool holds() {
        __m128 a = _mm_setr_ps(1.0f, 1.0f, 0x1p-149f, 0.0f);
        asm volatile("" : "+x"(a));
        const __m128 sum = _mm_add_ps(a, _mm_setr_ps(0x1p-25f, 0x3p-25f, 0.0f, 0.0f));
        const __m128i expected =
            _mm_castps_si128(_mm_setr_ps(1.0f, 1.0f + 0x1p-23f, 0x1p-149f, 0.0f));
        return _mm_movemask_epi8(_mm_cmpeq_epi32(_mm_castps_si128(sum), expected)) == 0xFFFF;
    }

    // The compiler sees no dependence between arithmetic and this register; what keeps the two in
    // order is that vectors are loaded and stored between these accesses.
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
