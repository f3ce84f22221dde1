// Sums and differences of a vector and a constant.
#include "arith/add_check.h"

namespace {

using namespace vlqtest;

template <class T>
T addElement(T src, T val, Vlq32s scaleFactor) {
    return sumRef(src, val, scaleFactor);
}
template <class T>
T subElement(T src, T val, Vlq32s scaleFactor) {
    return differenceRef(src, val, scaleFactor);
}
template <class T>
T reverseElement(T src, T val, Vlq32s scaleFactor) {
    return differenceRef(val, src, scaleFactor);
}

// ---- lengths, offsets, guard pages --------------------------------------------------------------
template <class T>
void checkInteger(const WithConstant<T>& call, const WithConstant<T>& inPlace, Element<T> ref,
                  std::size_t unit = 1) {
    checkConstantPlaces<T>(call, inPlace, ref, someScaleFactors<T>(), unit);
}

TEST(AddC, Places) {
    checkInteger<Vlq8u>(constant<Vlq8u>(vlqsAddC_8u_Sfs), constant<Vlq8u>(vlqsAddC_8u_ISfs),
                        addElement);
    checkInteger<Vlq16u>(constant<Vlq16u>(vlqsAddC_16u_Sfs), constant<Vlq16u>(vlqsAddC_16u_ISfs),
                         addElement);
    checkInteger<Vlq16s>(constant<Vlq16s>(vlqsAddC_16s_Sfs), constant<Vlq16s>(vlqsAddC_16s_ISfs),
                         addElement);
    checkInteger<Vlq32s>(constant<Vlq32s>(vlqsAddC_32s_Sfs), constant<Vlq32s>(vlqsAddC_32s_ISfs),
                         addElement);
    checkInteger<Vlq16s>(constant<Vlq16s>(vlqsAddC_16sc_Sfs), constant<Vlq16s>(vlqsAddC_16sc_ISfs),
                         addElement, 2);
    checkInteger<Vlq32s>(constant<Vlq32s>(vlqsAddC_32sc_Sfs), constant<Vlq32s>(vlqsAddC_32sc_ISfs),
                         addElement, 2);
    checkConstantPlaces<Vlq16s>(nullptr, constant<Vlq16s>(vlqsAddC_16s_I), addElement, {0});
}
TEST(SubC, Places) {
    checkInteger<Vlq8u>(constant<Vlq8u>(vlqsSubC_8u_Sfs), constant<Vlq8u>(vlqsSubC_8u_ISfs),
                        subElement);
    checkInteger<Vlq16u>(constant<Vlq16u>(vlqsSubC_16u_Sfs), constant<Vlq16u>(vlqsSubC_16u_ISfs),
                         subElement);
    checkInteger<Vlq16s>(constant<Vlq16s>(vlqsSubC_16s_Sfs), constant<Vlq16s>(vlqsSubC_16s_ISfs),
                         subElement);
    checkInteger<Vlq32s>(constant<Vlq32s>(vlqsSubC_32s_Sfs), constant<Vlq32s>(vlqsSubC_32s_ISfs),
                         subElement);
    checkInteger<Vlq16s>(constant<Vlq16s>(vlqsSubC_16sc_Sfs), constant<Vlq16s>(vlqsSubC_16sc_ISfs),
                         subElement, 2);
    checkInteger<Vlq32s>(constant<Vlq32s>(vlqsSubC_32sc_Sfs), constant<Vlq32s>(vlqsSubC_32sc_ISfs),
                         subElement, 2);
    checkConstantPlaces<Vlq16s>(nullptr, constant<Vlq16s>(vlqsSubC_16s_I), subElement, {0});
}
TEST(SubCRev, Places) {
    checkInteger<Vlq8u>(constant<Vlq8u>(vlqsSubCRev_8u_Sfs), constant<Vlq8u>(vlqsSubCRev_8u_ISfs),
                        reverseElement);
    checkInteger<Vlq16u>(constant<Vlq16u>(vlqsSubCRev_16u_Sfs),
                         constant<Vlq16u>(vlqsSubCRev_16u_ISfs), reverseElement);
    checkInteger<Vlq16s>(constant<Vlq16s>(vlqsSubCRev_16s_Sfs),
                         constant<Vlq16s>(vlqsSubCRev_16s_ISfs), reverseElement);
    checkInteger<Vlq32s>(constant<Vlq32s>(vlqsSubCRev_32s_Sfs),
                         constant<Vlq32s>(vlqsSubCRev_32s_ISfs), reverseElement);
    checkInteger<Vlq16s>(constant<Vlq16s>(vlqsSubCRev_16sc_Sfs),
                         constant<Vlq16s>(vlqsSubCRev_16sc_ISfs), reverseElement, 2);
    checkInteger<Vlq32s>(constant<Vlq32s>(vlqsSubCRev_32sc_Sfs),
                         constant<Vlq32s>(vlqsSubCRev_32sc_ISfs), reverseElement, 2);
}

// ---- values -------------------------------------------------------------------------------------
TEST(AddC, EveryPairOf8u) {
    const auto factors = scaleFactors<Vlq8u>();
    const auto all = everyValue<Vlq8u>();
    checkConstants<Vlq8u>(constant<Vlq8u>(vlqsAddC_8u_Sfs), addElement, all, all, factors);
    checkConstants<Vlq8u>(constant<Vlq8u>(vlqsSubC_8u_Sfs), subElement, all, all, factors);
    checkConstants<Vlq8u>(constant<Vlq8u>(vlqsSubCRev_8u_Sfs), reverseElement, all, all, factors);
}

// Every sample of 16 bits under constants from the ends and the middle, at every scale factor of
// use.
template <class T>
void checkEvery16(const WithConstant<T>& call, Element<T> ref) {
    std::vector<int> factors = {INT32_MIN, INT32_MAX};
    for (int s = -18; s <= 20; ++s) factors.push_back(s);
    std::vector<T> constants = {std::numeric_limits<T>::max(), static_cast<T>(12345)};
    if (effort() == Effort::full) {
        for (const T val : {T{0}, T{1}, static_cast<T>(-1), std::numeric_limits<T>::min()})
            constants.push_back(val);
    }
    checkConstants<T>(call, ref, everyValue<T>(), constants, factors);
}
TEST(AddC, EverySampleOf16) {
    checkEvery16<Vlq16s>(constant<Vlq16s>(vlqsAddC_16s_Sfs), addElement);
    checkEvery16<Vlq16u>(constant<Vlq16u>(vlqsAddC_16u_Sfs), addElement);
}
TEST(SubC, EverySampleOf16) {
    checkEvery16<Vlq16s>(constant<Vlq16s>(vlqsSubC_16s_Sfs), subElement);
    checkEvery16<Vlq16u>(constant<Vlq16u>(vlqsSubC_16u_Sfs), subElement);
}
TEST(SubCRev, EverySampleOf16) {
    checkEvery16<Vlq16s>(constant<Vlq16s>(vlqsSubCRev_16s_Sfs), reverseElement);
    checkEvery16<Vlq16u>(constant<Vlq16u>(vlqsSubCRev_16u_Sfs), reverseElement);
}

// All pairs of corners, and random constants with random samples, at every scale factor; each with
// all variants. The complex ones see the constant in both parts.
template <class T>
void checkConstantValues(const std::vector<WithConstant<T>>& variants, Element<T> ref) {
    Rng rng(seed());
    const auto factors = scaleFactors<T>();
    const auto some = corners<T>();
    for (const int s : factors) {
        auto constants = some;
        appendRandom(constants, 40, rng);
        for (std::size_t k = 0; k < constants.size(); ++k) {
            auto src = some;
            if (k >= some.size()) appendRandom(src, byEffort<std::size_t>(34, 340, 3400), rng);
            const T pair[2] = {constants[k], constants[k]};
            const auto want = wanted<T>(src, std::vector<T>(src.size(), pair[0]), ref, s);
            for (std::size_t form = 0; form < variants.size(); ++form) {
                auto dst = src;
                ASSERT_EQ(vlqStsOk, variants[form](src.data(), pair, dst.data(),
                                                   static_cast<int>(src.size()), s));
                for (std::size_t i = 0; i < src.size(); ++i) {
                    ASSERT_EQ(want[i], dst[i]) << src[i] << " and the constant " << pair[0]
                                               << " at scale factor " << s << ", variant " << form;
                }
            }
        }
    }
}
template <class T, class... C>
WithConstant<T> complexConstant(VlqStatus (*call)(C...)) {
    return [form = constant<T>(call)](const T* src, const T* val, T* dst, int len, int s) {
        return form(src, val, dst, len / 2, s);
    };
}
TEST(AddC, Values16sc) {
    checkConstantValues<Vlq16s>(
        {complexConstant<Vlq16s>(vlqsAddC_16sc_Sfs), complexConstant<Vlq16s>(vlqsAddC_16sc_ISfs)},
        addElement);
    checkConstantValues<Vlq16s>(
        {complexConstant<Vlq16s>(vlqsSubC_16sc_Sfs), complexConstant<Vlq16s>(vlqsSubC_16sc_ISfs)},
        subElement);
    checkConstantValues<Vlq16s>({complexConstant<Vlq16s>(vlqsSubCRev_16sc_Sfs),
                                 complexConstant<Vlq16s>(vlqsSubCRev_16sc_ISfs)},
                                reverseElement);
}
TEST(AddC, Values32s) {
    checkConstantValues<Vlq32s>(
        {constant<Vlq32s>(vlqsAddC_32s_Sfs), constant<Vlq32s>(vlqsAddC_32s_ISfs),
         complexConstant<Vlq32s>(vlqsAddC_32sc_Sfs), complexConstant<Vlq32s>(vlqsAddC_32sc_ISfs)},
        addElement);
}
TEST(SubC, Values32s) {
    checkConstantValues<Vlq32s>(
        {constant<Vlq32s>(vlqsSubC_32s_Sfs), constant<Vlq32s>(vlqsSubC_32s_ISfs),
         complexConstant<Vlq32s>(vlqsSubC_32sc_Sfs), complexConstant<Vlq32s>(vlqsSubC_32sc_ISfs)},
        subElement);
}
TEST(SubCRev, Values32s) {
    checkConstantValues<Vlq32s>(
        {constant<Vlq32s>(vlqsSubCRev_32s_Sfs), constant<Vlq32s>(vlqsSubCRev_32s_ISfs),
         complexConstant<Vlq32s>(vlqsSubCRev_32sc_Sfs),
         complexConstant<Vlq32s>(vlqsSubCRev_32sc_ISfs)},
        reverseElement);
}

// ---- 64 bits with a rounding mode ---------------------------------------------------------------
template <class T>
T roundedSum(T src, T val, Vlq32s scaleFactor, VlqRoundMode mode) {
    return scaleRef<T>(Exact{src} + val, scaleFactor, mode);
}

template <class T>
using Rounded = VlqStatus (*)(const T*, T, T*, Vlq32u, Vlq32s, VlqRoundMode);

template <class T>
void checkRounded(Rounded<T> call) {
    std::size_t turn = 0;
    const std::vector<int> factors = someScaleFactors<T>();
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const int s = factors[turn++ % factors.size()];
        const VlqRoundMode mode = static_cast<VlqRoundMode>(turn % 5) - 1;
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        const T val = extremeValue<T>(c.rng);
        std::vector<T> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = roundedSum(a[i], val, s, mode);
        const Buffer<T> src(a, c.place[1]);
        Buffer<T> dst(a, c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), static_cast<Vlq32u>(c.len), s, mode));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << s << ", mode " << mode;
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, call(dst.data(), val, dst.data(), static_cast<Vlq32u>(c.len), s, mode));
        ASSERT_TRUE(same(dst, want)) << "over the source, scale factor " << s << ", mode " << mode;
    });

    // Every corner as a constant, and random ones, the modes in turn.
    const auto some = corners<T>();
    constexpr VlqRoundMode modes[] = {vlqRndZero, vlqRndNear, vlqRndFinancial, -7};
    Rng rng(seed());
    for (const int s : scaleFactors<T>()) {
        auto constants = some;
        appendRandom(constants, 48, rng);
        for (std::size_t k = 0; k < constants.size(); ++k) {
            auto src = some;
            if (k >= some.size()) appendRandom(src, byEffort<std::size_t>(14, 140, 1400), rng);
            const T val = constants[k];
            const VlqRoundMode mode = modes[(k + static_cast<std::size_t>(s & 3)) % 4];
            std::vector<T> dst(src.size());
            ASSERT_EQ(vlqStsOk,
                      call(src.data(), val, dst.data(), static_cast<Vlq32u>(src.size()), s, mode));
            for (std::size_t i = 0; i < src.size(); ++i) {
                ASSERT_EQ(roundedSum(src[i], val, s, mode), dst[i])
                    << src[i] << " and " << val << " at scale factor " << s << ", mode " << mode;
            }
        }
    }
}

TEST(AddC, Rounded64s) { checkRounded<Vlq64s>(vlqsAddC_64s_Sfs); }
TEST(AddC, Rounded64u) { checkRounded<Vlq64u>(vlqsAddC_64u_Sfs); }

TEST(AddC, LastBitOf64s) {
    auto one = [](Vlq64s src, Vlq64s val, int s, VlqRoundMode mode) {
        Vlq64s dst = 99;
        EXPECT_EQ(vlqStsOk, vlqsAddC_64s_Sfs(&src, val, &dst, 1, s, mode));
        return dst;
    };
    EXPECT_EQ(-1, one(INT64_MIN, INT64_MIN, 65, 2));
    EXPECT_EQ(0, one(INT64_MIN, INT64_MIN, 65, 1));
    EXPECT_EQ(0, one(INT64_MIN, INT64_MIN, 65, 0));
    EXPECT_EQ(0, one(INT64_MIN, INT64_MIN + 1, 65, 2));
    EXPECT_EQ(0, one(INT64_MAX, INT64_MAX, 65, 2));
    EXPECT_EQ(-1, one(INT64_MIN, INT64_MIN, 64, 0));
    EXPECT_EQ(1, one(INT64_MAX, INT64_MAX, 64, 1));
    EXPECT_EQ(0, one(INT64_MIN, INT64_MIN, 66, 2));
}

// ---- floats -------------------------------------------------------------------------------------
// A constant of 0 keeps the bits; all others are one operation.
template <class T>
T addFloat(T src, T val, Vlq32s) {
    return val == 0 ? src : src + val;
}
template <class T>
T subFloat(T src, T val, Vlq32s) {
    return val == 0 ? src : src - val;
}
template <class T>
T reverseFloat(T src, T val, Vlq32s) {
    return val - src;
}
template <class T>
T addComplex(T src, T val, Vlq32s) {
    return src + val;
}
template <class T>
T subComplex(T src, T val, Vlq32s) {
    return src - val;
}

TEST(AddC, Float) {
    checkConstantPlaces<Vlq32f>(constant<Vlq32f>(vlqsAddC_32f), constant<Vlq32f>(vlqsAddC_32f_I),
                                addFloat, {0});
    checkConstantPlaces<Vlq64f>(constant<Vlq64f>(vlqsAddC_64f), constant<Vlq64f>(vlqsAddC_64f_I),
                                addFloat, {0});
    checkConstantPlaces<Vlq32f>(constant<Vlq32f>(vlqsAddC_32fc), constant<Vlq32f>(vlqsAddC_32fc_I),
                                addComplex, {0}, 2);
    checkConstantPlaces<Vlq64f>(constant<Vlq64f>(vlqsAddC_64fc), constant<Vlq64f>(vlqsAddC_64fc_I),
                                addComplex, {0}, 2);
}
TEST(SubC, Float) {
    checkConstantPlaces<Vlq32f>(constant<Vlq32f>(vlqsSubC_32f), constant<Vlq32f>(vlqsSubC_32f_I),
                                subFloat, {0});
    checkConstantPlaces<Vlq64f>(constant<Vlq64f>(vlqsSubC_64f), constant<Vlq64f>(vlqsSubC_64f_I),
                                subFloat, {0});
    checkConstantPlaces<Vlq32f>(constant<Vlq32f>(vlqsSubC_32fc), constant<Vlq32f>(vlqsSubC_32fc_I),
                                subComplex, {0}, 2);
    checkConstantPlaces<Vlq64f>(constant<Vlq64f>(vlqsSubC_64fc), constant<Vlq64f>(vlqsSubC_64fc_I),
                                subComplex, {0}, 2);
}
TEST(SubCRev, Float) {
    checkConstantPlaces<Vlq32f>(constant<Vlq32f>(vlqsSubCRev_32f),
                                constant<Vlq32f>(vlqsSubCRev_32f_I), reverseFloat, {0});
    checkConstantPlaces<Vlq64f>(constant<Vlq64f>(vlqsSubCRev_64f),
                                constant<Vlq64f>(vlqsSubCRev_64f_I), reverseFloat, {0});
    checkConstantPlaces<Vlq32f>(constant<Vlq32f>(vlqsSubCRev_32fc),
                                constant<Vlq32f>(vlqsSubCRev_32fc_I), reverseFloat, {0}, 2);
    checkConstantPlaces<Vlq64f>(constant<Vlq64f>(vlqsSubCRev_64fc),
                                constant<Vlq64f>(vlqsSubCRev_64fc_I), reverseFloat, {0}, 2);
}

TEST(AddC, ZeroKeepsTheBits) {
    const std::vector<Vlq32f> v = {-0.0f, 0.0f, std::numeric_limits<Vlq32f>::signaling_NaN(), 1.5f,
                                   -INFINITY};
    const std::vector<Vlq64f> w = {-0.0, 0.0, std::numeric_limits<Vlq64f>::signaling_NaN(), 1.5,
                                   -INFINITY};
    const Buffer<Vlq32f> src(v);
    const Buffer<Vlq64f> wide(w);
    for (const Vlq32f zero : {0.0f, -0.0f}) {
        Buffer<Vlq32f> dst(v.size()), same32(v);
        Buffer<Vlq64f> wideDst(w.size()), same64(w);
        EXPECT_EQ(vlqStsOk, vlqsAddC_32f(src.data(), zero, dst.data(), 5));
        EXPECT_TRUE(same(dst, v));
        EXPECT_EQ(vlqStsOk, vlqsSubC_32f(src.data(), zero, dst.data(), 5));
        EXPECT_TRUE(same(dst, v));
        EXPECT_EQ(vlqStsOk, vlqsAddC_32f_I(zero, same32.data(), 5));
        EXPECT_EQ(vlqStsOk, vlqsSubC_32f_I(zero, same32.data(), 5));
        EXPECT_TRUE(same(same32, v));
        EXPECT_EQ(vlqStsOk, vlqsAddC_64f(wide.data(), zero, wideDst.data(), 5));
        EXPECT_TRUE(same(wideDst, w));
        EXPECT_EQ(vlqStsOk, vlqsSubC_64f(wide.data(), zero, wideDst.data(), 5));
        EXPECT_TRUE(same(wideDst, w));
        EXPECT_EQ(vlqStsOk, vlqsAddC_64f_I(zero, same64.data(), 5));
        EXPECT_EQ(vlqStsOk, vlqsSubC_64f_I(zero, same64.data(), 5));
        EXPECT_TRUE(same(same64, w));
    }
    // A complex zero is added like any other: -0.0 + 0.0 is 0.0.
    const Vlq32fc minus[1] = {{-0.0f, -0.0f}};
    Vlq32fc sum[1];
    EXPECT_EQ(vlqStsOk, vlqsAddC_32fc(minus, {0.0f, -0.0f}, sum, 1));
    EXPECT_FALSE(std::signbit(sum[0].re));
    EXPECT_TRUE(std::signbit(sum[0].im));
}

TEST(AddC, NotANumberSpreads) {
    const std::vector<Vlq32f> v(37, 1.0f);
    std::vector<Vlq32f> dst(37);
    ASSERT_EQ(vlqStsOk,
              vlqsAddC_32f(v.data(), std::numeric_limits<Vlq32f>::quiet_NaN(), dst.data(), 37));
    for (const Vlq32f x : dst) EXPECT_TRUE(std::isnan(x));
}

TEST(AddC, ComplexPastTheCache) {
    Rng rng(seed());
    for (const int len : {8191, 8192, 8193, 10007}) {
        const auto a = extremeVector<Vlq64f>(static_cast<std::size_t>(len) * 2, rng);
        const Vlq64fc val{1.25, -3e10};
        std::vector<Vlq64f> want(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) want[i] = a[i] + (i % 2 == 0 ? val.re : val.im);
        for (const int offset : {0, 16, 32, 48, 8, 40, 5}) {
            const Buffer<Vlq64f> src(a, {24, false});
            Buffer<Vlq64f> dst(a.size(), {offset, false});
            ASSERT_EQ(vlqStsOk, vlqsAddC_64fc(reinterpret_cast<const Vlq64fc*>(src.data()), val,
                                              reinterpret_cast<Vlq64fc*>(dst.data()), len));
            ASSERT_TRUE(same(dst, want)) << "len " << len << ", offset " << offset;
        }
    }
}

// Bytes are counted in 32 bits: 2^28 elements of 8 bytes wrap to a negative count, and 2^29 + 1 to
// that of one element.
TEST(AddC, WrappedCopyOf64f) {
    const Vlq64f src[2] = {1.5, 2.5};
    Buffer<Vlq64f> dst(2);
    EXPECT_EQ(vlqStsBadSize, vlqsAddC_64f(src, 0.0, dst.data(), 1 << 28));
    EXPECT_EQ(vlqStsBadSize, vlqsAddC_64f(src, -0.0, dst.data(), 1 << 29));
    EXPECT_TRUE(dst.untouched());
    dst.assign({7.0, 7.0});
    EXPECT_EQ(vlqStsOk, vlqsAddC_64f(src, 0.0, dst.data(), (1 << 29) + 1));
    EXPECT_TRUE(same(dst, std::vector<Vlq64f>{1.5, 7.0}));
}

// ---- statuses -----------------------------------------------------------------------------------
template <class C>
struct Forms {
    VlqStatus (*call)(const C*, C, C*, Vlq32s, Vlq32s);
    VlqStatus (*inPlace)(C, C*, Vlq32s, Vlq32s);
};

const std::vector<int> kEveryRange = {0, 1, 2, 8, 9, 17, 18, 33, INT32_MAX, -1, -8, -16, INT32_MIN};

// Pointers, then length, whatever the constant and the scale factor.
template <class C>
void checkStatuses(Forms<C> forms, const std::vector<C>& constants,
                   const std::vector<int>& factors = kEveryRange) {
    const C src[2] = {};
    Buffer<C> dst(2);
    for (const C val : constants) {
        for (const int s : factors) {
            for (const int len : {0, -1, INT32_MIN}) {
                EXPECT_EQ(vlqStsNullPtr, forms.call(nullptr, val, dst.data(), len, s));
                EXPECT_EQ(vlqStsNullPtr, forms.call(src, val, nullptr, len, s));
                EXPECT_EQ(vlqStsBadSize, forms.call(src, val, dst.data(), len, s));
                EXPECT_EQ(vlqStsNullPtr, forms.inPlace(val, nullptr, len, s));
                EXPECT_EQ(vlqStsBadSize, forms.inPlace(val, dst.data(), len, s));
            }
            EXPECT_EQ(vlqStsNullPtr, forms.call(nullptr, val, dst.data(), 1, s));
            EXPECT_EQ(vlqStsNullPtr, forms.call(src, val, nullptr, 1, s));
            EXPECT_EQ(vlqStsNullPtr, forms.inPlace(val, nullptr, 1, s));
        }
    }
    EXPECT_TRUE(dst.untouched());
}

template <class C>
void checkStatuses(VlqStatus (*call)(const C*, C, C*, Vlq32s), VlqStatus (*inPlace)(C, C*, Vlq32s),
                   const std::vector<C>& constants) {
    const C src[2] = {};
    Buffer<C> dst(2);
    for (const C val : constants) {
        for (const int len : {0, -1, INT32_MIN}) {
            if (call) {
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, val, dst.data(), len));
                EXPECT_EQ(vlqStsNullPtr, call(src, val, nullptr, len));
                EXPECT_EQ(vlqStsBadSize, call(src, val, dst.data(), len));
            }
            EXPECT_EQ(vlqStsNullPtr, inPlace(val, nullptr, len));
            EXPECT_EQ(vlqStsBadSize, inPlace(val, dst.data(), len));
        }
    }
    EXPECT_TRUE(dst.untouched());
}

TEST(AddC, Statuses) {
    checkStatuses<Vlq8u>({vlqsAddC_8u_Sfs, vlqsAddC_8u_ISfs}, {0, 5});
    checkStatuses<Vlq16s>({vlqsAddC_16s_Sfs, vlqsAddC_16s_ISfs}, {0, 5});
    checkStatuses<Vlq32s>({vlqsAddC_32s_Sfs, vlqsAddC_32s_ISfs}, {0, 5});
    checkStatuses<Vlq16sc>({vlqsAddC_16sc_Sfs, vlqsAddC_16sc_ISfs}, {{0, 0}, {5, 6}});
    checkStatuses<Vlq32sc>({vlqsAddC_32sc_Sfs, vlqsAddC_32sc_ISfs}, {{0, 0}, {5, 6}});
    checkStatuses<Vlq16s>(nullptr, vlqsAddC_16s_I, {0, 5});
    checkStatuses<Vlq32f>(vlqsAddC_32f, vlqsAddC_32f_I, {0, 5});
    checkStatuses<Vlq64f>(vlqsAddC_64f, vlqsAddC_64f_I, {0, 5});
    checkStatuses<Vlq32fc>(vlqsAddC_32fc, vlqsAddC_32fc_I, {{0, 0}, {5, 6}});
    checkStatuses<Vlq64fc>(vlqsAddC_64fc, vlqsAddC_64fc_I, {{0, 0}, {5, 6}});
    Vlq64fc one{};
    EXPECT_EQ(vlqStsNullPtr, vlqsAddC_64fc(nullptr, one, &one, 9000));
    EXPECT_EQ(vlqStsNullPtr, vlqsAddC_64fc(&one, one, nullptr, 9000));
}
TEST(SubC, Statuses) {
    checkStatuses<Vlq8u>({vlqsSubC_8u_Sfs, vlqsSubC_8u_ISfs}, {0, 5});
    checkStatuses<Vlq16s>({vlqsSubC_16s_Sfs, vlqsSubC_16s_ISfs}, {0, 5});
    checkStatuses<Vlq32s>({vlqsSubC_32s_Sfs, vlqsSubC_32s_ISfs}, {0, 5});
    checkStatuses<Vlq16sc>({vlqsSubC_16sc_Sfs, vlqsSubC_16sc_ISfs}, {{0, 0}, {5, 6}});
    checkStatuses<Vlq32sc>({vlqsSubC_32sc_Sfs, vlqsSubC_32sc_ISfs}, {{0, 0}, {5, 6}});
    checkStatuses<Vlq16s>(nullptr, vlqsSubC_16s_I, {0, 5});
    checkStatuses<Vlq32f>(vlqsSubC_32f, vlqsSubC_32f_I, {0, 5});
    checkStatuses<Vlq64f>(vlqsSubC_64f, vlqsSubC_64f_I, {0, 5});
    checkStatuses<Vlq32fc>(vlqsSubC_32fc, vlqsSubC_32fc_I, {{0, 0}, {5, 6}});
    checkStatuses<Vlq64fc>(vlqsSubC_64fc, vlqsSubC_64fc_I, {{0, 0}, {5, 6}});
}
TEST(SubCRev, Statuses) {
    checkStatuses<Vlq8u>({vlqsSubCRev_8u_Sfs, vlqsSubCRev_8u_ISfs}, {0, 5});
    checkStatuses<Vlq16s>({vlqsSubCRev_16s_Sfs, vlqsSubCRev_16s_ISfs}, {0, 5});
    checkStatuses<Vlq32s>({vlqsSubCRev_32s_Sfs, vlqsSubCRev_32s_ISfs}, {0, 5});
    checkStatuses<Vlq16sc>({vlqsSubCRev_16sc_Sfs, vlqsSubCRev_16sc_ISfs}, {{0, 0}, {5, 6}});
    checkStatuses<Vlq32sc>({vlqsSubCRev_32sc_Sfs, vlqsSubCRev_32sc_ISfs}, {{0, 0}, {5, 6}});
    checkStatuses<Vlq32f>(vlqsSubCRev_32f, vlqsSubCRev_32f_I, {0, 5});
    checkStatuses<Vlq64f>(vlqsSubCRev_64f, vlqsSubCRev_64f_I, {0, 5});
    checkStatuses<Vlq32fc>(vlqsSubCRev_32fc, vlqsSubCRev_32fc_I, {{0, 0}, {5, 6}});
    checkStatuses<Vlq64fc>(vlqsSubCRev_64fc, vlqsSubCRev_64fc_I, {{0, 0}, {5, 6}});
}

// The length is unsigned: only 0 is refused, and what the copy refuses.
template <class T>
void checkStatuses64(Rounded<T> call) {
    const T src[2] = {};
    Buffer<T> dst(2);
    for (const T val : {T{0}, T{5}}) {
        for (const int s : {0, 1, 65, 66, INT32_MAX, -1, INT32_MIN}) {
            EXPECT_EQ(vlqStsNullPtr, call(nullptr, val, dst.data(), 0, s, 1));
            EXPECT_EQ(vlqStsNullPtr, call(src, val, nullptr, 0, s, 1));
            EXPECT_EQ(vlqStsBadSize, call(src, val, dst.data(), 0, s, 1));
        }
    }
    EXPECT_EQ(vlqStsBadSize, call(src, 0, dst.data(), 0x80000000u, 0, 1));
    EXPECT_TRUE(dst.untouched());
}
TEST(AddC, Statuses64) {
    checkStatuses64<Vlq64s>(vlqsAddC_64s_Sfs);
    checkStatuses64<Vlq64u>(vlqsAddC_64u_Sfs);
}

// 16u: the shortcut comes first, and its own checks are the only ones.
TEST(AddC, Shortcuts16u) {
    const Vlq16u src[2] = {1, 2};
    Buffer<Vlq16u> dst(2);
    for (const auto& forms : {Forms<Vlq16u>{vlqsAddC_16u_Sfs, vlqsAddC_16u_ISfs},
                              {vlqsSubC_16u_Sfs, vlqsSubC_16u_ISfs}}) {
        checkStatuses<Vlq16u>(forms, {5}, {0, 1, 2, 16, 17, 18, INT32_MAX, -1, -15});
        EXPECT_EQ(vlqStsNullPtr, forms.call(nullptr, 0, dst.data(), 0, 0));
        EXPECT_EQ(vlqStsNullPtr, forms.call(src, 0, nullptr, 0, 0));
        EXPECT_EQ(vlqStsBadSize, forms.call(src, 0, dst.data(), 0, 0));
        EXPECT_EQ(vlqStsOk, forms.inPlace(0, nullptr, 0, 0));
        EXPECT_EQ(vlqStsOk, forms.inPlace(0, dst.data(), -1, 0));
        EXPECT_EQ(vlqStsNullPtr, forms.inPlace(0, nullptr, 0, 1));
        EXPECT_EQ(vlqStsBadSize, forms.inPlace(0, dst.data(), 0, 1));
    }
    EXPECT_TRUE(dst.untouched());

    // A fill of the result does not look at the source, a clear does.
    EXPECT_EQ(vlqStsNullPtr, vlqsAddC_16u_Sfs(nullptr, 5, dst.data(), 2, 18));
    EXPECT_EQ(vlqStsNullPtr, vlqsAddC_16u_Sfs(src, 5, nullptr, 0, -16));
    EXPECT_EQ(vlqStsBadSize, vlqsAddC_16u_Sfs(src, 5, dst.data(), 0, -16));
    EXPECT_TRUE(dst.untouched());
    EXPECT_EQ(vlqStsOk, vlqsAddC_16u_Sfs(nullptr, 5, dst.data(), 2, -16));
    EXPECT_TRUE(same(dst, std::vector<Vlq16u>{65535, 65535}));
}
TEST(SubCRev, Shortcuts16u) {
    const Vlq16u src[2] = {1, 2};
    Buffer<Vlq16u> dst(2);
    checkStatuses<Vlq16u>({vlqsSubCRev_16u_Sfs, vlqsSubCRev_16u_ISfs}, {5},
                          {0, 1, 2, 16, -1, -16, INT32_MIN});
    EXPECT_EQ(vlqStsNullPtr, vlqsSubCRev_16u_Sfs(src, 5, nullptr, 0, 17));
    EXPECT_EQ(vlqStsBadSize, vlqsSubCRev_16u_Sfs(src, 5, dst.data(), 0, 17));
    EXPECT_EQ(vlqStsBadSize, vlqsSubCRev_16u_ISfs(0, dst.data(), 0, 3));
    EXPECT_EQ(vlqStsNullPtr, vlqsSubCRev_16u_ISfs(0, nullptr, 0, 3));
    EXPECT_TRUE(dst.untouched());
    EXPECT_EQ(vlqStsOk, vlqsSubCRev_16u_Sfs(nullptr, 0, dst.data(), 2, -3));
    EXPECT_TRUE(same(dst, std::vector<Vlq16u>{0, 0}));
}

TEST(SubCRev, KnownValue) {
    const Vlq16s src = -32768;
    Vlq16s dst = 0;
    EXPECT_EQ(vlqStsOk, vlqsSubCRev_16s_Sfs(&src, 0, &dst, 1, 0));
    EXPECT_EQ(32767, dst);
}

// ---- digests ------------------------------------------------------------------------------------
template <class T>
void checkDigest(const WithConstant<T>& call, Element<T> ref, std::uint64_t digest) {
    const auto src = fixedVector<T>(2000, 3), constants = fixedVector<T>(141, 4);
    Digest got, want;
    std::vector<T> dst(src.size());
    for (int s = -70; s <= 70; ++s) {
        const T val = constants[static_cast<std::size_t>(s + 70)];
        ASSERT_EQ(vlqStsOk, call(src.data(), &val, dst.data(), 2000, s));
        got.add(dst);
        want.add(wanted<T>(src, std::vector<T>(src.size(), val), ref, s));
    }
    expectDigest(digest, got, want);
}

template <class T>
void checkDigest64(Rounded<T> call, std::uint64_t digest) {
    const auto src = fixedVector<T>(2000, 5), constants = fixedVector<T>(141, 6);
    Digest got, want;
    std::vector<T> dst(src.size()), ref(src.size());
    for (int s = -70; s <= 70; ++s) {
        const T val = constants[static_cast<std::size_t>(s + 70)];
        for (const VlqRoundMode mode : {vlqRndZero, vlqRndNear, vlqRndFinancial}) {
            ASSERT_EQ(vlqStsOk, call(src.data(), val, dst.data(), 2000, s, mode));
            for (std::size_t i = 0; i < src.size(); ++i) ref[i] = roundedSum(src[i], val, s, mode);
            got.add(dst);
            want.add(ref);
        }
    }
    expectDigest(digest, got, want);
}

TEST(AddC, Digests) {
    checkDigest<Vlq8u>(constant<Vlq8u>(vlqsAddC_8u_Sfs), addElement, 0x8c6c134f628e6032);
    checkDigest<Vlq16s>(constant<Vlq16s>(vlqsAddC_16s_Sfs), addElement, 0x396bde84918dd9e2);
    checkDigest<Vlq16u>(constant<Vlq16u>(vlqsAddC_16u_Sfs), addElement, 0xba07487273adc49f);
    checkDigest<Vlq32s>(constant<Vlq32s>(vlqsAddC_32s_Sfs), addElement, 0xcfc233ce9f02cabd);
    checkDigest<Vlq8u>(constant<Vlq8u>(vlqsSubC_8u_Sfs), subElement, 0x6d927aab43c4cdad);
    checkDigest<Vlq16s>(constant<Vlq16s>(vlqsSubC_16s_Sfs), subElement, 0x2878f2d348ba57bb);
    checkDigest<Vlq16u>(constant<Vlq16u>(vlqsSubC_16u_Sfs), subElement, 0x407b23d55a3005d0);
    checkDigest<Vlq32s>(constant<Vlq32s>(vlqsSubC_32s_Sfs), subElement, 0xc597dc9a6800eec7);
    checkDigest<Vlq8u>(constant<Vlq8u>(vlqsSubCRev_8u_Sfs), reverseElement, 0xcdd136f7402ce66);
    checkDigest<Vlq16s>(constant<Vlq16s>(vlqsSubCRev_16s_Sfs), reverseElement, 0x2074159a6355a4ee);
    checkDigest<Vlq16u>(constant<Vlq16u>(vlqsSubCRev_16u_Sfs), reverseElement, 0xaa32bbfafb556f64);
    checkDigest<Vlq32s>(constant<Vlq32s>(vlqsSubCRev_32s_Sfs), reverseElement, 0x3eee02130918d281);
    checkDigest64<Vlq64s>(vlqsAddC_64s_Sfs, 0x48a8f52f1b38a41e);
    checkDigest64<Vlq64u>(vlqsAddC_64u_Sfs, 0x73e9c37567269f);
}

}  // namespace
