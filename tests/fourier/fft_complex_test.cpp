#include "fourier/fft_complex_ref.h"

#include <cstring>

#include "harness/buffer.h"
#include "harness/core_double.h"
#include "harness/random.h"
#include "vlqs/fourier.h"

namespace {

using namespace vlqtest;

constexpr Vlq32s kFlags[] = {vlqNormFwdByN, vlqNormInvByN, vlqNormBySqrtN, vlqNormNone};
constexpr int kLargest = 28;

// First words of a record, for tests that look at the memory they gave.
struct Head {
    Vlq32s ident, order, doFwdScale, doInvScale;
    Vlq32f normFactor;
    Vlq32s hint, workBytes, owned;
};
template <class Spec>
Head headOf(const Spec* spec) {
    Head head;
    std::memcpy(&head, static_cast<const void*>(spec), sizeof head);
    return head;
}

// The two kinds under one set of names.
struct Interleaved {
    using Spec = VlqsFFTSpec_C_32fc;
    static constexpr Vlq32s word = 4;
    static constexpr auto getSize = vlqsFFTGetSize_C_32fc;
    static constexpr auto init = vlqsFFTInit_C_32fc;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32fc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32fc;
    static constexpr auto free = vlqsFFTFree_C_32fc;
    // x and y hold the real parts, then the imaginary parts.
    static VlqStatus transform(bool forward, const Vlq32f* x, Vlq32f* y, const Spec* spec, Vlq8u* buf, int) {
        const auto* src = reinterpret_cast<const Vlq32fc*>(x);
        auto* dst = reinterpret_cast<Vlq32fc*>(y);
        if (x == y) return forward ? vlqsFFTFwd_CToC_32fc_I(dst, spec, buf) : vlqsFFTInv_CToC_32fc_I(dst, spec, buf);
        return forward ? vlqsFFTFwd_CToC_32fc(src, dst, spec, buf) : vlqsFFTInv_CToC_32fc(src, dst, spec, buf);
    }
    static std::vector<Vlq32f> fromParts(const std::vector<Vlq32f>& parts) {
        std::vector<Vlq32f> v(parts.size());
        for (std::size_t i = 0; i < parts.size() / 2; ++i) {
            v[2 * i] = parts[i];
            v[2 * i + 1] = parts[parts.size() / 2 + i];
        }
        return v;
    }
    static std::complex<long double> at(const std::vector<Vlq32f>& v, std::size_t i) { return {v[2 * i], v[2 * i + 1]}; }
};
struct Split {
    using Spec = VlqsFFTSpec_C_32f;
    static constexpr Vlq32s word = 5;
    static constexpr auto getSize = vlqsFFTGetSize_C_32f;
    static constexpr auto init = vlqsFFTInit_C_32f;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32f;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32f;
    static constexpr auto free = vlqsFFTFree_C_32f;
    static VlqStatus transform(bool forward, const Vlq32f* x, Vlq32f* y, const Spec* spec, Vlq8u* buf, int order) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        if (x == y) return forward ? vlqsFFTFwd_CToC_32f_I(y, y + n, spec, buf) : vlqsFFTInv_CToC_32f_I(y, y + n, spec, buf);
        return forward ? vlqsFFTFwd_CToC_32f(x, x + n, y, y + n, spec, buf)
                       : vlqsFFTInv_CToC_32f(x, x + n, y, y + n, spec, buf);
    }
    static std::vector<Vlq32f> fromParts(const std::vector<Vlq32f>& parts) { return parts; }
    static std::complex<long double> at(const std::vector<Vlq32f>& v, std::size_t i) { return {v[i], v[v.size() / 2 + i]}; }
};

template <class Kind>
class FftComplex : public ::testing::Test {
protected:
    void SetUp() override { Core::reset(); }
    void TearDown() override { EXPECT_EQ(0, Core::outstanding()); }
};
using Kinds = ::testing::Types<Interleaved, Split>;
TYPED_TEST_SUITE(FftComplex, Kinds);

template <class Kind>
class Record {
public:
    Record(int order, Vlq32s flag) { EXPECT_EQ(vlqStsOk, Kind::initAlloc(&spec, order, flag, vlqHintNone)); }
    ~Record() { EXPECT_EQ(vlqStsOk, Kind::free(spec)); }
    typename Kind::Spec* spec = nullptr;
};

// Relative error in the 2-norm.
template <class Kind>
double errorOf(const std::vector<Vlq32f>& got, const std::vector<Extended>& want) {
    long double difference = 0, norm = 0;
    for (std::size_t i = 0; i < want.size(); ++i) {
        difference += std::norm(Kind::at(got, i) - want[i]);
        norm += std::norm(want[i]);
    }
    return static_cast<double>(std::sqrt(difference / norm));
}

TYPED_TEST(FftComplex, AgreesWithTheDefinition) {
    using Kind = TypeParam;
    Rng rng(seed());
    for (int order = 0; order <= 18; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const auto x = Kind::fromParts(uniformVector<Vlq32f>(2 * n, -1, 1, rng));
        std::vector<Extended> exact(n);
        for (std::size_t i = 0; i < n; ++i) exact[i] = Kind::at(x, i);
        const Record<Kind> record(order, vlqNormNone);
        const double bound = order == 0 ? 0 : 0.75 * std::sqrt(order) * 0x1p-24;
        for (const bool forward : {true, false}) {
            const auto want = dft(exact, forward ? -1 : 1);
            std::vector<Vlq32f> y(2 * n);
            ASSERT_EQ(vlqStsOk, Kind::transform(forward, x.data(), y.data(), record.spec, nullptr, order));
            EXPECT_LE(errorOf<Kind>(y, want), bound) << "order " << order << (forward ? " forward" : " inverse");
        }
    }
}

}  // namespace
