#include "fourier/fft_real_ref.h"

#include <array>
#include <thread>

#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"
#include "vlqs/fourier.h"

namespace {

using namespace vlqtest;

using Spec = VlqsFFTSpec_R_32f;
using Call = VlqStatus (*)(const Vlq32f*, Vlq32f*, const Spec*, Vlq8u*);
using CallInPlace = VlqStatus (*)(Vlq32f*, const Spec*, Vlq8u*);

struct Form {
    const char* name;
    Layout layout;
    Call forward, inverse;
    CallInPlace forwardInPlace, inverseInPlace;
};
const Form kForms[] = {
    {"CCS", Layout::ccs, vlqsFFTFwd_RToCCS_32f, vlqsFFTInv_CCSToR_32f, vlqsFFTFwd_RToCCS_32f_I, vlqsFFTInv_CCSToR_32f_I},
    {"Pack", Layout::pack, vlqsFFTFwd_RToPack_32f, vlqsFFTInv_PackToR_32f, vlqsFFTFwd_RToPack_32f_I, vlqsFFTInv_PackToR_32f_I},
    {"Perm", Layout::perm, vlqsFFTFwd_RToPerm_32f, vlqsFFTInv_PermToR_32f, vlqsFFTFwd_RToPerm_32f_I, vlqsFFTInv_PermToR_32f_I},
};
constexpr Vlq32s kFlags[] = {vlqNormFwdByN, vlqNormInvByN, vlqNormBySqrtN, vlqNormNone};

long double factorOf(Vlq32s flag, Vlq32s byN, int order) {
    if (flag == byN) return std::ldexp(1.0L, -order);
    return flag == vlqNormBySqrtN ? 1 / std::sqrt(std::ldexp(1.0L, order)) : 1;
}

std::size_t pointsOf(int order) { return std::size_t{1} << order; }

class Record {
public:
    Record(int order, Vlq32s flag) {
        const VlqStatus status = vlqsFFTInitAlloc_R_32f(&spec_, order, flag, vlqHintNone);
        if (status != vlqStsOk) ADD_FAILURE() << "order " << order << ": status " << status;
    }
    ~Record() { vlqsFFTFree_R_32f(spec_); }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    operator Spec*() const { return spec_; }

private:
    Spec* spec_ = nullptr;
};

// Norm of the difference over the norm of what is expected.
template <class Got, class Want>
long double relativeError(const std::vector<Got>& got, const std::vector<Want>& want) {
    if (got.size() != want.size()) return INFINITY;
    long double difference = 0, norm = 0;
    for (std::size_t i = 0; i < got.size(); ++i) {
        const auto g = static_cast<long double>(got[i]), w = static_cast<long double>(want[i]);
        difference += (g - w) * (g - w);
        norm += w * w;
    }
    return norm > 0 ? std::sqrt(difference / norm) : std::sqrt(difference);
}
// The rounding errors of the levels add up like noise.
long double bound(int order) { return 0x1p-24L * (1.5L + 0.25L * order); }

TEST(FftReal, ReferenceIsTheSum) {
    Rng rng(seed());
    for (int order = 0; order <= 7; ++order) {
        const auto x = uniformVector<Vlq32f>(pointsOf(order), -1, 1, rng);
        const std::vector<Complex> values(x.begin(), x.end());
        const auto want = dftSum(values), got = dftRef(values);
        for (std::size_t k = 0; k < got.size(); ++k) EXPECT_LT(std::abs(got[k] - want[k]), 1e-15L);
    }
}

TEST(FftReal, Values) {
    Rng rng(seed());
    for (int order = 0; order <= 19; ++order) {
        const auto x = uniformVector<Vlq32f>(pointsOf(order), -1, 1, rng);
        const auto spectrum = realDftRef(x);
        for (const Vlq32s flag : kFlags) {
            const Record record(order, flag);
            for (const Form& form : kForms) {
                if (order > 16 && (flag == vlqNormBySqrtN) != (form.layout == Layout::pack)) continue;
                const auto packed = layOut(form.layout, spectrum, 1);
                const Buffer<Vlq32f> signal(x);
                Buffer<Vlq32f> dst(packed.size());
                ASSERT_EQ(vlqStsOk, form.forward(signal.data(), dst.data(), record, nullptr));
                ASSERT_TRUE(dst.marginsIntact());
                EXPECT_LT(relativeError(dst.values(), layOut(form.layout, spectrum, factorOf(flag, vlqNormFwdByN, order))), bound(order))
                    << form.name << ", order " << order << ", flag " << flag;

                const Buffer<Vlq32f> source(std::vector<Vlq32f>(packed.begin(), packed.end()));
                Buffer<Vlq32f> back(x.size());
                ASSERT_EQ(vlqStsOk, form.inverse(source.data(), back.data(), record, nullptr));
                ASSERT_TRUE(back.marginsIntact());
                std::vector<long double> want(x.begin(), x.end());
                for (long double& v : want) v *= std::ldexp(factorOf(flag, vlqNormInvByN, order), order);
                EXPECT_LT(relativeError(back.values(), want), bound(order))
                    << form.name << " inverse, order " << order << ", flag " << flag;
            }
        }
    }
}

// Every position by itself: one sample forward, one value of the spectrum back. Each level may add
// half a unit of a rounded factor and half of a rounded product.
TEST(FftReal, EveryValueAlone) {
    for (int order = 0; order <= 8; ++order) {
        const std::size_t n = pointsOf(order);
        const double unit = 0x1p-24 * (1 + order);
        const Record record(order, vlqNormNone);
        for (std::size_t at = 0; at < n; ++at) {
            std::vector<Vlq32f> x(n), spectrum(n), back(n);
            x[at] = 1;
            ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f(x.data(), spectrum.data(), record, nullptr));
            const auto want = layOut(Layout::perm, realDftRef(x), 1);
            ASSERT_EQ(vlqStsOk, vlqsFFTInv_PermToR_32f(x.data(), back.data(), record, nullptr));
            const std::size_t k = at == 0 ? 0 : at == 1 ? n / 2 : at / 2;
            for (std::size_t i = 0; i < n; ++i) {
                EXPECT_NEAR(static_cast<double>(want[i]), spectrum[i], unit) << "order " << order << ", sample " << at << ", value " << i;
                const Complex root = std::conj(unitRoot(i * k, n));
                const long double value = at < 2 ? root.real() : at % 2 == 0 ? 2 * root.real() : -2 * root.imag();
                EXPECT_NEAR(static_cast<double>(value), back[i], 2 * unit) << "order " << order << ", value " << at << ", sample " << i;
            }
        }
    }
}

TEST(FftReal, RoundTrips) {
    Rng rng(seed());
    for (int order = 0; order <= 18; ++order) {
        const auto x = uniformVector<Vlq32f>(pointsOf(order), -1, 1, rng);
        const Vlq32s flag = order % 3 == 0 ? vlqNormBySqrtN : order % 3 == 1 ? vlqNormInvByN : vlqNormFwdByN;
        const Record record(order, flag);
        for (const Form& form : kForms) {
            Buffer<Vlq32f> data(layoutSize(form.layout, x.size()));
            data.assign(x);
            ASSERT_EQ(vlqStsOk, form.forwardInPlace(data.data(), record, nullptr));
            ASSERT_EQ(vlqStsOk, form.inverseInPlace(data.data(), record, nullptr));
            ASSERT_TRUE(data.marginsIntact());
            auto values = data.values();
            values.resize(x.size());
            EXPECT_LT(relativeError(values, x), 2 * bound(order)) << form.name << ", order " << order;
        }
    }
}

TEST(FftReal, SmallLayouts) {
    const Vlq32f x[2] = {3, 5};
    Vlq32f y[4];
    const Record one(0, vlqNormFwdByN), two(1, vlqNormNone), four(2, vlqNormNone);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_32f(x, y, one, nullptr));
    EXPECT_EQ(3, y[0]);
    EXPECT_EQ(0, y[1]);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f(x + 1, y, one, nullptr));
    EXPECT_EQ(5, y[0]);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPack_32f(x, y, one, nullptr));
    EXPECT_EQ(3, y[0]);

    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_32f(x, y, two, nullptr));
    const Vlq32f ccs[4] = {8, 0, -2, 0};
    EXPECT_EQ(0, std::memcmp(ccs, y, sizeof ccs));
    for (const Call call : {vlqsFFTFwd_RToPack_32f, vlqsFFTFwd_RToPerm_32f}) {
        ASSERT_EQ(vlqStsOk, call(x, y, two, nullptr));
        EXPECT_EQ(8, y[0]);
        EXPECT_EQ(-2, y[1]);
    }

    const Vlq32f quad[4] = {1, 20, 300, 4000};
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f(quad, y, four, nullptr));
    const Vlq32f want[4] = {4321, 301 - 4020, 1 - 300, 4000 - 20};
    EXPECT_EQ(0, std::memcmp(want, y, sizeof want));
}

// The zeros of a CCS spectrum are not looked at.
TEST(FftReal, ZerosOfCcsAreIgnored) {
    Rng rng(seed());
    for (int order = 0; order <= 9; ++order) {
        const std::size_t n = pointsOf(order);
        const Record record(order, vlqNormInvByN);
        auto spectrum = uniformVector<Vlq32f>(n + 2, -1, 1, rng);
        std::vector<Vlq32f> first(n), second(n);
        spectrum[1] = spectrum[n + 1] = 0;
        ASSERT_EQ(vlqStsOk, vlqsFFTInv_CCSToR_32f(spectrum.data(), first.data(), record, nullptr));
        spectrum[1] = spectrum[n + 1] = NAN;
        ASSERT_EQ(vlqStsOk, vlqsFFTInv_CCSToR_32f(spectrum.data(), second.data(), record, nullptr));
        EXPECT_EQ(first, second);
    }
}

// Bit for bit the same result wherever the vectors and the work buffer lie, in place or not.
TEST(FftReal, PlacementDoesNotMatter) {
    Rng rng(seed());
    const std::array<Placement, 5> places{{{0, false}, {4, false}, {16, false}, {37, false}, {0, true}}};
    for (int order = 0; order <= 19; ++order) {
        const std::size_t n = pointsOf(order);
        const auto x = uniformVector<Vlq32f>(n, -1, 1, rng);
        const Record record(order, vlqNormBySqrtN);
        Vlq32s workBytes = -1;
        ASSERT_EQ(vlqStsOk, vlqsFFTGetBufSize_R_32f(record, &workBytes));
        for (const Form& form : kForms) {
            const std::size_t m = layoutSize(form.layout, n);
            std::vector<Vlq32f> forward, inverse;
            for (const Placement& place : places) {
                const Buffer<Vlq32f> src(x, {place.offset * 5 % 64, place.atGuardPage});
                Buffer<Vlq32f> dst(m, place), data(m, place), back(n, place);
                Buffer<Vlq8u> work(static_cast<std::size_t>(workBytes), place);
                Vlq8u* buf = workBytes > 0 ? work.data() : nullptr;
                Core::reset();
                ASSERT_EQ(vlqStsOk, form.forward(src.data(), dst.data(), record, buf));
                if (forward.empty()) forward = dst.values();
                ASSERT_TRUE(same(dst, forward)) << form.name << ", order " << order;
                ASSERT_TRUE(same(src, x));
                data.assign(x);
                ASSERT_EQ(vlqStsOk, form.forwardInPlace(data.data(), record, buf));
                ASSERT_TRUE(same(data, forward)) << form.name << " in place, order " << order;

                const Buffer<Vlq32f> spectrum(forward, {place.offset * 3 % 64, place.atGuardPage});
                ASSERT_EQ(vlqStsOk, form.inverse(spectrum.data(), back.data(), record, buf));
                if (inverse.empty()) inverse = back.values();
                ASSERT_TRUE(same(back, inverse)) << form.name << " inverse, order " << order;
                ASSERT_TRUE(same(spectrum, forward));
                ASSERT_EQ(vlqStsOk, form.inverseInPlace(data.data(), record, buf));
                ASSERT_EQ(0, std::memcmp(data.data(), inverse.data(), n * sizeof(Vlq32f))) << form.name << " inverse in place, order " << order;
                ASSERT_TRUE(data.marginsIntact() && work.marginsIntact());
                EXPECT_EQ(0, Core::allocations());
            }
            // A call without a work buffer brings its own.
            Buffer<Vlq32f> dst(m);
            Core::reset();
            const int before = Core::outstanding();
            ASSERT_EQ(vlqStsOk, form.forward(x.data(), dst.data(), record, nullptr));
            ASSERT_TRUE(same(dst, forward));
            EXPECT_EQ(workBytes > 0 ? 1 : 0, Core::allocations());
            EXPECT_EQ(before, Core::outstanding());
        }
    }
}

// From 2^19 points on the factors of the recombination are products of two tables: the even values
// of a signal made twice as long by zeros are those of the shorter one.
TEST(FftReal, BothFormsOfFactorsAgree) {
    Rng rng(seed());
    const std::size_t n = pointsOf(18);
    auto x = uniformVector<Vlq32f>(n, -1, 1, rng);
    std::vector<Vlq32f> half(n + 2), whole(2 * n + 2), even, back(2 * n);
    const Record shorter(18, vlqNormNone), longer(19, vlqNormInvByN);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_32f(x.data(), half.data(), shorter, nullptr));
    x.resize(2 * n);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToCCS_32f(x.data(), whole.data(), longer, nullptr));
    for (std::size_t k = 0; k <= n / 2; ++k) even.insert(even.end(), {whole[4 * k], whole[4 * k + 1]});
    EXPECT_LT(relativeError(even, half), 2 * bound(19));
    ASSERT_EQ(vlqStsOk, vlqsFFTInv_CCSToR_32f(whole.data(), back.data(), longer, nullptr));
    EXPECT_LT(relativeError(back, x), 2 * bound(19));
}

TEST(FftReal, LongRoundTrips) {
    Rng rng(seed());
    for (const int order : {20, 22}) {
        const auto x = uniformVector<Vlq32f>(pointsOf(order), -1, 1, rng);
        auto y = x;
        const Record record(order, vlqNormInvByN);
        ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f_I(y.data(), record, nullptr));
        double sum = 0, alternating = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            sum += x[i];
            alternating += i % 2 == 0 ? x[i] : -x[i];
        }
        EXPECT_NEAR(sum, y[0], 1e-2);
        EXPECT_NEAR(alternating, y[1], 1e-2);
        ASSERT_EQ(vlqStsOk, vlqsFFTInv_PermToR_32f_I(y.data(), record, nullptr));
        EXPECT_LT(relativeError(y, x), 2 * bound(order));
    }
}

TEST(FftReal, Sizes) {
    for (int order = 0; order <= 29; ++order) {
        for (const Vlq32s flag : kFlags) {
            Vlq32s spec = -1, init = -1, work = -1;
            ASSERT_EQ(vlqStsOk, vlqsFFTGetSize_R_32f(order, flag, vlqHintFast, &spec, &init, &work));
            const Sizes want = realSizesRef(order);
            EXPECT_EQ(want.spec, spec) << "order " << order;
            EXPECT_EQ(want.init, init) << "order " << order;
            EXPECT_EQ(want.work, work) << "order " << order;
            if (flag != vlqNormNone || order > 20) continue;
            const Record record(order, flag);
            Vlq32s buf = -1;
            ASSERT_EQ(vlqStsOk, vlqsFFTGetBufSize_R_32f(record, &buf));
            EXPECT_EQ(work, buf) << "order " << order;
        }
    }
}

// The record stays inside its size wherever its memory lies, and leaves the scratch alone later.
TEST(FftReal, RecordInCallersMemory) {
    Rng rng(seed());
    for (int order = 0; order <= 19; ++order) {
        const auto x = uniformVector<Vlq32f>(pointsOf(order), -1, 1, rng);
        std::vector<Vlq32f> want(x.size()), got(x.size());
        {
            const Record record(order, vlqNormBySqrtN);
            ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f(x.data(), want.data(), record, nullptr));
        }
        Vlq32s specBytes, initBytes, workBytes;
        ASSERT_EQ(vlqStsOk, vlqsFFTGetSize_R_32f(order, vlqNormBySqrtN, vlqHintNone, &specBytes, &initBytes, &workBytes));
        for (const Placement place : {Placement{0, false}, {1, false}, {63, false}, {36, false}, {0, true}}) {
            Buffer<Vlq8u> memory(static_cast<std::size_t>(specBytes), place);
            Buffer<Vlq8u> scratch(static_cast<std::size_t>(initBytes), place);
            Spec* spec = nullptr;
            Core::reset();
            ASSERT_EQ(vlqStsOk, vlqsFFTInit_R_32f(&spec, order, vlqNormBySqrtN, vlqHintAccurate, memory.data(),
                                                  order > 10 ? scratch.data() : nullptr));
            EXPECT_EQ(0, Core::allocations());
            const auto address = reinterpret_cast<std::uintptr_t>(spec), start = reinterpret_cast<std::uintptr_t>(memory.data());
            EXPECT_EQ((start + 63) / 64 * 64, address);
            EXPECT_TRUE(memory.marginsIntact() && scratch.marginsIntact());
            if (initBytes > 0) scratch.assign(std::vector<Vlq8u>(scratch.size(), 0xEE));

            ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f(x.data(), got.data(), spec, nullptr));
            EXPECT_EQ(want, got) << "order " << order;
            EXPECT_EQ(vlqStsOk, vlqsFFTFree_R_32f(spec));
            EXPECT_EQ(0, Core::outstanding());
            EXPECT_EQ(vlqStsBadSpec, vlqsFFTFree_R_32f(spec));
            EXPECT_EQ(vlqStsBadSpec, vlqsFFTFwd_RToPerm_32f(x.data(), got.data(), spec, nullptr));
        }
    }
}

TEST(FftReal, ChecksOfGetSize) {
    Vlq32s a = 7, b = 7, c = 7;
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTGetSize_R_32f(-1, 3, 0, nullptr, &b, &c));
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTGetSize_R_32f(31, 3, 0, &a, &b, &c));
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTGetSize_R_32f(30, 3, 0, nullptr, &b, &c));
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTGetSize_R_32f(8, 3, 0, &a, nullptr, &c));
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTGetSize_R_32f(8, 3, 0, &a, &b, nullptr));
    for (const Vlq32s flag : {0, 3, 5, 6, 7, 9, 12, -1}) {
        EXPECT_EQ(vlqStsBadFlag, vlqsFFTGetSize_R_32f(30, flag, 0, &a, &b, &c));
    }
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTGetSize_R_32f(30, vlqNormNone, 0, &a, &b, &c));
    EXPECT_EQ(7, a);
    EXPECT_EQ(7, b);
    EXPECT_EQ(7, c);
    EXPECT_EQ(vlqStsOk, vlqsFFTGetSize_R_32f(29, vlqNormNone, 77, &a, &b, &c));
}

TEST(FftReal, ChecksOfInit) {
    Spec* spec = nullptr;
    Buffer<Vlq8u> memory(1 << 16), scratch(1 << 16);
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTInit_R_32f(nullptr, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTInit_R_32f(&spec, -1, 3, 0, nullptr, nullptr));
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTInit_R_32f(&spec, 30, 3, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTInit_R_32f(&spec, 11, 3, 0, nullptr, nullptr));
    EXPECT_TRUE(memory.untouched());
    EXPECT_EQ(vlqStsBadFlag, vlqsFFTInit_R_32f(&spec, 11, 3, 0, memory.data(), nullptr));
    // A failed build leaves the word 0: the memory is no record.
    EXPECT_EQ(vlqStsBadSpec, vlqsFFTFree_R_32f(reinterpret_cast<Spec*>(memory.data())));
    EXPECT_EQ(vlqStsBadFlag, vlqsFFTInit_R_32f(&spec, 5, 0, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTInit_R_32f(&spec, 11, vlqNormNone, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsBadSpec, vlqsFFTFree_R_32f(reinterpret_cast<Spec*>(memory.data())));
    EXPECT_EQ(nullptr, spec);
    EXPECT_EQ(vlqStsOk, vlqsFFTInit_R_32f(&spec, 10, vlqNormNone, 0, memory.data(), nullptr));
    EXPECT_EQ(vlqStsOk, vlqsFFTInit_R_32f(&spec, 11, vlqNormNone, 0, memory.data(), scratch.data()));
    EXPECT_EQ(vlqStsOk, vlqsFFTFree_R_32f(spec));
}

TEST(FftReal, ChecksOfInitAlloc) {
    Spec* spec = nullptr;
    EXPECT_EQ(vlqStsNullPtr, vlqsFFTInitAlloc_R_32f(nullptr, 31, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTInitAlloc_R_32f(&spec, 31, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTInitAlloc_R_32f(&spec, -1, 3, 0));
    EXPECT_EQ(vlqStsBadFlag, vlqsFFTInitAlloc_R_32f(&spec, 30, 3, 0));
    EXPECT_EQ(vlqStsBadOrder, vlqsFFTInitAlloc_R_32f(&spec, 30, 8, 0));
    EXPECT_EQ(nullptr, spec);
}

TEST(FftReal, RefusedMemory) {
    for (const int order : {0, 4, 5, 10, 11, 15}) {
        const int needed = order > 10 ? 2 : 1;
        Spec* spec = nullptr;
        for (int k = 1; k <= needed; ++k) {
            Core::reset();
            Core::refuseAllocation(k);
            EXPECT_EQ(vlqStsNoMemory, vlqsFFTInitAlloc_R_32f(&spec, order, vlqNormNone, 0));
            EXPECT_EQ(0, Core::outstanding());
        }
        Core::reset();
        EXPECT_EQ(vlqStsOk, vlqsFFTInitAlloc_R_32f(&spec, order, vlqNormNone, 0));
        EXPECT_EQ(needed, Core::allocations());
        EXPECT_EQ(1, Core::outstanding());
        EXPECT_EQ(vlqStsOk, vlqsFFTFree_R_32f(spec));
        EXPECT_EQ(0, Core::outstanding());
    }
    for (const int order : {5, 6, 7, 12}) {
        const Record record(order, vlqNormNone);
        const Buffer<Vlq32f> src(std::vector<Vlq32f>(pointsOf(order) + 2, 1.0f));
        for (const Form& form : kForms) {
            for (const Call call : {form.forward, form.inverse}) {
                Buffer<Vlq32f> dst(pointsOf(order) + 2);
                Core::reset();
                Core::refuseAllocation(1);
                EXPECT_EQ(order > 6 ? vlqStsNoMemory : vlqStsOk, call(src.data(), dst.data(), record, nullptr));
                EXPECT_EQ(order > 6, dst.untouched());
                Core::reset();
            }
        }
    }
}

TEST(FftReal, ChecksOfTransforms) {
    Buffer<Vlq32f> v(64), w(66);
    Buffer<Vlq8u> dead(1024);
    dead.assign(std::vector<Vlq8u>(1024));
    auto* foreign = reinterpret_cast<Spec*>(dead.data());
    const Record record(6, vlqNormNone);
    for (const Vlq32s word : {0, 1, 3, 4, 5, 7, 9, 15, 0x434D414F}) {  // dead, and of the other kinds
        std::memcpy(dead.data(), &word, sizeof word);
        for (const Form& form : kForms) {
            for (const Call call : {form.forward, form.inverse}) {
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, nullptr, nullptr, nullptr));
                EXPECT_EQ(vlqStsBadSpec, call(nullptr, w.data(), foreign, nullptr));
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, w.data(), record, nullptr));
                EXPECT_EQ(vlqStsNullPtr, call(v.data(), nullptr, record, nullptr));
            }
            for (const CallInPlace call : {form.forwardInPlace, form.inverseInPlace}) {
                EXPECT_EQ(vlqStsNullPtr, call(w.data(), nullptr, nullptr));
                EXPECT_EQ(vlqStsBadSpec, call(nullptr, foreign, nullptr));
                EXPECT_EQ(vlqStsNullPtr, call(nullptr, record, nullptr));
            }
        }
        Vlq32s bytes = 5;
        EXPECT_EQ(vlqStsBadSpec, vlqsFFTGetBufSize_R_32f(foreign, &bytes));
        EXPECT_EQ(vlqStsNullPtr, vlqsFFTGetBufSize_R_32f(nullptr, &bytes));
        EXPECT_EQ(vlqStsNullPtr, vlqsFFTGetBufSize_R_32f(record, nullptr));
        EXPECT_EQ(vlqStsBadSpec, vlqsFFTFree_R_32f(foreign));
        EXPECT_EQ(vlqStsNullPtr, vlqsFFTFree_R_32f(nullptr));
        EXPECT_EQ(5, bytes);
    }
    EXPECT_TRUE(v.untouched() && w.untouched());
}

// One record serves several threads, each with its own work buffer.
TEST(FftReal, OneRecordForSeveralThreads) {
    Rng rng(seed());
    const Record record(10, vlqNormNone);
    const auto x = uniformVector<Vlq32f>(1024, -1, 1, rng);
    std::vector<Vlq32f> want(1024);
    ASSERT_EQ(vlqStsOk, vlqsFFTFwd_RToPerm_32f(x.data(), want.data(), record, nullptr));
    Vlq32s bytes = 0;
    ASSERT_EQ(vlqStsOk, vlqsFFTGetBufSize_R_32f(record, &bytes));
    std::array<std::vector<Vlq32f>, 2> got;
    std::vector<std::thread> threads;
    for (auto& result : got) {
        threads.emplace_back([&result, &x, &record, bytes] {
            std::vector<Vlq8u> work(static_cast<std::size_t>(bytes));
            for (int repeat = 0; repeat < 200; ++repeat) {
                result = x;
                vlqsFFTFwd_RToPerm_32f_I(result.data(), record, work.data());
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (const auto& result : got) EXPECT_EQ(want, result);
}

}  // namespace
