// The scale rule on one integer at a time, for exact results that no vector lane holds: in an
// integer type Wide that does.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

namespace vlq {

template <class T, class Wide>
constexpr T clampTo(Wide e) {
    constexpr Wide low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(e < low ? low : e > high ? high : e);
}

// clamp(e * 2^count), any count from 0 on.
template <class T, class Wide>
class ScalarLeft {
public:
    explicit ScalarLeft(std::int64_t count)
        : count_(count < kBits ? static_cast<int>(count) : kBits) {}
    T operator()(Wide e) const {
        const T value = clampTo<T>(e);
        // The shift itself would lose the bits above the limit.
        constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
        if (value > (high >> count_)) return high;
        if (value < (low >> count_)) return low;
        return static_cast<T>(static_cast<std::make_unsigned_t<T>>(value) << count_);
    }

private:
    static constexpr int kBits = std::numeric_limits<T>::digits;
    int count_;
};

// clamp(round(e * 2^-shift)), 1 <= shift <= lastShift. Clamping comes first, at the values whose
// results are the limits of T, so that rounding cannot overflow.
template <class T, class Wide>
class ScalarRight {
public:
    static constexpr int lastShift = std::numeric_limits<T>::digits + 1;

    explicit ScalarRight(int shift)
        : shift_(shift),
          bias_((Wide{1} << (shift - 1)) - 1),
          low_(Wide{std::numeric_limits<T>::min()} * (Wide{1} << shift)),
          high_(Wide{std::numeric_limits<T>::max()} * (Wide{1} << shift)) {}
    T operator()(Wide e) const {
        const Wide within = e < low_ ? low_ : e > high_ ? high_ : e;
        return static_cast<T>((within + bias_ + (within >> shift_ & 1)) >> shift_);
    }

private:
    int shift_;
    Wide bias_, low_, high_;
};

// The same for lastShift < shift < width of Wide: every result fits. One bit is shifted off first
// and kept as a sticky bit, so that rounding cannot overflow.
template <class T, class Wide>
class ScalarRightFar {
public:
    explicit ScalarRightFar(int shift) : shift_(shift - 1), bias_((Wide{1} << (shift - 2)) - 1) {}
    T operator()(Wide e) const {
        const Wide half = e >> 1 | (e & 1);
        return static_cast<T>((half + bias_ + (half >> shift_ & 1)) >> shift_);
    }

private:
    int shift_;
    Wide bias_;
};

}  // namespace vlq
