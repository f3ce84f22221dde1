// Normalization against its formula in double precision, every scale factor, divisors at the limit.
#include "limit/threshold_ref.h"
#include "vlqs/limit.h"

namespace {

using namespace vlqtest;

template <class T>
void checkReal(VlqStatus (*call)(const T*, T*, Vlq32s, T, T)) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto x = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        const T sub = extremeValue<T>(c.rng);
        T div = extremeValue<T>(c.rng);
        if (std::abs(div) < T(std::numeric_limits<float>::min())) div = 3;
        const T reciprocal = 1 / div;
        std::vector<T> want(x.size());
        for (std::size_t i = 0; i < x.size(); ++i) want[i] = (x[i] - sub) * reciprocal;
        const Buffer<T> src(x, c.place[1]);
        Buffer<T> dst(x.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len, sub, div));
        ASSERT_TRUE(sameNumbers(dst, want));
        dst.assign(x);
        ASSERT_EQ(vlqStsOk, call(dst.data(), dst.data(), c.len, sub, div));
        ASSERT_TRUE(sameNumbers(dst, want));
    });
    T v[2] = {1, 2};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, -1, 0, 0));
    for (const T div : {T(0), T(-0.0), T(1e-39), T(-1e-39)})
        EXPECT_EQ(vlqStsZeroDivisor, call(v, v, 2, 0, div));
    EXPECT_EQ(T(1), v[0]);
    EXPECT_EQ(vlqStsOk, call(v, v, 2, 0, T(std::numeric_limits<float>::min())));
}

template <class C, class T>
void checkComplex(VlqStatus (*call)(const C*, C*, Vlq32s, C, T)) {
    sweep(sizeof(C), {5003}, [&](Case& c) {
        const auto x = extremeElements<C>(static_cast<std::size_t>(c.len), c.rng);
        const C sub = extremeElement<C>(c.rng);
        T div = extremeValue<T>(c.rng);
        if (std::abs(div) < T(std::numeric_limits<float>::min())) div = 3;
        const T reciprocal = 1 / div;
        std::vector<C> want(x.size());
        for (std::size_t i = 0; i < x.size(); ++i)
            want[i] = {(x[i].re - sub.re) * reciprocal, (x[i].im - sub.im) * reciprocal};
        const Buffer<C> src(x, c.place[1]);
        Buffer<C> dst(x.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), dst.data(), c.len, sub, div));
        ASSERT_TRUE(sameNumbers(dst, want));
        dst.assign(x);
        ASSERT_EQ(vlqStsOk, call(dst.data(), dst.data(), c.len, sub, div));
        ASSERT_TRUE(sameNumbers(dst, want));
    });
    C v[2] = {{1, 2}, {3, 4}};
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, v, 0, v[0], 0));
    EXPECT_EQ(vlqStsNullPtr, call(v, nullptr, 0, v[0], 0));
    EXPECT_EQ(vlqStsBadSize, call(v, v, 0, v[0], 0));
    EXPECT_EQ(vlqStsZeroDivisor, call(v, v, 2, v[0], T(1e-39)));
    EXPECT_EQ(T(1), v[0].re);
}

TEST(Normalize, Floats) {
    checkReal<Vlq32f>(vlqsNormalize_32f);
    checkReal<Vlq64f>(vlqsNormalize_64f);
    checkComplex<Vlq32fc, Vlq32f>(vlqsNormalize_32fc);
    checkComplex<Vlq64fc, Vlq64f>(vlqsNormalize_64fc);
}

template <class T>
::testing::AssertionResult sameParts(const Buffer<T>& got, const std::vector<T>& want) {
    const auto values = got.values();
    for (std::size_t i = 0; i < want.size(); ++i) {
        if (values[i].re != want[i].re || values[i].im != want[i].im)
            return ::testing::AssertionFailure() << "element " << i;
    }
    return got.marginsIntact() ? ::testing::AssertionSuccess() : ::testing::AssertionFailure();
}

Vlq16s integerRef(Vlq16s x, Vlq16s sub, Vlq32s div, int scaleFactor) {
    const auto factor =
        1.0f / static_cast<float>(div) * static_cast<float>(wrappedPowerRef(scaleFactor));
    const float product = static_cast<float>(int{x} - int{sub}) * factor;
    if (product >= 32767) return 32767;
    if (product <= -32768) return -32768;
    return static_cast<Vlq16s>(std::nearbyint(product));
}

TEST(Normalize, Integers) {
    Rng any(seed());
    std::vector<int> scaleFactors = {-129,
                                     -128,
                                     -127,
                                     127,
                                     128,
                                     129,
                                     254,
                                     255,
                                     256,
                                     std::numeric_limits<int>::min(),
                                     std::numeric_limits<int>::max()};
    for (int s = -20; s <= 20; ++s) scaleFactors.push_back(s);
    for (const int scaleFactor : scaleFactors) {
        SCOPED_TRACE(scaleFactor);
        for (const int len : {1, 2, 7, 8, 31, 64, 129, 300}) {
            const auto n = static_cast<std::size_t>(len);
            const auto x = extremeElements<Vlq16sc>(n, any);
            const auto sub = extremeElement<Vlq16sc>(any);
            Vlq32s div =
                any() % 2 ? static_cast<Vlq32s>(any() % 200) - 100 : extremeValue<Vlq32s>(any);
            if (div == 0) div = 7;
            std::vector<Vlq16sc> want(n);
            std::vector<Vlq16s> real(n), wantReal(n);
            for (std::size_t i = 0; i < n; ++i) {
                want[i] = {integerRef(x[i].re, sub.re, div, scaleFactor),
                           integerRef(x[i].im, sub.im, div, scaleFactor)};
                real[i] = x[i].re;
                wantReal[i] = want[i].re;
            }
            for (int offset = 0; offset < 8; ++offset) {
                const Buffer<Vlq16sc> src(x, {offset, false});
                const Buffer<Vlq16s> srcReal(real, {offset, false});
                Buffer<Vlq16sc> dst(n, {3 * offset, false});
                Buffer<Vlq16s> dstReal(n, {3 * offset, offset == 7});
                ASSERT_EQ(vlqStsOk, vlqsNormalize_16sc_Sfs(src.data(), dst.data(), len, sub, div,
                                                           scaleFactor));
                ASSERT_TRUE(sameParts(dst, want));
                ASSERT_EQ(vlqStsOk, vlqsNormalize_16s_Sfs(srcReal.data(), dstReal.data(), len,
                                                          sub.re, div, scaleFactor));
                ASSERT_TRUE(same(dstReal, wantReal));
            }
        }
    }
    Vlq16s v[2] = {1, 2};
    Vlq16sc c[2] = {{1, 2}, {3, 4}};
    EXPECT_EQ(vlqStsNullPtr, vlqsNormalize_16s_Sfs(nullptr, v, 0, 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsNormalize_16s_Sfs(v, nullptr, 0, 0, 0, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsNormalize_16s_Sfs(v, v, 0, 0, 0, 0));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsNormalize_16s_Sfs(v, v, 2, 0, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsNormalize_16sc_Sfs(nullptr, c, 0, c[0], 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsNormalize_16sc_Sfs(c, nullptr, 0, c[0], 0, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsNormalize_16sc_Sfs(c, c, 0, c[0], 0, 0));
    EXPECT_EQ(vlqStsZeroDivisor, vlqsNormalize_16sc_Sfs(c, c, 2, c[0], 0, 0));
    EXPECT_EQ(1, v[0]);
}

}  // namespace
