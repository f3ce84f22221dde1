// Squared magnitudes: each scale factor of every regime, all lengths and alignments, statuses.
#include "complex/power_spectrum_ref.h"

#include "vlqs/complex.h"

namespace {

using namespace vlqtest;

template <class C, class T>
void checkFloats(VlqStatus (*split)(const T*, const T*, T*, Vlq32s),
                 VlqStatus (*interleaved)(const C*, T*, Vlq32s)) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto x = extremeElements<C>(n, c.rng);
        std::vector<T> re(n), im(n), want(n);
        for (std::size_t i = 0; i < n; ++i) {
            re[i] = x[i].re;
            im[i] = x[i].im;
            const T a = re[i] * re[i], b = im[i] * im[i];
            want[i] = a + b;
        }
        const Buffer<C> src(x, c.place[0]);
        const Buffer<T> srcRe(re, c.place[1]);
        Buffer<T> srcIm(im, c.place[2]), dst(n, c.place[3]);
        ASSERT_EQ(vlqStsOk, interleaved(src.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
        dst.assign(std::vector<T>(n));
        ASSERT_EQ(vlqStsOk, split(srcRe.data(), srcIm.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
        ASSERT_EQ(vlqStsOk, split(srcRe.data(), srcIm.data(), srcIm.data(), c.len));
        ASSERT_TRUE(sameNumbers(srcIm, want));
    });
    T v[2] = {1, 2};
    C x[2] = {{1, 2}, {3, 4}};
    EXPECT_EQ(vlqStsNullPtr, split(nullptr, v, v, 0));
    EXPECT_EQ(vlqStsNullPtr, split(v, nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, split(v, v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, split(v, v, v, 0));
    EXPECT_EQ(vlqStsNullPtr, interleaved(nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, interleaved(x, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, interleaved(x, v, -1));
}
TEST(PowerSpectrum, Floats) {
    checkFloats<Vlq32fc, Vlq32f>(vlqsPowerSpectr_32f, vlqsPowerSpectr_32fc);
    checkFloats<Vlq64fc, Vlq64f>(vlqsPowerSpectr_64f, vlqsPowerSpectr_64fc);
}

TEST(PowerSpectrum, FloatsToDoubles) {
    sweep(8, {5003}, [&](Case& c) {
        const auto x = extremeElements<Vlq32fc>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<Vlq64f> want(x.size());
        for (std::size_t i = 0; i < x.size(); ++i)
            want[i] = double{x[i].re} * double{x[i].re} + double{x[i].im} * double{x[i].im};
        const Buffer<Vlq32fc> src(x, c.place[0]);
        Buffer<Vlq64f> dst(x.size(), c.place[1]);
        ASSERT_EQ(vlqStsOk, vlqsMagSquared_32fc64f(src.data(), dst.data(), c.len));
        ASSERT_TRUE(sameNumbers(dst, want));
    });
    Vlq32fc x[1] = {{1, 2}};
    Vlq64f v[1];
    EXPECT_EQ(vlqStsNullPtr, vlqsMagSquared_32fc64f(nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsMagSquared_32fc64f(x, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsMagSquared_32fc64f(x, v, 0));
}

// Parts of all sizes, so that every scale factor has results within the range.
template <class C>
std::vector<C> elements(std::size_t n, Rng& rng) {
    auto x = extremeElements<C>(n, rng);
    using T = decltype(C::re);
    const int shift = static_cast<int>(rng() % (8 * sizeof(T)));
    if (rng() % 2) {
        for (C& v : x) v = {static_cast<T>(v.re >> shift), static_cast<T>(v.im >> shift)};
    }
    return x;
}

TEST(PowerSpectrum, Integers16) {
    sweep(2, {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto x = elements<Vlq16sc>(n, c.rng);
        std::vector<Vlq16s> re(n), im(n), want(n);
        std::vector<Vlq32f> asFloats(n);
        for (std::size_t i = 0; i < n; ++i) {
            re[i] = x[i].re;
            im[i] = x[i].im;
            asFloats[i] = static_cast<Vlq32f>(powerRef(x[i].re, x[i].im));
        }
        const Buffer<Vlq16sc> src(x, c.place[0]);
        const Buffer<Vlq16s> srcRe(re, c.place[1]), srcIm(im, c.place[2]);
        Buffer<Vlq16s> dst(n, c.place[3]);
        Buffer<Vlq32f> dstFloat(n, c.place[3]);
        ASSERT_EQ(vlqStsOk,
                  vlqsPowerSpectr_16s32f(srcRe.data(), srcIm.data(), dstFloat.data(), c.len));
        ASSERT_TRUE(same(dstFloat, asFloats));
        dstFloat.assign(std::vector<Vlq32f>(n));
        ASSERT_EQ(vlqStsOk, vlqsPowerSpectr_16sc32f(src.data(), dstFloat.data(), c.len));
        ASSERT_TRUE(same(dstFloat, asFloats));
        const int scaleFactor =
            c.rng() % 8 == 0 ? extremeValue<Vlq32s>(c.rng) : static_cast<int>(c.rng() % 56) - 20;
        for (std::size_t i = 0; i < n; ++i)
            want[i] = scaleRef<Vlq16s>(powerRef(x[i].re, x[i].im), scaleFactor);
        ASSERT_EQ(vlqStsOk, vlqsPowerSpectr_16s_Sfs(srcRe.data(), srcIm.data(), dst.data(), c.len,
                                                    scaleFactor));
        ASSERT_TRUE(same(dst, want)) << scaleFactor;
        dst.assign(std::vector<Vlq16s>(n));
        ASSERT_EQ(vlqStsOk, vlqsPowerSpectr_16sc_Sfs(src.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << scaleFactor;
    });
    // The extremes at every scale factor.
    for (int scaleFactor = -40; scaleFactor <= 40; ++scaleFactor) {
        const Vlq16s re[] = {-32768, 1, 0, 181, 32767, 0, -1, 2},
                     im[] = {-32768, 0, 0, 3, 32767, 1, -1, 2};
        Vlq16s dst[8];
        ASSERT_EQ(vlqStsOk, vlqsPowerSpectr_16s_Sfs(re, im, dst, 8, scaleFactor));
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(scaleRef<Vlq16s>(powerRef(re[i], im[i]), scaleFactor), dst[i])
                << scaleFactor << ", element " << i;
    }
    Vlq16s v[1] = {1}, zero[1] = {0};
    Vlq16sc x[1] = {{1, 0}};
    EXPECT_EQ(vlqStsOk, vlqsPowerSpectr_16s_Sfs(v, zero, v, 1, -15));
    EXPECT_EQ(32767, v[0]);
    EXPECT_EQ(vlqStsNullPtr, vlqsPowerSpectr_16s_Sfs(nullptr, v, v, 0, 40));
    EXPECT_EQ(vlqStsNullPtr, vlqsPowerSpectr_16s_Sfs(v, nullptr, v, 0, 40));
    EXPECT_EQ(vlqStsNullPtr, vlqsPowerSpectr_16s_Sfs(v, v, nullptr, 0, 40));
    EXPECT_EQ(vlqStsBadSize, vlqsPowerSpectr_16s_Sfs(v, v, v, 0, 40));
    EXPECT_EQ(vlqStsNullPtr, vlqsPowerSpectr_16sc_Sfs(nullptr, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, vlqsPowerSpectr_16sc_Sfs(x, nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, vlqsPowerSpectr_16sc_Sfs(x, v, 0, 0));
}

TEST(PowerSpectrum, Integers32) {
    sweep(4, {5003}, [&](Case& c) {
        const auto x = elements<Vlq32sc>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<Vlq32s> want(x.size());
        const int scaleFactor =
            c.rng() % 8 == 0 ? extremeValue<Vlq32s>(c.rng) : static_cast<int>(c.rng() % 104) - 36;
        for (std::size_t i = 0; i < x.size(); ++i) want[i] = powerInDoublesRef(x[i], scaleFactor);
        const Buffer<Vlq32sc> src(x, c.place[0]);
        Buffer<Vlq32s> dst(x.size(), c.place[1]);
        ASSERT_EQ(vlqStsOk, vlqsMagSquared_32sc32s_Sfs(src.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << scaleFactor;
    });
    Vlq32sc x[2] = {{-2147483647 - 1, -2147483647 - 1}, {0, 1}};
    Vlq32s dst[2] = {7, 7};
    EXPECT_EQ(vlqStsOk, vlqsMagSquared_32sc32s_Sfs(x, dst, 2, 63));
    EXPECT_EQ(1, dst[0]);
    EXPECT_EQ(0, dst[1]);
    dst[0] = dst[1] = 7;
    EXPECT_EQ(vlqStsOk, vlqsMagSquared_32sc32s_Sfs(x, dst, 2, 64));
    EXPECT_EQ(0, dst[0]);
    EXPECT_EQ(0, dst[1]);
    for (const int scaleFactor : {-31, -32, -1000000, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(vlqStsOk, vlqsMagSquared_32sc32s_Sfs(x, dst, 2, scaleFactor));
        EXPECT_EQ(2147483647, dst[0]);
        EXPECT_EQ(2147483647, dst[1]);
    }
    EXPECT_EQ(vlqStsNullPtr, vlqsMagSquared_32sc32s_Sfs(nullptr, dst, 0, 64));
    EXPECT_EQ(vlqStsNullPtr, vlqsMagSquared_32sc32s_Sfs(x, nullptr, 0, 64));
    EXPECT_EQ(vlqStsBadSize, vlqsMagSquared_32sc32s_Sfs(x, dst, 0, 64));
}

}  // namespace
