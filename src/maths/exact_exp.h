// e^x to about 2^-95, for results that are rounded to integers: 128-bit significands, generated at
// compile time.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vlq::maths {

__extension__ typedef unsigned __int128 Wide;

// The upper 128 of the 256 bits of a product.
constexpr Wide productUpper(Wide a, Wide b) {
    constexpr auto lower = [](Wide v) { return static_cast<std::uint64_t>(v); };
    const Wide aUpper = a >> 64, bUpper = b >> 64;
    const Wide low = Wide{lower(a)} * lower(b), middle = aUpper * lower(b),
               cross = bUpper * lower(a);
    const Wide carry = ((low >> 64) + lower(middle) + lower(cross)) >> 64;
    return aUpper * bUpper + (middle >> 64) + (cross >> 64) + carry;
}

// significand * 2^(exponent - 127), the significand from 2^127 on.
struct WideFloat {
    Wide significand;
    std::int64_t exponent;
};
constexpr WideFloat normalized(Wide significand, std::int64_t exponent) {
    while (!(significand >> 127)) {
        significand <<= 1;
        --exponent;
    }
    return {significand, exponent};
}
constexpr WideFloat operator*(WideFloat a, WideFloat b) {
    return normalized(productUpper(a.significand, b.significand), a.exponent + b.exponent + 1);
}

// e^f for 0 <= f < 1, given as f * 2^128, by the exponential series.
constexpr WideFloat expOfFraction(Wide f) {
    Wide term = Wide{1} << 126, sum = term;
    for (unsigned n = 1; term != 0; ++n) {
        term = productUpper(term, f) / n;
        sum += term;
    }
    return normalized(sum, 1);
}

// e^(2^i) and e^-(2^i), each by squaring the one before.
struct PowersOfE {
    std::array<WideFloat, 32> up, down;
};
inline constexpr PowersOfE kPowersOfE = [] {
    PowersOfE powers{};
    // e is the square of e^(1/2), 1/e an alternating series.
    const WideFloat root = expOfFraction(Wide{1} << 127);
    Wide term = Wide{1} << 127, inverse = 0;  // 1/2! - 1/3! + 1/4! ... times 2^128
    for (unsigned n = 2; term != 0; ++n) {
        inverse += n % 2 == 0 ? term : -term;
        term /= n + 1;
    }
    powers.up[0] = root * root;
    powers.down[0] = normalized(inverse, -1);
    for (std::size_t i = 1; i < 32; ++i) {
        powers.up[i] = powers.up[i - 1] * powers.up[i - 1];
        powers.down[i] = powers.down[i - 1] * powers.down[i - 1];
    }
    return powers;
}();

// e^n for |n| < 2^32.
constexpr WideFloat powerOfE(std::int64_t n) {
    WideFloat result = {Wide{1} << 127, 0};
    const auto& powers = n < 0 ? kPowersOfE.down : kPowersOfE.up;
    std::uint64_t bits = static_cast<std::uint64_t>(n < 0 ? -n : n);
    for (std::size_t i = 0; bits != 0; bits >>= 1, ++i)
        if (bits & 1) result = result * powers[i];
    return result;
}

// ---- e^x as a row of integers -------------------------------------------------------------------
enum class Halves { ToEven, Up };

// clamp(round(v * 2^-scaleFactor))
template <class T, Halves halves>
constexpr T roundedTo(WideFloat v, std::int64_t scaleFactor) {
    constexpr T highest = std::numeric_limits<T>::max();
    const std::int64_t exponent = v.exponent - scaleFactor;  // of the leading bit
    if (exponent < -1) return 0;
    if (exponent >= std::numeric_limits<T>::digits) return highest;
    const int shift = static_cast<int>(127 - exponent);  // 128 for one half and above
    const Wide integer = shift == 128 ? 0 : v.significand >> shift;
    const Wide rest = shift == 128 ? v.significand : v.significand << (128 - shift);
    constexpr Wide half = Wide{1} << 127;
    const bool up =
        halves == Halves::Up ? rest >= half : rest > half || (rest == half && integer % 2 == 1);
    const Wide rounded = integer + (up ? 1 : 0);
    return rounded > static_cast<Wide>(highest) ? highest : static_cast<T>(rounded);
}

// The results for all x: e^x runs from below one half to above the largest T within few integers.
// Below the first, results are 0; above the last they are saturated.
template <class T, Halves halves>
class ExpRow {
public:
    // ln(2^(digits + 1)) integers from one half on, one below, and one for each bound's rounding.
    static constexpr int count =
        static_cast<int>(0.6931472 * (std::numeric_limits<T>::digits + 1)) + 5;
    static_assert(!(sizeof(T) == 2) || count == 16);

    explicit ExpRow(std::int32_t scaleFactor)
        : first_(static_cast<std::int64_t>(
                     std::floor((static_cast<double>(scaleFactor) - 1) * 0.69314718055994531)) -
                 1) {
        WideFloat v = powerOfE(first_);
        for (int i = 0; i < count; ++i) {
            // The only power that may be a tie is 1, exactly.
            if (first_ + i == 0) v = powerOfE(0);
            values_[static_cast<std::size_t>(i)] = roundedTo<T, halves>(v, scaleFactor);
            v = v * kPowersOfE.up[0];
        }
    }
    std::int64_t first() const { return first_; }
    const T* values() const { return values_.data(); }
    T operator()(T x) const {
        // x - first wraps only where x is far above or below the row.
        if (x < first_) return 0;
        const auto index = static_cast<std::uint64_t>(x) - static_cast<std::uint64_t>(first_);
        return values_[index < count ? static_cast<std::size_t>(index) : count - 1];
    }

private:
    std::int64_t first_;
    std::array<T, count> values_;
};

// ---- logarithms that are close to a tie ---------------------------------------------------------
// ln(10)/10 * 2^128 to 2^-120, with ln(10) = 3 ln(2) + ln(5/4).
inline constexpr Wide kTenthOfLn10 = [] {
    // ln((1 + t)/(1 - t)) = 2 (t + t^3/3 + t^5/5 ...) with t = 1/n; times 2^122.
    const auto series = [](unsigned n) {
        Wide power = (Wide{1} << 123) / n, sum = 0;
        for (unsigned k = 1; power != 0; k += 2) {
            sum += power / k;
            power /= n * n;
        }
        return sum;
    };
    const Wide ln2 = series(3), ln5over4 = series(9);
    return (3 * ln2 + ln5over4) / 10 * 64;
}();

enum class LogKind { Natural, TenTimesDecimal };

// The sign of log(x) - (m + 1/2) 2^scaleFactor, for values that differ by less than one part in a
// thousand, -31 <= scaleFactor <= 5.
template <LogKind kind>
constexpr int compareWithTie(std::uint32_t x, std::uint32_t m, int scaleFactor) {
    // The tie in units of 2^-121, as a natural logarithm.
    Wide tie = Wide{2 * std::uint64_t{m} + 1} << (120 + scaleFactor);
    if (kind == LogKind::TenTimesDecimal) tie = productUpper(tie, kTenthOfLn10);
    const WideFloat limit =
        expOfFraction(tie << 7) * powerOfE(static_cast<std::int64_t>(tie >> 121));
    // Both in units of 2^(exponent - 126), since x may be of the next binade.
    const Wide exact = Wide{x} << (126 - limit.exponent), close = limit.significand >> 1;
    const Wide distance = exact > close ? exact - close : close - exact;
    // Numbers that agree to 80 bits are equal: powers of ten.
    if (distance >> 47 == 0) return 0;
    return exact > close ? 1 : -1;
}

}  // namespace vlq::maths
