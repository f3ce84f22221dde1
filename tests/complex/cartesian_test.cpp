// Conjugates, parts and absolute values: all bits, each length and alignment, in place, statuses.
#include "complex/cartesian_ref.h"

#include "vlqs/complex.h"

namespace {

using namespace vlqtest;

// Bits of every kind: the operations are exact, and keep NaN as they are.
template <class C, class T>
struct Functions {
    VlqStatus (*conj)(const C*, C*, Vlq32s);
    VlqStatus (*conjInPlace)(C*, Vlq32s);
    VlqStatus (*conjFlip)(const C*, C*, Vlq32s);
    VlqStatus (*real)(const C*, T*, Vlq32s);
    VlqStatus (*imag)(const C*, T*, Vlq32s);
    VlqStatus (*join)(const T*, const T*, C*, Vlq32s);
    VlqStatus (*split)(const C*, T*, T*, Vlq32s);
};

template <class C, class T>
void checkComplex(Functions<C, T> f) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto n = static_cast<std::size_t>(c.len);
        const auto x = extremeElements<C>(n, c.rng);
        std::vector<C> conj(n), flipped(n), onlyRe(n), onlyIm(n);
        std::vector<T> re(n), im(n);
        for (std::size_t i = 0; i < n; ++i) {
            conj[i] = conjRef(x[i]);
            flipped[i] = conjRef(x[n - 1 - i]);
            re[i] = x[i].re;
            im[i] = x[i].im;
            onlyRe[i] = {x[i].re, T(0)};
            onlyIm[i] = {T(0), x[i].im};
        }
        const Buffer<C> src(x, c.place[0]);
        Buffer<C> dst(n, c.place[1]);
        ASSERT_EQ(vlqStsOk, f.conj(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, conj));
        ASSERT_EQ(vlqStsOk, f.conjFlip(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, flipped));
        dst.assign(x);
        ASSERT_EQ(vlqStsOk, f.conjInPlace(dst.data(), c.len));
        ASSERT_TRUE(same(dst, conj));
        dst.assign(x);
        ASSERT_EQ(vlqStsOk, f.conj(dst.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, conj));

        Buffer<T> dstRe(n, c.place[2]), dstIm(n, c.place[3]);
        ASSERT_EQ(vlqStsOk, f.real(src.data(), dstRe.data(), c.len));
        ASSERT_TRUE(same(dstRe, re));
        ASSERT_EQ(vlqStsOk, f.imag(src.data(), dstIm.data(), c.len));
        ASSERT_TRUE(same(dstIm, im));
        ASSERT_EQ(vlqStsOk, f.split(src.data(), dstIm.data(), dstRe.data(), c.len));
        ASSERT_TRUE(same(dstIm, re));
        ASSERT_TRUE(same(dstRe, im));

        ASSERT_EQ(vlqStsOk, f.join(dstIm.data(), dstRe.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, x));
        ASSERT_EQ(vlqStsOk, f.join(dstIm.data(), nullptr, dst.data(), c.len));
        ASSERT_TRUE(same(dst, onlyRe));
        ASSERT_EQ(vlqStsOk, f.join(nullptr, dstRe.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, onlyIm));
    });
    C v[2] = {{1, 2}, {3, 4}};
    T a[2] = {1, 2}, b[2] = {3, 4};
    for (const Vlq32s len : {0, -1}) {
        EXPECT_EQ(vlqStsNullPtr, f.conj(nullptr, v, len));
        EXPECT_EQ(vlqStsNullPtr, f.conj(v, nullptr, len));
        EXPECT_EQ(vlqStsBadSize, f.conj(v, v, len));
        EXPECT_EQ(vlqStsNullPtr, f.conjInPlace(nullptr, len));
        EXPECT_EQ(vlqStsBadSize, f.conjInPlace(v, len));
        EXPECT_EQ(vlqStsNullPtr, f.conjFlip(nullptr, v, len));
        EXPECT_EQ(vlqStsNullPtr, f.conjFlip(v, nullptr, len));
        EXPECT_EQ(vlqStsBadSize, f.conjFlip(v, v, len));
        for (const auto part : {f.real, f.imag}) {
            EXPECT_EQ(vlqStsNullPtr, part(nullptr, a, len));
            EXPECT_EQ(vlqStsNullPtr, part(v, nullptr, len));
            EXPECT_EQ(vlqStsBadSize, part(v, a, len));
        }
        EXPECT_EQ(vlqStsNullPtr, f.join(nullptr, nullptr, v, len));
        EXPECT_EQ(vlqStsNullPtr, f.join(a, b, nullptr, len));
        EXPECT_EQ(vlqStsNullPtr, f.join(nullptr, b, nullptr, len));
        EXPECT_EQ(vlqStsBadSize, f.join(a, b, v, len));
        EXPECT_EQ(vlqStsBadSize, f.join(nullptr, b, v, len));
        EXPECT_EQ(vlqStsNullPtr, f.split(nullptr, a, b, len));
        EXPECT_EQ(vlqStsNullPtr, f.split(v, nullptr, b, len));
        EXPECT_EQ(vlqStsNullPtr, f.split(v, a, nullptr, len));
        EXPECT_EQ(vlqStsBadSize, f.split(v, a, b, len));
    }
    EXPECT_EQ(vlqStsNullPtr, f.join(nullptr, nullptr, v, 2));
    EXPECT_EQ(T(1), v[0].re);
    EXPECT_EQ(T(1), a[0]);
}

TEST(Cartesian, Complex16) {
    checkComplex<Vlq16sc, Vlq16s>({vlqsConj_16sc, vlqsConj_16sc_I, vlqsConjFlip_16sc, vlqsReal_16sc,
                                   vlqsImag_16sc, vlqsRealToCplx_16s, vlqsCplxToReal_16sc});
    Vlq16sc v[1] = {{-32768, -32768}};
    vlqsConj_16sc_I(v, 1);
    EXPECT_EQ(-32768, v[0].re);
    EXPECT_EQ(32767, v[0].im);
}
TEST(Cartesian, Complex32) {
    checkComplex<Vlq32fc, Vlq32f>({vlqsConj_32fc, vlqsConj_32fc_I, vlqsConjFlip_32fc, vlqsReal_32fc,
                                   vlqsImag_32fc, vlqsRealToCplx_32f, vlqsCplxToReal_32fc});
}
TEST(Cartesian, Complex64) {
    checkComplex<Vlq64fc, Vlq64f>({vlqsConj_64fc, vlqsConj_64fc_I, vlqsConjFlip_64fc, vlqsReal_64fc,
                                   vlqsImag_64fc, vlqsRealToCplx_64f, vlqsCplxToReal_64fc});
}

template <class T>
void checkAbs(VlqStatus (*abs)(const T*, T*, Vlq32s), VlqStatus (*inPlace)(T*, Vlq32s)) {
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const auto x = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<T> want(x.size());
        for (std::size_t i = 0; i < x.size(); ++i) want[i] = absRef(x[i]);
        const Buffer<T> src(x, c.place[0]);
        Buffer<T> dst(x.size(), c.place[1]);
        ASSERT_EQ(vlqStsOk, abs(src.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
        dst.assign(x);
        ASSERT_EQ(vlqStsOk, inPlace(dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    T v[2] = {1, 2};
    EXPECT_EQ(vlqStsNullPtr, abs(nullptr, v, 0));
    EXPECT_EQ(vlqStsNullPtr, abs(v, nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, abs(v, v, 0));
    EXPECT_EQ(vlqStsNullPtr, inPlace(nullptr, 0));
    EXPECT_EQ(vlqStsBadSize, inPlace(v, -1));
}
TEST(Cartesian, AbsoluteValues) {
    checkAbs<Vlq16s>(vlqsAbs_16s, vlqsAbs_16s_I);
    checkAbs<Vlq32s>(vlqsAbs_32s, vlqsAbs_32s_I);
    checkAbs<Vlq32f>(vlqsAbs_32f, vlqsAbs_32f_I);
    checkAbs<Vlq64f>(vlqsAbs_64f, vlqsAbs_64f_I);
    Vlq32s least[1] = {std::numeric_limits<Vlq32s>::min()};
    vlqsAbs_32s_I(least, 1);
    EXPECT_EQ(std::numeric_limits<Vlq32s>::max(), least[0]);
}

}  // namespace
