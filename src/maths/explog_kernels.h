// Exponentials and logarithms.
#pragma once

#include "frame/loop/map.h"
#include "frame/loop/reduce.h"
#include "frame/scale/power_of_two.h"
#include "frame/simd/convert.h"
#include "frame/simd/gather.h"
#include "frame/simd/math/exp.h"
#include "frame/simd/math/log.h"
#include "frame/simd/pairs.h"
#include "frame/simd/saturate.h"
#include "maths/exact_exp.h"

namespace vlq::explog {

struct Exponential {
    template <class T>
    Vec<T> operator()(Vec<T> x) const {
        return math::exp(x);
    }
};

struct WideExponential {
    Block<double, 2> operator()(const Block<float, 1>& x) const {
        const auto wide = toDouble(x.part[0]);
        return {{math::exp(wide.part[0]), math::exp(wide.part[1])}};
    }
};

// ---- e^x of 16-bit integers ---------------------------------------------------------------------
class ScaledExp16s {
public:
    using V = Vec<std::int16_t>;
    explicit ScaledExp16s(const maths::ExpRow<std::int16_t, maths::Halves::Up>& row)
        : row_(row.values()) {
        // The row may begin outside the range of x: then at its end, and all indices are moved.
        const std::int64_t begin = std::clamp<std::int64_t>(row.first(), -32768, 32767);
        begin_ = V::broadcast(static_cast<std::int16_t>(begin));
        moved_ = V::broadcast(
            static_cast<std::int16_t>(std::clamp<std::int64_t>(begin - row.first(), 0, 15)));
    }
    V operator()(V x) const {
        const V index = addSat(maximum(subSat(x, begin_), V::zero()), moved_);
        return lookUp16(row_, minimum(index, V::broadcast(15)));
    }

private:
    const std::int16_t* row_;
    V begin_, moved_;
};

// ---- logarithms of floats -----------------------------------------------------------------------
// What a singular element is to the caller: zero or negative. NaN is none.
enum class Singular { None, Zero, Negative };

template <class T>
inline Singular kindOf(T x) {
    return x == 0 ? Singular::Zero : x < 0 ? Singular::Negative : Singular::None;
}

// Keeps the kind of the first singular element of all vectors that it sees in order.
template <class T>
class FirstSingular {
public:
    [[gnu::noinline, gnu::cold]] void see(Vec<T> x) {
        const auto mask = x <= Vec<T>::zero();
        if (kind_ == Singular::None && any(mask))
            kind_ = kindOf(x[std::countr_zero(maskBits(mask))]);
    }
    Singular kind() const { return kind_; }

private:
    Singular kind_ = Singular::None;
};

template <class T>
class Logarithm {
public:
    static constexpr bool kMarkUnused = true;  // as NaN, which is not singular
    explicit Logarithm(FirstSingular<T>& first) : first_(&first) {}
    Vec<T> operator()(Vec<T> x) const {
        return math::ln(x, [this](Vec<T> v) { first_->see(v); });
    }
    Block<T, 1> operator()(const Block<T, 1>& x) const { return {{(*this)(x.part[0])}}; }

private:
    FirstSingular<T>* first_;
};

class NarrowLogarithm {
public:
    static constexpr bool kMarkUnused = true;
    explicit NarrowLogarithm(FirstSingular<double>& first) : ln_(first) {}
    Block<float, 1> operator()(const Block<double, 2>& x) const {
        return {{toFloat(Block<double, 2>{{ln_(x.part[0]), ln_(x.part[1])}})}};
    }

private:
    Logarithm<double> ln_;
};

// ---- logarithms of integers, rounded before a shift ---------------------------------------------
// The least integers whose logarithm rounds to 2, 3, 4 ... These are the integers above e^(k+1/2)
// but for two, which the interface fixes one lower: 5389698 (e^15.5 = 5389698.476) and 39824784
// (e^17.5 = 39824784.397).
inline constexpr std::int32_t kLnThresholds[] = {
    5,     13,     34,     91,      245,     666,      1809,     4915,      13360,     36316,
    98716, 268338, 729417, 1982760, 5389698, 14650720, 39824784, 108254988, 294267567, 799902178};

// The type's lowest value from below 1.
template <class T>
class SteppedLogarithm {
public:
    explicit SteppedLogarithm(std::int32_t scaleFactor)
        : shift_(scaleFactor < 31 ? scaleFactor : 31) {}
    Vec<T> operator()(Vec<T> x) const {
        const auto splat = [](std::int32_t v) { return Vec<T>::broadcast(static_cast<T>(v)); };
        auto steps = x > splat(1);
        for (const std::int32_t threshold : kLnThresholds) {
            if (threshold <= std::numeric_limits<T>::max())
                steps = steps + (x > splat(threshold - 1));
        }
        const auto result = Vec<T>::zero() - steps;
        return select(x < splat(1), Vec<T>::broadcast(std::numeric_limits<T>::min()),
                      shift_ == 0 ? result : shiftRight(result, shift_));
    }

private:
    int shift_;
};

// ---- logarithms of integers, rounded after scaling ----------------------------------------------
// clamp(round(log(x) * 2^-scaleFactor)) as 32-bit integers. The logarithm of a double decides but
// close to a tie, where more digits do.
template <maths::LogKind kind>
class RoundedLogarithm {
public:
    explicit RoundedLogarithm(std::int32_t scaleFactor)
        // From 2^32 down nothing is left of a logarithm, and up all but that of 1 saturate.
        : scaleFactor_(std::clamp(scaleFactor, -32, 32)) {
        const double unit = kind == maths::LogKind::Natural ? 1.0 : 0x1.15f2ced384f28p+2;
        factor_ = Vec<double>::broadcast(unit * scaleFactorPower<double>(scaleFactor_));
    }
    Vec<std::int32_t> operator()(Vec<std::int32_t> x) const {
        using V = Vec<std::int32_t>;
        const V one = V::broadcast(1);
        const auto wide = toDouble(maximum(x, one));
        const Block<double, 2> scaled = {{value(wide.part[0]), value(wide.part[1])}};
        V result = toNearest(scaled);
        const auto rounded = toDouble(result);
        if (any(nearTie(scaled.part[0], rounded.part[0]) |
                nearTie(scaled.part[1], rounded.part[1]))) [[unlikely]] {
            decideTies(x, scaled, result);
        }
        return select(x < one, V::broadcast(std::numeric_limits<std::int32_t>::min()), result);
    }

private:
    // The error of a scaled value stays well below this, whatever its size.
    static constexpr double kDoubt = 0x1p-18;

    Vec<double> value(Vec<double> x) const {
        return minimum(math::ln(x) * factor_, Vec<double>::broadcast(2147483647.0));
    }
    static Vec<std::int64_t> nearTie(Vec<double> v, Vec<double> rounded) {
        return absolute(v - rounded) > Vec<double>::broadcast(0.5 - kDoubt);
    }
    [[gnu::noinline, gnu::cold]] void decideTies(Vec<std::int32_t> x,
                                                 const Block<double, 2>& scaled,
                                                 Vec<std::int32_t>& result) const {
        for (int i = 0; i < Vec<std::int32_t>::lanes; ++i) {
            constexpr int half = Vec<double>::lanes;
            const double v = scaled.part[i / half][i % half];
            const auto below = static_cast<std::uint32_t>(v);
            if (x[i] <= 1 || std::abs(v - below - 0.5) > kDoubt) continue;
            const int sign =
                maths::compareWithTie<kind>(static_cast<std::uint32_t>(x[i]), below, scaleFactor_);
            const bool up = sign > 0 || (sign == 0 && below % 2 == 1);
            result.raw[i] = static_cast<std::int32_t>(below + (up ? 1 : 0));
        }
    }
    int scaleFactor_;
    Vec<double> factor_;
};

// The same to 16 bits; the lowest 32-bit value saturates as it should.
template <maths::LogKind kind>
class NarrowRoundedLogarithm {
public:
    explicit NarrowRoundedLogarithm(std::int32_t scaleFactor) : wide_(scaleFactor) {}
    Block<std::int16_t, 1> operator()(const Block<std::int32_t, 2>& x) const {
        return {{narrowSat<std::int16_t>(
            Block<std::int32_t, 2>{{wide_(x.part[0]), wide_(x.part[1])}})}};
    }
    Block<std::int16_t, 1> operator()(const Block<std::int16_t, 1>& x) const {
        return (*this)(widen(x.part[0]));
    }

private:
    RoundedLogarithm<kind> wide_;
};

// ---- sums of logarithms -------------------------------------------------------------------------
// ln of a product: the fractions of the elements are multiplied, 64 in a lane at most, and their
// exponents added.
struct LogProduct {
    Vec<double> fraction, exponent;
};

struct MultiplyFractions {
    static LogProduct one() { return {Vec<double>::broadcast(1), Vec<double>::zero()}; }
    template <class T>
    LogProduct operator()(LogProduct acc, const Block<T, 1>& x) const {
        if constexpr (sizeof(T) == 2) {
            const auto wide = widen(x.part[0]);
            return add(add(acc, toDouble(wide.part[0])), toDouble(wide.part[1]));
        } else if constexpr (sizeof(T) == 4) {
            return add(acc, toDouble(x.part[0]));
        } else {
            return add(acc, x.part[0]);
        }
    }
    LogProduct merge(LogProduct a, LogProduct b) const {
        return {a.fraction * b.fraction, a.exponent + b.exponent};
    }

private:
    static LogProduct add(LogProduct acc, Vec<double> x) {
        const auto [exponent, fraction] = math::splitExponent(
            x, 0x1.6a09e6p-1, Vec<double>::broadcast(math::kExponentBias<double>));
        return {acc.fraction * fraction, acc.exponent + exponent};
    }
    static LogProduct add(LogProduct acc, const Block<double, 2>& x) {
        return add(add(acc, x.part[0]), x.part[1]);
    }
};

// The sum of the logarithms of n elements, all positive, finite and, as doubles, normal.
template <class T>
inline double sumOfLogarithms(const T* src, std::ptrdiff_t n) {
    constexpr int lanes = Vec<T>::lanes;
    const std::ptrdiff_t whole = n / lanes * lanes;
    auto product = reduce(whole, MultiplyFractions::one(), MultiplyFractions{}, src);
    if (whole < n) {
        const int rest = static_cast<int>(n - whole);
        const auto last =
            select(firstLanes<T>(rest), loadPartial(src + whole, rest), Vec<T>::broadcast(T(1)));
        product = MultiplyFractions{}(product, Block<T, 1>{{last}});
    }
    constexpr double ln2 = 0x1.62e42fefa39efp-1;
    return laneSum(math::ln(product.fraction)) + laneSum(product.exponent) * ln2;
}

}  // namespace vlq::explog
