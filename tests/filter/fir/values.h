// Vectors whose type of element is known at run time, so that one compiled test serves all types.
#pragma once

#include "filter/fir/kinds.h"

namespace vlqtest {

inline std::size_t count(long n) { return static_cast<std::size_t>(n); }

struct Type {
    enum Base { int16, int32, float32, float64 } base;
    bool isComplex;

    bool isFloating() const { return base == float32 || base == float64; }
    std::size_t partBytes() const { return base == int16 ? 2 : base == float64 ? 8 : 4; }
    std::size_t parts() const { return isComplex ? 2 : 1; }
    std::size_t bytes() const { return parts() * partBytes(); }
    bool operator==(const Type&) const = default;
};
template <class T>
constexpr Type typeOf() {
    using P = Part<T>;
    return {std::is_same_v<P, Vlq16s>   ? Type::int16
            : std::is_same_v<P, Vlq32s> ? Type::int32
            : std::is_same_v<P, Vlq32f> ? Type::float32
                                        : Type::float64,
            isComplex<T>};
}
// visit(part) with a value of the type of the parts.
template <class Visit>
auto withPart(Type type, Visit visit) {
    switch (type.base) {
        case Type::int16: return visit(Vlq16s{});
        case Type::int32: return visit(Vlq32s{});
        case Type::float32: return visit(Vlq32f{});
        default: return visit(Vlq64f{});
    }
}

class Values {
public:
    Values(Type type, std::size_t count) : type_(type), bytes_(count * type.bytes()) {}
    Values(Type type, std::vector<Vlq8u> bytes) : type_(type), bytes_(std::move(bytes)) {}
    Values(Type type, const std::vector<WideComplex>& values) : Values(type, values.size()) {
        for (std::size_t i = 0; i < values.size(); ++i) set(i, values[i]);
    }

    Type type() const { return type_; }
    std::size_t size() const { return bytes_.size() / type_.bytes(); }
    int len() const { return static_cast<int>(size()); }
    void* data(std::size_t i = 0) { return bytes_.data() + i * type_.bytes(); }
    const void* data(std::size_t i = 0) const { return bytes_.data() + i * type_.bytes(); }
    const std::vector<Vlq8u>& bytes() const { return bytes_; }
    void resize(std::size_t count) { bytes_.resize(count * type_.bytes()); }

    WideComplex operator[](std::size_t i) const {
        return {part(i * type_.parts()), type_.isComplex ? part(i * type_.parts() + 1) : 0};
    }
    void set(std::size_t i, WideComplex v) {
        setPart(i * type_.parts(), v.real());
        if (type_.isComplex) setPart(i * type_.parts() + 1, v.imag());
    }
    Wide part(std::size_t i) const {
        return withPart(type_, [&](auto value) {
            std::memcpy(&value, bytes_.data() + i * sizeof value, sizeof value);
            return static_cast<Wide>(value);
        });
    }
    void setPart(std::size_t i, Wide v) {
        withPart(type_, [&](auto value) {
            value = static_cast<decltype(value)>(v);
            std::memcpy(bytes_.data() + i * sizeof value, &value, sizeof value);
        });
    }
    std::vector<WideComplex> all() const {
        std::vector<WideComplex> values(size());
        for (std::size_t i = 0; i < size(); ++i) values[i] = (*this)[i];
        return values;
    }
    Values slice(std::size_t from, std::size_t count) const {
        const auto at = [&](std::size_t i) {
            return bytes_.begin() + static_cast<std::ptrdiff_t>(i * type_.bytes());
        };
        return {type_, std::vector<Vlq8u>(at(from), at(from + count))};
    }
    void append(const Values& more) {
        bytes_.insert(bytes_.end(), more.bytes_.begin(), more.bytes_.end());
    }
    // Bit for bit.
    bool operator==(const Values& other) const { return bytes_ == other.bytes_; }

private:
    Type type_;
    std::vector<Vlq8u> bytes_;
};

// ---- random values ------------------------------------------------------------------------------

// draw() for each part.
template <class Draw>
Values drawn(Type type, std::size_t count, Draw draw) {
    Values values(type, count);
    for (std::size_t i = 0; i < count * type.parts(); ++i) values.setPart(i, draw());
    return values;
}
inline Values uniformValues(Type type, std::size_t count, Rng& rng) {
    return drawn(type, count, [&] {
        return withPart(type, [&](auto part) -> Wide {
            if constexpr (std::is_floating_point_v<decltype(part)>)
                return uniformVector<decltype(part)>(1, -1, 1, rng)[0];
            else
                return 0;
        });
    });
}
// Not-a-numbers only where they are wanted: they have no order and no sum.
inline Values extremeValues(Type type, std::size_t count, bool withNaN, Rng& rng) {
    Values values(type, count);
    for (std::size_t i = 0; i < count * type.parts(); ++i) {
        withPart(type, [&](auto part) {
            part = extremeValue<decltype(part)>(rng);
            if (!withNaN && part != part) part = 1;
            std::memcpy(static_cast<Vlq8u*>(values.data()) + i * sizeof part, &part, sizeof part);
        });
    }
    return values;
}
// Samples over the type's range, floats in [-1, 1).
inline Values randomSamples(Type type, std::size_t count, Rng& rng) {
    return type.isFloating() ? uniformValues(type, count, rng)
                             : extremeValues(type, count, true, rng);
}
// Small integers: sums that every type of taps holds exactly.
inline Values randomIntegers(Type type, std::size_t count, int peak, Rng& rng) {
    return drawn(type, count, [&] {
        return static_cast<Wide>(static_cast<int>(rng() % static_cast<unsigned>(2 * peak + 1)) -
                                 peak);
    });
}

// ---- bounds -------------------------------------------------------------------------------------

inline Wide unitOf(Type taps) { return taps.base == Type::float32 ? kUnit<Vlq32f> : kUnit<Vlq64f>; }
inline Wide peakOf(Type samples) {
    const Wide peak = withPart(samples, [](auto part) -> Wide {
        using P = decltype(part);
        return std::is_floating_point_v<P> ? Wide{1}
                                           : static_cast<Wide>(std::numeric_limits<P>::max());
    });
    return peak * (samples.isComplex ? 1.5L : 1);
}
// Worst rounding error of the last sum, relative to its terms; with a transform of length n also
// 4 log2(n) units of the product of the norms.
inline Wide errorBound(const WideFir& ref, Type taps, Type samples, std::size_t tapsLen,
                       bool transform) {
    Wide bound = static_cast<Wide>(2 * tapsLen + 3) * unitOf(taps) * ref.magnitude();
    if (transform) {
        const auto n = static_cast<Wide>(4 * tapsLen);
        bound += 4 * std::log2(n) * unitOf(taps) * ref.tapNorm() * peakOf(samples) * std::sqrt(n);
    }
    return bound;
}
inline bool isAllowed(Type type, WideComplex exact, Wide error, int scale, WideComplex got) {
    return withPart(type, [&](auto part) {
        using P = decltype(part);
        const auto [reLow, reHigh] = allowed<P>(exact.real(), error, scale);
        if (!(got.real() >= reLow && got.real() <= reHigh)) return false;
        if (!type.isComplex) return true;
        const auto [imLow, imHigh] = allowed<P>(exact.imag(), error, scale);
        return got.imag() >= imLow && got.imag() <= imHigh;
    });
}

}  // namespace vlqtest
