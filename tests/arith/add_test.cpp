#include "arith/add_ref.h"

#include "harness/sweep.h"
#include "vlqs/arith.h"

namespace {

using namespace vlqtest;

template <class T>
using Scaled = VlqStatus (*)(const T*, const T*, T*, Vlq32s, Vlq32s);
template <class T>
using ScaledInPlace = VlqStatus (*)(const T*, T*, Vlq32s, Vlq32s);
template <class T>
using Element = T (*)(T, T, Vlq32s);  // of the first and the second vector

// All ranges of every type, their ends, and the far ends of the scale factor.
std::vector<int> scaleFactors() {
    std::vector<int> all;
    for (int s = -70; s <= 70; ++s) all.push_back(s);
    for (const int s : {-1000, 1000, INT32_MIN, INT32_MIN + 1, INT32_MAX, -256, 256, -65536, 65536}) all.push_back(s);
    return all;
}

template <class T>
std::vector<T> wanted(const std::vector<T>& a, const std::vector<T>& b, Element<T> ref, int scaleFactor) {
    std::vector<T> want(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) want[i] = ref(a[i], b[i], scaleFactor);
    return want;
}

// Lengths, offsets and guard pages, with a scale factor of each range in turn.
template <class T>
void checkPlaces(Scaled<T> call, ScaledInPlace<T> inPlace, Element<T> ref) {
    constexpr int bits = 8 * static_cast<int>(sizeof(T));
    const int factors[] = {0, 1, 2, 3, bits / 2, bits, bits + 2, -1, -bits / 2, -bits - 1};
    std::size_t turn = 0;
    sweep(sizeof(T), {5003}, [&](Case& c) {
        const int scaleFactor = factors[turn++ % std::size(factors)];
        const auto a = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        const auto b = extremeVector<T>(static_cast<std::size_t>(c.len), c.rng);
        const auto want = wanted<T>(a, b, ref, scaleFactor);

        const Buffer<T> src1(a, c.place[1]), src2(b, c.place[2]);
        Buffer<T> dst(a.size(), c.place[0]);
        ASSERT_EQ(vlqStsOk, call(src1.data(), src2.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "scale factor " << scaleFactor;

        // In place the destination is the second operand of a sum and the minuend of a difference.
        dst.assign(b);
        ASSERT_EQ(vlqStsOk, inPlace(src1.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "in place, scale factor " << scaleFactor;
        dst.assign(a);
        ASSERT_EQ(vlqStsOk, call(dst.data(), src2.data(), dst.data(), c.len, scaleFactor));
        ASSERT_TRUE(same(dst, want)) << "over the first, scale factor " << scaleFactor;
    });
}

// Values where a sum changes its range, paired with one another.
template <class T>
std::vector<T> corners() {
    std::vector<T> values;
    constexpr int bits = std::numeric_limits<T>::digits;
    for (int shift = 0; shift <= bits; ++shift) {
        for (int d = -2; d <= 2; ++d) {
            const auto value = static_cast<T>((std::uint64_t{1} << (shift < 64 ? shift : 63)) + static_cast<std::uint64_t>(d));
            values.push_back(value);
            values.push_back(static_cast<T>(0 - static_cast<std::uint64_t>(value)));
        }
    }
    return values;
}

// Corner pairs and `pairs` random ones at every scale factor.
template <class T>
void checkValues(Scaled<T> call, Element<T> ref, std::size_t pairs) {
    const std::vector<T> some = corners<T>();
    Rng rng(seed());
    for (const int scaleFactor : scaleFactors()) {
        std::vector<T> a, b;
        for (const T x : some) {
            for (const T y : some) {
                a.push_back(x);
                b.push_back(y);
            }
        }
        for (std::size_t i = 0; i < pairs; ++i) {
            a.push_back(extremeValue<T>(rng));
            b.push_back(extremeValue<T>(rng));
        }
        std::vector<T> dst(a.size());
        ASSERT_EQ(vlqStsOk, call(a.data(), b.data(), dst.data(), static_cast<int>(a.size()), scaleFactor));
        const auto want = wanted<T>(a, b, ref, scaleFactor);
        for (std::size_t i = 0; i < a.size(); ++i) {
            ASSERT_EQ(want[i], dst[i]) << +a[i] << " and " << +b[i] << " at scale factor " << scaleFactor;
        }
    }
}

template <class T>
void checkScaled(Scaled<T> call, ScaledInPlace<T> inPlace, Element<T> ref, std::size_t pairs) {
    checkPlaces<T>(call, inPlace, ref);
    checkValues<T>(call, ref, pairs);
}

// Sub computes src2 - src1, in place srcDst - src.
template <class T>
T subRef(T src1, T src2, Vlq32s scaleFactor) { return differenceRef(src2, src1, scaleFactor); }

TEST(Add, Scaled16s) { checkScaled<Vlq16s>(vlqsAdd_16s_Sfs, vlqsAdd_16s_ISfs, sumRef<Vlq16s>, 40000); }
TEST(Sub, Scaled16s) { checkScaled<Vlq16s>(vlqsSub_16s_Sfs, vlqsSub_16s_ISfs, subRef<Vlq16s>, 40000); }

}  // namespace
