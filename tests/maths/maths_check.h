// Checks of a function of one vector against a reference: lengths, alignments, in place, guard
// pages, scale factors, and the order of the argument checks.
#pragma once

#include <functional>

#include "harness/element.h"
#include "harness/sweep.h"
#include "vlqs.h"

namespace vlqtest {

// The variants of a function; those without a scale factor ignore it. `inPlace` may be null.
template <class S, class D = S>
struct Variants {
    const char* name;
    VlqStatus (*apply)(const S*, D*, Vlq32s, Vlq32s);
    VlqStatus (*inPlace)(D*, Vlq32s, Vlq32s);
};

// Of functions that have no scale factor.
template <class S, class D, VlqStatus (*apply)(const S*, D*, Vlq32s)>
Variants<S, D> unscaled(const char* name) {
    return {name, [](const S* src, D* dst, Vlq32s len, Vlq32s) { return apply(src, dst, len); },
            nullptr};
}
template <class T, VlqStatus (*apply)(const T*, T*, Vlq32s), VlqStatus (*inPlace)(T*, Vlq32s)>
Variants<T> unscaled(const char* name) {
    return {name, [](const T* src, T* dst, Vlq32s len, Vlq32s) { return apply(src, dst, len); },
            [](T* srcDst, Vlq32s len, Vlq32s) { return inPlace(srcDst, len); }};
}

// What a function does to a vector: each result, and the status.
template <class S, class D>
struct Reference {
    std::function<D(S, int)> element;
    std::function<VlqStatus(const std::vector<S>&)> status = [](const auto&) { return vlqStsOk; };
};

template <class S, class D>
void checkOnce(const Variants<S, D>& f, const Reference<S, D>& ref, const std::vector<S>& values,
               int scaleFactor, Placement srcPlace, Placement dstPlace) {
    SCOPED_TRACE(std::string(f.name) + ", scale factor " + std::to_string(scaleFactor));
    const auto len = static_cast<Vlq32s>(values.size());
    std::vector<D> want;
    for (const S& v : values) want.push_back(ref.element(v, scaleFactor));
    const VlqStatus status = ref.status(values);
    const Buffer<S> src(values, srcPlace);
    Buffer<D> dst(values.size(), dstPlace);
    ASSERT_EQ(status, f.apply(src.data(), dst.data(), len, scaleFactor));
    if constexpr (std::is_integral_v<D> || std::is_integral_v<S>)
        ASSERT_TRUE(same(dst, want)) << "of " << ::testing::PrintToString(values[0]);
    else
        ASSERT_TRUE(sameNumbers(dst, want));
    if constexpr (std::is_same_v<S, D>) {
        if (!f.inPlace) return;
        dst.assign(values);
        ASSERT_EQ(status, f.inPlace(dst.data(), len, scaleFactor));
        if constexpr (std::is_integral_v<D>)
            ASSERT_TRUE(same(dst, want));
        else
            ASSERT_TRUE(sameNumbers(dst, want));
    }
}

// Vectors of `draw` elements through the sweep, a scale factor of the list each.
template <class S, class D>
void checkSweep(const Variants<S, D>& f, const Reference<S, D>& ref,
                const std::vector<int>& scaleFactors, const std::function<S(Rng&)>& draw) {
    sweep(sizeof(S), {5003}, [&](Case& c) {
        std::vector<S> values(static_cast<std::size_t>(c.len));
        for (S& v : values) v = draw(c.rng);
        const int scaleFactor = scaleFactors[c.rng() % scaleFactors.size()];
        checkOnce(f, ref, values, scaleFactor, c.place[1], c.place[0]);
    });
    S v[2] = {};
    D w[2] = {};
    EXPECT_EQ(vlqStsNullPtr, f.apply(nullptr, w, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, f.apply(v, nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, f.apply(v, w, 0, 0));
    EXPECT_EQ(vlqStsBadSize, f.apply(v, w, -1, 0));
    if (f.inPlace) {
        EXPECT_EQ(vlqStsNullPtr, f.inPlace(nullptr, 0, 0));
        EXPECT_EQ(vlqStsBadSize, f.inPlace(w, 0, 0));
        EXPECT_EQ(vlqStsBadSize, f.inPlace(w, -1, 0));
    }
}

// These values at each scale factor.
template <class S, class D>
void checkValues(const Variants<S, D>& f, const Reference<S, D>& ref,
                 const std::vector<int>& scaleFactors, const std::vector<S>& values) {
    for (const int scaleFactor : scaleFactors) {
        checkOnce(f, ref, values, scaleFactor, {}, {});
        if (::testing::Test::HasFatalFailure()) return;
    }
}

inline std::vector<int> scaleFactors(int from, int to) {
    std::vector<int> all = {std::numeric_limits<int>::min(), -1000, 1000,
                            std::numeric_limits<int>::max()};
    for (int s = from; s <= to; ++s) all.push_back(s);
    return all;
}

template <class T>
std::vector<T> everyValue() {
    std::vector<T> all;
    for (int v = std::numeric_limits<T>::min(); v <= std::numeric_limits<T>::max(); ++v)
        all.push_back(static_cast<T>(v));
    return all;
}

// Integers of all magnitudes, in equal numbers.
template <class T>
T anyMagnitude(Rng& rng) {
    const T bits = extremeValue<T>(rng);
    return static_cast<T>(bits >> rng() % (8 * sizeof(T)));
}

// The nearest integer to v * 2^-scaleFactor, ties to even, saturated.
template <class T>
T roundedRef(long double v, int scaleFactor) {
    const long double scaled =
        std::nearbyint(std::ldexp(v, scaleFactor < -2000 ? 2000 : -std::min(scaleFactor, 2000)));
    if (scaled >= static_cast<long double>(std::numeric_limits<T>::max()))
        return std::numeric_limits<T>::max();
    if (scaled <= static_cast<long double>(std::numeric_limits<T>::min()))
        return std::numeric_limits<T>::min();
    return static_cast<T>(scaled);
}

// ---- floats within an error ---------------------------------------------------------------------
template <class T>
long double errorInUlp(T got, long double want) {
    using Limits = std::numeric_limits<T>;
    int exponent;
    std::frexp(want, &exponent);
    exponent = std::max(exponent, Limits::min_exponent);
    return std::fabs(got - want) * std::ldexp(1.0L, Limits::digits - exponent);
}

template <class T>
::testing::AssertionResult closeTo(long double exact, double bound, T got) {
    const T want = static_cast<T>(exact);
    if (sameNumber(got, want)) return ::testing::AssertionSuccess();
    if (std::isfinite(want) && std::isfinite(got) && std::signbit(got) == std::signbit(want) &&
        errorInUlp(got, exact) <= bound)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << show(got) << ", expected " << show(want) << " within " << bound << " ulp";
}

template <class S, class D>
struct FloatFunction {
    Variants<S, D> variants;
    long double (*exact)(long double);
    double bound;
};

// A stride over all bits of a float, or random bits of a double, with values around one between.
template <class T>
std::vector<T> argumentsOf(Rng& rng, std::size_t count) {
    std::vector<T> x(count);
    for (std::size_t i = 0; i < count; ++i) {
        using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
        Bits bits = static_cast<Bits>(rng());
        if constexpr (sizeof(T) == 4) bits = static_cast<Bits>(i * (0x100000000 / count));
        std::memcpy(&x[i], &bits, sizeof bits);
        if (i % 3 == 0) {
            x[i] = static_cast<T>(std::ldexp(static_cast<double>(rng() >> 11), -53) * 40 - 20);
        } else if (i % 3 == 1 && rng() % 4 == 0) {
            x[i] = extremeValue<T>(rng);
        }
    }
    return x;
}

template <class S, class D>
void checkFloatFunction(const FloatFunction<S, D>& f, Rng& rng) {
    SCOPED_TRACE(f.variants.name);
    const auto x = argumentsOf<S>(rng, 200003);
    const Buffer<S> src(x);
    Buffer<D> dst(x.size());
    f.variants.apply(src.data(), dst.data(), static_cast<Vlq32s>(x.size()), 0);
    const auto got = dst.values();
    for (std::size_t i = 0; i < x.size(); ++i)
        ASSERT_TRUE(closeTo(f.exact(x[i]), f.bound, got[i])) << "of " << show(x[i]);
    // The same bits at every place of a vector, in place too.
    std::size_t next = 0;
    sweep(sizeof(S), {}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        if (next + n > x.size()) next = 0;
        const auto at = static_cast<std::ptrdiff_t>(next),
                   end = static_cast<std::ptrdiff_t>(next + n);
        const std::vector<S> part(x.begin() + at, x.begin() + end);
        const std::vector<D> want(got.begin() + at, got.begin() + end);
        next += n;
        const Buffer<S> from(part, c.place[1]);
        Buffer<D> to(n, c.place[0]);
        f.variants.apply(from.data(), to.data(), c.len, 0);
        ASSERT_TRUE(sameNumbers(to, want));
        if constexpr (std::is_same_v<S, D>) {
            if (f.variants.inPlace) {
                to.assign(part);
                f.variants.inPlace(to.data(), c.len, 0);
                ASSERT_TRUE(sameNumbers(to, want));
            }
        }
    });
}

}  // namespace vlqtest
