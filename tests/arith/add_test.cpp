// Sums and differences of two vectors.
#include "arith/add_check.h"

namespace {

using namespace vlqtest;

// Sub computes src2 - src1, in place srcDst - src.
template <class T>
T addElement(T src1, T src2, Vlq32s scaleFactor) {
    return sumRef(src1, src2, scaleFactor);
}
template <class T>
T subElement(T src1, T src2, Vlq32s scaleFactor) {
    return differenceRef(src2, src1, scaleFactor);
}
template <class T>
T addFloat(T src1, T src2, Vlq32s) {
    return src1 + src2;
}
template <class T>
T subFloat(T src1, T src2, Vlq32s) {
    return src2 - src1;
}

// ---- integers with a scale factor ---------------------------------------------------------------
// Random pairs and all pairs of corners at every scale factor, each with all variants.
const std::size_t kPairs = byEffort<std::size_t>(500, 5000, 68000);

// The complex variants take part where they are given.
template <class T>
void checkScaled(const TwoVectors<T>& call, const InPlace<T>& inPlace, Element<T> ref,
                 const TwoVectors<T>& complexCall = nullptr,
                 const InPlace<T>& complexInPlace = nullptr) {
    checkPlaces<T>(call, inPlace, ref, someScaleFactors<T>());
    std::vector<TwoVectors<T>> variants = {call};
    if (inPlace) variants.push_back(asTwo(inPlace));
    if (complexCall) {
        checkPlaces<T>(complexCall, complexInPlace, ref, someScaleFactors<T>(), 2);
        variants.push_back(asReals(complexCall));
        variants.push_back(asTwo(asReals(complexInPlace)));
    }
    checkValues<T>(variants, ref, kPairs);
}

TEST(Add, Scaled16s) {
    checkScaled<Vlq16s>(vlqsAdd_16s_Sfs, vlqsAdd_16s_ISfs, addElement,
                        over<Vlq16s>(vlqsAdd_16sc_Sfs), over<Vlq16s>(vlqsAdd_16sc_ISfs));
}
TEST(Add, Scaled32s) {
    checkScaled<Vlq32s>(vlqsAdd_32s_Sfs, vlqsAdd_32s_ISfs, addElement,
                        over<Vlq32s>(vlqsAdd_32sc_Sfs), over<Vlq32s>(vlqsAdd_32sc_ISfs));
}
TEST(Sub, Scaled16s) {
    checkScaled<Vlq16s>(vlqsSub_16s_Sfs, vlqsSub_16s_ISfs, subElement,
                        over<Vlq16s>(vlqsSub_16sc_Sfs), over<Vlq16s>(vlqsSub_16sc_ISfs));
}
TEST(Sub, Scaled32s) {
    checkScaled<Vlq32s>(vlqsSub_32s_Sfs, vlqsSub_32s_ISfs, subElement,
                        over<Vlq32s>(vlqsSub_32sc_Sfs), over<Vlq32s>(vlqsSub_32sc_ISfs));
}
TEST(Add, Scaled16u) { checkScaled<Vlq16u>(vlqsAdd_16u_Sfs, vlqsAdd_16u_ISfs, addElement); }
TEST(Sub, Scaled16u) { checkScaled<Vlq16u>(vlqsSub_16u_Sfs, vlqsSub_16u_ISfs, subElement); }

// From a scale factor of 64 on the result is 0, though the largest sums would round to 1 or -1.
Vlq64s add64(Vlq64s src1, Vlq64s src2, Vlq32s scaleFactor) {
    return scaleFactor >= 64 ? 0 : sumRef(src1, src2, scaleFactor);
}
TEST(Add, Scaled64s) { checkScaled<Vlq64s>(vlqsAdd_64s_Sfs, nullptr, add64); }

TEST(Add, EveryPairOf8u) {
    checkPlaces<Vlq8u>(vlqsAdd_8u_Sfs, vlqsAdd_8u_ISfs, addElement, someScaleFactors<Vlq8u>());
    checkPlaces<Vlq8u>(vlqsSub_8u_Sfs, vlqsSub_8u_ISfs, subElement, someScaleFactors<Vlq8u>());
    std::vector<Vlq8u> a, b;
    for (int x = 0; x < 256; ++x) {
        for (int y = 0; y < 256; ++y) {
            a.push_back(static_cast<Vlq8u>(x));
            b.push_back(static_cast<Vlq8u>(y));
        }
    }
    std::vector<int> factors = {INT32_MIN, INT32_MAX};
    for (int s = -40; s <= 40; ++s) factors.push_back(s);
    for (const int s : factors) {
        checkPairs<Vlq8u>({vlqsAdd_8u_Sfs, asTwo<Vlq8u>(vlqsAdd_8u_ISfs)}, addElement, a, b, s);
        checkPairs<Vlq8u>({vlqsSub_8u_Sfs, asTwo<Vlq8u>(vlqsSub_8u_ISfs)}, subElement, a, b, s);
    }
}

// ---- integers without a scale factor ------------------------------------------------------------
TEST(Add, Saturated) {
    checkPlaces<Vlq16s>(over<Vlq16s>(vlqsAdd_16s), over<Vlq16s>(vlqsAdd_16s_I), addElement, {0});
    checkPlaces<Vlq16u>(over<Vlq16u>(vlqsAdd_16u), nullptr, addElement, {0});
    checkPlaces<Vlq32u>(over<Vlq32u>(vlqsAdd_32u), nullptr, addElement, {0});
    checkPlaces<Vlq16s>(over<Vlq16s>(vlqsSub_16s), over<Vlq16s>(vlqsSub_16s_I), subElement, {0});
    const std::vector<int> parts(byEffort<std::size_t>(1, 1, 10), 0);
    checkValues<Vlq16s>({over<Vlq16s>(vlqsAdd_16s), asTwo(over<Vlq16s>(vlqsAdd_16s_I))}, addElement,
                        1'000'000, parts);
    checkValues<Vlq16u>({over<Vlq16u>(vlqsAdd_16u)}, addElement, 1'000'000, parts);
    checkValues<Vlq32u>({over<Vlq32u>(vlqsAdd_32u)}, addElement, 1'000'000, parts);
    checkValues<Vlq16s>({over<Vlq16s>(vlqsSub_16s), asTwo(over<Vlq16s>(vlqsSub_16s_I))}, subElement,
                        1'000'000, parts);
}

template <class S, class D>
void checkWidened(VlqStatus (*call)(const S*, const S*, D*, Vlq32s), int sign) {
    sweep(sizeof(D), {5003}, [&](Case& c) {
        const auto a = extremeVector<S>(static_cast<std::size_t>(c.len), c.rng);
        const auto b = extremeVector<S>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<D> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = static_cast<D>(b[i] + sign * a[i]);
        const Buffer<S> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<D> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len));
        ASSERT_TRUE(same(dst, want));
    });
    Rng rng(seed());
    for (int part = 0; part < byEffort(1, 1, 10); ++part) {
        std::vector<S> a, b;
        appendCornerPairs(a, b);
        appendRandom(a, 1'000'000, rng);
        appendRandom(b, 1'000'000, rng);
        std::vector<D> dst(a.size());
        ASSERT_EQ(vlqStsOk, call(a.data(), b.data(), dst.data(), static_cast<int>(a.size())));
        for (std::size_t i = 0; i < a.size(); ++i)
            ASSERT_EQ(static_cast<D>(b[i] + sign * a[i]), dst[i]) << +a[i] << " and " << +b[i];
    }
}

TEST(Add, Widened) {
    checkWidened<Vlq8u, Vlq16u>(vlqsAdd_8u16u, 1);
    checkWidened<Vlq16s, Vlq32f>(vlqsAdd_16s32f, 1);
    checkWidened<Vlq16s, Vlq32f>(vlqsSub_16s32f, -1);
}

TEST(Add, Accumulate16sOnto32s) {
    sweep(sizeof(Vlq32s), {5003}, [&](Case& c) {
        const auto a = extremeVector<Vlq16s>(static_cast<std::size_t>(c.len), c.rng);
        const auto b = extremeVector<Vlq32s>(static_cast<std::size_t>(c.len), c.rng);
        std::vector<Vlq32s> want(b.size());
        for (std::size_t i = 0; i < b.size(); ++i) want[i] = sumRef<Vlq32s>(a[i], b[i], 0);
        const Buffer<Vlq16s> src(a, c.place[1]);
        Buffer<Vlq32s> srcDst(b, c.place[0]);
        ASSERT_EQ(vlqStsOk, vlqsAdd_16s32s_I(src.data(), srcDst.data(), c.len));
        ASSERT_TRUE(same(srcDst, want));
    });
    Rng rng(seed());
    for (int part = 0; part < byEffort(1, 1, 10); ++part) {
        std::vector<Vlq16s> a;
        std::vector<Vlq32s> b;
        appendCornerPairs(a, b);
        appendRandom(a, 1'000'000, rng);
        appendRandom(b, 1'000'000, rng);
        auto dst = b;
        ASSERT_EQ(vlqStsOk, vlqsAdd_16s32s_I(a.data(), dst.data(), static_cast<int>(a.size())));
        for (std::size_t i = 0; i < a.size(); ++i)
            ASSERT_EQ(sumRef<Vlq32s>(a[i], b[i], 0), dst[i]) << a[i] << " onto " << b[i];
    }
}

// ---- floats -------------------------------------------------------------------------------------
TEST(Add, Float) {
    checkPlaces<Vlq32f>(over<Vlq32f>(vlqsAdd_32f), over<Vlq32f>(vlqsAdd_32f_I), addFloat, {0});
    checkPlaces<Vlq64f>(over<Vlq64f>(vlqsAdd_64f), over<Vlq64f>(vlqsAdd_64f_I), addFloat, {0});
    checkPlaces<Vlq32f>(over<Vlq32f>(vlqsSub_32f), over<Vlq32f>(vlqsSub_32f_I), subFloat, {0});
    checkPlaces<Vlq64f>(over<Vlq64f>(vlqsSub_64f), over<Vlq64f>(vlqsSub_64f_I), subFloat, {0});
}

TEST(Add, FloatComplex) {
    checkPlaces<Vlq32f>(over<Vlq32f>(vlqsAdd_32fc), over<Vlq32f>(vlqsAdd_32fc_I), addFloat, {0}, 2);
    checkPlaces<Vlq64f>(over<Vlq64f>(vlqsAdd_64fc), over<Vlq64f>(vlqsAdd_64fc_I), addFloat, {0}, 2);
    checkPlaces<Vlq32f>(over<Vlq32f>(vlqsSub_32fc), over<Vlq32f>(vlqsSub_32fc_I), subFloat, {0}, 2);
    checkPlaces<Vlq64f>(over<Vlq64f>(vlqsSub_64fc), over<Vlq64f>(vlqsSub_64fc_I), subFloat, {0}, 2);
}

// ---- statuses -----------------------------------------------------------------------------------
enum class First { Pointers, Length };

template <class S, class D, class... Scale>
void checkStatuses(VlqStatus (*call)(const S*, const S*, D*, Vlq32s, Scale...), First first,
                   Scale... scale) {
    const S src[4] = {};
    Buffer<D> dst(4);
    const VlqStatus both = first == First::Pointers ? vlqStsNullPtr : vlqStsBadSize;
    for (const int len : {0, -1, INT32_MIN}) {
        EXPECT_EQ(both, call(nullptr, src, dst.data(), len, scale...));
        EXPECT_EQ(both, call(src, nullptr, dst.data(), len, scale...));
        EXPECT_EQ(both, call(src, src, nullptr, len, scale...));
        EXPECT_EQ(vlqStsBadSize, call(src, src, dst.data(), len, scale...));
    }
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, src, dst.data(), 1, scale...));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, dst.data(), 1, scale...));
    EXPECT_EQ(vlqStsNullPtr, call(src, src, nullptr, 1, scale...));
    if (first == First::Length) {
        for (const int len : {1 << 30, (1 << 30) + 1, INT32_MAX}) {
            EXPECT_EQ(vlqStsNullPtr, call(nullptr, src, dst.data(), len, scale...));
            EXPECT_EQ(vlqStsBadSize, call(src, src, dst.data(), len, scale...));
        }
    }
    EXPECT_TRUE(dst.untouched());
}
template <class S, class D, class... Scale>
void checkStatuses(VlqStatus (*call)(const S*, D*, Vlq32s, Scale...), First first, Scale... scale) {
    const S src[4] = {};
    Buffer<D> srcDst(4);
    const VlqStatus both = first == First::Pointers ? vlqStsNullPtr : vlqStsBadSize;
    for (const int len : {0, -1, INT32_MIN}) {
        EXPECT_EQ(both, call(nullptr, srcDst.data(), len, scale...));
        EXPECT_EQ(both, call(src, nullptr, len, scale...));
        EXPECT_EQ(vlqStsBadSize, call(src, srcDst.data(), len, scale...));
    }
    EXPECT_EQ(vlqStsNullPtr, call(nullptr, srcDst.data(), 1, scale...));
    EXPECT_EQ(vlqStsNullPtr, call(src, nullptr, 1, scale...));
    if (first == First::Length) {
        for (const int len : {1 << 30, (1 << 30) + 1, INT32_MAX}) {
            EXPECT_EQ(vlqStsNullPtr, call(nullptr, srcDst.data(), len, scale...));
            EXPECT_EQ(vlqStsBadSize, call(src, srcDst.data(), len, scale...));
        }
    }
    EXPECT_TRUE(srcDst.untouched());
}
template <class Call>
void checkScaledStatuses(Call call, First first = First::Pointers) {
    for (const Vlq32s s : {0, 1, 2, 18, 40, 64, INT32_MAX, -1, -20, INT32_MIN})
        checkStatuses(call, first, s);
}

TEST(Add, Statuses) {
    checkScaledStatuses(vlqsAdd_8u_Sfs);
    checkScaledStatuses(vlqsAdd_8u_ISfs);
    checkScaledStatuses(vlqsAdd_16u_Sfs);
    checkScaledStatuses(vlqsAdd_16u_ISfs);
    checkScaledStatuses(vlqsAdd_16s_Sfs);
    checkScaledStatuses(vlqsAdd_16s_ISfs);
    checkScaledStatuses(vlqsAdd_32s_Sfs);
    checkScaledStatuses(vlqsAdd_32s_ISfs);
    checkScaledStatuses(vlqsAdd_64s_Sfs);
    checkScaledStatuses(vlqsAdd_16sc_Sfs, First::Length);
    checkScaledStatuses(vlqsAdd_16sc_ISfs, First::Length);
    checkScaledStatuses(vlqsAdd_32sc_Sfs, First::Length);
    checkScaledStatuses(vlqsAdd_32sc_ISfs, First::Length);
    checkStatuses(vlqsAdd_16s, First::Pointers);
    checkStatuses(vlqsAdd_16s_I, First::Pointers);
    checkStatuses(vlqsAdd_16u, First::Pointers);
    checkStatuses(vlqsAdd_32u, First::Pointers);
    checkStatuses(vlqsAdd_8u16u, First::Pointers);
    checkStatuses(vlqsAdd_16s32f, First::Pointers);
    checkStatuses(vlqsAdd_16s32s_I, First::Pointers);
    checkStatuses(vlqsAdd_32f, First::Pointers);
    checkStatuses(vlqsAdd_32f_I, First::Pointers);
    checkStatuses(vlqsAdd_64f, First::Pointers);
    checkStatuses(vlqsAdd_64f_I, First::Pointers);
    checkStatuses(vlqsAdd_32fc, First::Length);
    checkStatuses(vlqsAdd_32fc_I, First::Length);
    checkStatuses(vlqsAdd_64fc, First::Length);
    checkStatuses(vlqsAdd_64fc_I, First::Length);
    EXPECT_EQ(vlqStsBadSize, vlqsAdd_32fc(nullptr, nullptr, nullptr, 0));
}

TEST(Sub, Statuses) {
    checkScaledStatuses(vlqsSub_8u_Sfs);
    checkScaledStatuses(vlqsSub_8u_ISfs);
    checkScaledStatuses(vlqsSub_16u_Sfs);
    checkScaledStatuses(vlqsSub_16u_ISfs);
    checkScaledStatuses(vlqsSub_16s_Sfs);
    checkScaledStatuses(vlqsSub_16s_ISfs);
    checkScaledStatuses(vlqsSub_32s_Sfs);
    checkScaledStatuses(vlqsSub_32s_ISfs);
    checkScaledStatuses(vlqsSub_16sc_Sfs, First::Length);
    checkScaledStatuses(vlqsSub_16sc_ISfs, First::Length);
    checkScaledStatuses(vlqsSub_32sc_Sfs, First::Length);
    checkScaledStatuses(vlqsSub_32sc_ISfs, First::Length);
    checkStatuses(vlqsSub_16s, First::Pointers);
    checkStatuses(vlqsSub_16s_I, First::Pointers);
    checkStatuses(vlqsSub_16s32f, First::Pointers);
    checkStatuses(vlqsSub_32f, First::Pointers);
    checkStatuses(vlqsSub_32f_I, First::Pointers);
    checkStatuses(vlqsSub_64f, First::Pointers);
    checkStatuses(vlqsSub_64f_I, First::Pointers);
    checkStatuses(vlqsSub_32fc, First::Length);
    checkStatuses(vlqsSub_32fc_I, First::Length);
    checkStatuses(vlqsSub_64fc, First::Length);
    checkStatuses(vlqsSub_64fc_I, First::Length);
}

// The clear of 64-bit elements has a 32-bit count of 32-bit halves; a wrapped count is refused
// before anything is written.
TEST(Add, WrappedClearOf64s) {
    const Vlq64s src[1] = {};
    Buffer<Vlq64s> dst(1);
    EXPECT_EQ(vlqStsBadSize, vlqsAdd_64s_Sfs(src, src, dst.data(), 1 << 30, 64));
    EXPECT_EQ(vlqStsBadSize, vlqsAdd_64s_Sfs(src, src, dst.data(), INT32_MAX, 64));
    EXPECT_TRUE(dst.untouched());
}

// ---- single values ------------------------------------------------------------------------------
template <class T>
T one(VlqStatus (*call)(const T*, const T*, T*, Vlq32s, Vlq32s), T src1, T src2, int scaleFactor) {
    T dst{};
    EXPECT_EQ(vlqStsOk, call(&src1, &src2, &dst, 1, scaleFactor));
    return dst;
}

TEST(Add, KnownValues) {
    auto add16s = [](int a, int b, int s) {
        return one<Vlq16s>(vlqsAdd_16s_Sfs, static_cast<Vlq16s>(a), static_cast<Vlq16s>(b), s);
    };
    EXPECT_EQ(32767, add16s(32767, 32767, 0));
    EXPECT_EQ(32767, add16s(32767, 32767, 1));
    EXPECT_EQ(1, add16s(32767, 32767, 16));
    EXPECT_EQ(0, add16s(32767, 32767, 17));
    EXPECT_EQ(-1, add16s(-32768, -32768, 16));
    EXPECT_EQ(0, add16s(-32768, -32768, 17));
    EXPECT_EQ(32767, add16s(1, 0, -15));
    EXPECT_EQ(-32768, add16s(-1, 0, -15));
    for (const int s : scaleFactors<Vlq16s>()) EXPECT_EQ(0, add16s(0, 0, s));
    const int ties[][2] = {{3, 2}, {1, 0}, {-1, 0}, {-3, -2}, {5, 2}};
    for (const auto& [e, half] : ties) EXPECT_EQ(half, add16s(e, 0, 1));

    EXPECT_EQ(2147483647, one<Vlq32s>(vlqsAdd_32s_Sfs, 2147483647, 2147483647, 1));
    EXPECT_EQ(1, one<Vlq8u>(vlqsAdd_8u_Sfs, 255, 255, 9));
    EXPECT_EQ(0, one<Vlq8u>(vlqsAdd_8u_Sfs, 255, 255, 10));
    for (const int s : scaleFactors<Vlq16u>()) EXPECT_EQ(0, one<Vlq16u>(vlqsSub_16u_Sfs, 5, 3, s));
    EXPECT_EQ(0, one<Vlq64s>(vlqsAdd_64s_Sfs, INT64_MIN, INT64_MIN, 64));
    EXPECT_EQ(-2, one<Vlq64s>(vlqsAdd_64s_Sfs, INT64_MIN, INT64_MIN, 63));
}

TEST(Sub, ExchangedOperandsNegate) {
    Rng rng(seed());
    const auto a = extremeVector<Vlq32s>(4096, rng), b = extremeVector<Vlq32s>(4096, rng);
    for (const int s : someScaleFactors<Vlq32s>()) {
        std::vector<Vlq32s> forth(a.size()), back(a.size());
        ASSERT_EQ(vlqStsOk, vlqsSub_32s_Sfs(a.data(), b.data(), forth.data(), 4096, s));
        ASSERT_EQ(vlqStsOk, vlqsSub_32s_Sfs(b.data(), a.data(), back.data(), 4096, s));
        for (std::size_t i = 0; i < a.size(); ++i) {
            const Vlq32s negated = forth[i] == INT32_MIN ? INT32_MAX : -forth[i];
            ASSERT_TRUE(back[i] == negated || (forth[i] == INT32_MAX && back[i] == INT32_MIN))
                << i << " at " << s;
        }
    }
}

// ---- digests ------------------------------------------------------------------------------------
template <class T>
void checkDigest(const TwoVectors<T>& call, Element<T> ref, std::uint64_t digest) {
    const auto a = fixedVector<T>(2000, 1), b = fixedVector<T>(2000, 2);
    Digest got, want;
    std::vector<T> dst(a.size());
    for (int s = -70; s <= 70; ++s) {
        ASSERT_EQ(vlqStsOk, call(a.data(), b.data(), dst.data(), 2000, s));
        got.add(dst);
        want.add(wanted<T>(a, b, ref, s));
    }
    expectDigest(digest, got, want);
}

TEST(Add, Digests) {
    checkDigest<Vlq8u>(vlqsAdd_8u_Sfs, addElement, 0xd671c165464e4477);
    checkDigest<Vlq16s>(vlqsAdd_16s_Sfs, addElement, 0xa7df858ccaf6e851);
    checkDigest<Vlq16u>(vlqsAdd_16u_Sfs, addElement, 0x45c43eb5141d8ef8);
    checkDigest<Vlq32s>(vlqsAdd_32s_Sfs, addElement, 0x3fab58a2d2d885f5);
    checkDigest<Vlq64s>(vlqsAdd_64s_Sfs, add64, 0x2f83c9ed1d3384ba);
    checkDigest<Vlq8u>(vlqsSub_8u_Sfs, subElement, 0xe065283cc5a0b72f);
    checkDigest<Vlq16s>(vlqsSub_16s_Sfs, subElement, 0x5823c6faeff6afb1);
    checkDigest<Vlq16u>(vlqsSub_16u_Sfs, subElement, 0xc33e67543a151ea9);
    checkDigest<Vlq32s>(vlqsSub_32s_Sfs, subElement, 0xef02d5706134f1b0);
}

}  // namespace
