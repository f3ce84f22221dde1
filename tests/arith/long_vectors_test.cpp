// Vectors of more than 2^31 bytes or elements. Their memory is a few megabytes, seen again and
// again at ascending addresses, and a tail of its own behind these, where the end of a call shows.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cmath>

#include "harness/effort.h"
#include "harness/element.h"
#include "vlqs/arith.h"
#include "vlqs/convert.h"
#include "vlqs/move.h"

namespace {

using namespace vlqtest;

// Instrumented code would take minutes, and gigabytes take long in any case: the usual run has one
// copy and one kernel, the full one all of them.
const bool kTooSlow = sanitized() || effort() == Effort::quick;
const bool kFew = kTooSlow || effort() != Effort::full;

template <class T>
class LongVector {
public:
    static constexpr std::size_t kPeriod = std::size_t{1} << 18;  // elements

    explicit LongVector(std::size_t count) : count_(count), whole_(count / kPeriod) {
        constexpr std::size_t window = kPeriod * sizeof(T);
        bytes_ = (whole_ + 1) * window;
        start_ = static_cast<std::byte*>(mmap(nullptr, bytes_, PROT_READ | PROT_WRITE,
                                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
        const int file = memfd_create("period", 0);
        usable_ = start_ != MAP_FAILED && file >= 0 && ftruncate(file, window) == 0;
        for (std::size_t k = 0; usable_ && k < whole_; ++k) {
            usable_ = mmap(start_ + k * window, window, PROT_READ | PROT_WRITE,
                           MAP_SHARED | MAP_FIXED, file, 0) != MAP_FAILED;
        }
        if (file >= 0) close(file);
    }
    ~LongVector() {
        if (start_ != MAP_FAILED) munmap(start_, bytes_);
    }
    LongVector(const LongVector&) = delete;
    LongVector& operator=(const LongVector&) = delete;

    bool usable() const { return usable_; }
    T* data() { return reinterpret_cast<T*>(start_); }
    T* period() { return data(); }
    T* tail() { return data() + whole_ * kPeriod; }
    std::size_t tailLength() const { return count_ - whole_ * kPeriod; }

    void fill(Rng& rng) {
        for (std::size_t i = 0; i < kPeriod; ++i) period()[i] = extremeElement<T>(rng);
        for (std::size_t i = 0; i < tailLength(); ++i) tail()[i] = extremeElement<T>(rng);
    }

private:
    std::size_t count_, whole_, bytes_ = 0;
    std::byte* start_ = nullptr;
    bool usable_ = false;
};

template <class S, class D>
class Pair {
public:
    explicit Pair(std::size_t count) : src_(count), dst_(count) {
        Rng rng(seed());
        if (usable()) src_.fill(rng);
        std::memset(&untouched_, 0x5A, sizeof untouched_);
    }
    bool usable() const { return src_.usable() && dst_.usable(); }

    // call(src, dst) against ref(element), over the whole length and no further.
    template <class Call, class Ref>
    void check(Call call, Ref ref) {
        constexpr std::size_t beyond = 4096;
        std::fill_n(dst_.period(), LongVector<D>::kPeriod, untouched_);
        std::fill_n(dst_.tail(), dst_.tailLength() + beyond, untouched_);
        ASSERT_EQ(vlqStsOk, call(src_.data(), dst_.data()));
        compare(src_.period(), dst_.period(), LongVector<D>::kPeriod, ref);
        compare(src_.tail(), dst_.tail(), dst_.tailLength(), ref);
        const D* const end = dst_.tail() + dst_.tailLength();
        ASSERT_TRUE(std::all_of(end, end + beyond, [&](D v) { return equal(v, untouched_); }))
            << "beyond the end";
    }

private:
    static bool equal(D a, D b) { return std::memcmp(&a, &b, sizeof a) == 0; }
    template <class Ref>
    void compare(const S* from, const D* to, std::size_t length, Ref ref) {
        for (std::size_t i = 0; i < length; ++i)
            ASSERT_TRUE(equal(ref(from[i]), to[i])) << "element " << i;
    }

    LongVector<S> src_;
    LongVector<D> dst_;
    D untouched_;
};

// The longest count of bytes.
TEST(LongVectors, Bytes) {
    if (kTooSlow) GTEST_SKIP() << "instrumented";
    Pair<Vlq8u, Vlq8u> pair(INT_MAX);
    if (!pair.usable()) GTEST_SKIP() << "no address space";
    pair.check([](const Vlq8u* s, Vlq8u* d) { return vlqsCopy_8u(s, d, INT_MAX); },
               [](Vlq8u v) { return v; });
    pair.check([](const Vlq8u* s, Vlq8u* d) { return vlqsAdd_8u_Sfs(s, s, d, INT_MAX, 1); },
               [](Vlq8u v) { return v; });
    if (kFew) return;
    pair.check([](const Vlq8u*, Vlq8u* d) { return vlqsSet_8u(201, d, INT_MAX); },
               [](Vlq8u) { return Vlq8u{201}; });
    pair.check([](const Vlq8u* s, Vlq8u* d) { return vlqsMove_8u(s, d, INT_MAX); },
               [](Vlq8u v) { return v; });
    pair.check([](const Vlq8u*, Vlq8u* d) { return vlqsZero_8u(d, INT_MAX); },
               [](Vlq8u) { return Vlq8u{0}; });
}

// Elements whose bytes do not fit 32 bits.
TEST(LongVectors, MoreBytesThan32Bits) {
    if (kFew) GTEST_SKIP() << "not a full run";
    constexpr int len = (1 << 28) + 12345;
    Pair<Vlq64sc, Vlq64sc> pair(len);
    if (!pair.usable()) GTEST_SKIP() << "no address space";
    pair.check([](const Vlq64sc* s, Vlq64sc* d) { return vlqsCopy_64sc(s, d, len); },
               [](Vlq64sc v) { return v; });
    pair.check(
        [](const Vlq64sc*, Vlq64sc* d) {
            return vlqsSet_64sc({7, -8}, d, len);
        },
        [](Vlq64sc) {
            return Vlq64sc{7, -8};
        });
    pair.check([](const Vlq64sc* s, Vlq64sc* d) { return vlqsMove_64sc(s, d, len); },
               [](Vlq64sc v) { return v; });
    pair.check([](const Vlq64sc*, Vlq64sc* d) { return vlqsZero_64sc(d, len); },
               [](Vlq64sc) {
                   return Vlq64sc{0, 0};
               });
}

// Unsigned lengths beyond the signed ones.
constexpr Vlq32u kUnsigned = 0x80000000u + 54321;
TEST(LongVectors, UnsignedLength) {
    if (kFew) GTEST_SKIP() << "not a full run";
    Pair<Vlq16s, Vlq8s> pair(kUnsigned);
    if (!pair.usable()) GTEST_SKIP() << "no address space";
    pair.check([](const Vlq16s* s,
                  Vlq8s* d) { return vlqsConvert_16s8s_Sfs(s, d, kUnsigned, vlqRndNear, 0); },
               [](Vlq16s v) { return static_cast<Vlq8s>(std::clamp<int>(v, -128, 127)); });
    pair.check([](const Vlq16s* s,
                  Vlq8s* d) { return vlqsConvert_16s8s_Sfs(s, d, kUnsigned, vlqRndNear, 40); },
               [](Vlq16s) { return Vlq8s{0}; });
}

// A length that is taken as it is leads into a protected page.
TEST(LongVectors, UnsignedLengthIsNotNegative) {
    constexpr std::size_t count = 5000;
    Buffer<Vlq64s> integers(count, {0, true});
    Buffer<Vlq64f> floats(count, {0, true});
    Buffer<Vlq64u> naturals(count, {0, true});
    EXPECT_DEATH(vlqsConvert_64s64f(integers.data(), floats.data(), kUnsigned), "");
    EXPECT_DEATH(vlqsConvert_64f64s_Sfs(floats.data(), integers.data(), kUnsigned, vlqRndNear, 0),
                 "");
    EXPECT_DEATH(vlqsConvert_64f64s_Sfs(floats.data(), integers.data(), 0xFFFFFFFFu, vlqRndZero, 3),
                 "");
    EXPECT_DEATH(vlqsAddC_64s_Sfs(integers.data(), 3, integers.data(), kUnsigned, 1, vlqRndNear),
                 "");
    EXPECT_DEATH(vlqsAddC_64u_Sfs(naturals.data(), 3, naturals.data(), 0xFFFFFFFFu, -1, vlqRndNear),
                 "");
}

}  // namespace
