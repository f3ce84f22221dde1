// Single samples through integer FIR filters: exact results, and the ring that keeps the past.
#include "filter/fir/integer/integer_kinds.h"

namespace {

using namespace vlqtest;

std::size_t count(int n) { return static_cast<std::size_t>(n); }

template <class K>
class FirIntSingle : public ::testing::Test {
protected:
    Rng rng{seed()};
};
TYPED_TEST_SUITE(FirIntSingle, EveryKind);

// Every small number of taps, for more than two turns of the ring; a block leaves it at its start.
TYPED_TEST(FirIntSingle, Values) {
    using Sample = typename TypeParam::Sample;
    for (int taps = 1; taps <= 150; taps += taps < 70 ? 1 : 9) {
        const auto h = wideTaps<typename TypeParam::Tap>(count(taps), this->rng);
        const auto past = values<Sample>(count(taps), this->rng),
                   src = values<Sample>(count(2 * taps + 3), this->rng);
        const int scale = taps % 5 - 2;
        Record<TypeParam> record(h, -18, past);
        auto ref = referenceOf<TypeParam>(h, -18, past);
        Buffer<Sample> y(1, {taps % 64, taps % 2 == 0});
        for (std::size_t i = 0; i < src.size(); ++i) {
            ASSERT_EQ(vlqStsOk, TypeParam::one(src[i], y.data(), record.state, scale));
            ASSERT_TRUE(same(y, std::vector<Sample>{ref.next(src[i], scale)}))
                << taps << " taps, sample " << i;
            if (i % 7 == 0) { ASSERT_EQ(ref.line, record.line()); }
            if (static_cast<int>(i) != taps) continue;
            Buffer<Sample> block(src.size());
            ASSERT_EQ(vlqStsOk,
                      TypeParam::filter(src.data(), block.data(), static_cast<int>(src.size()),
                                        record.state, scale));
            ASSERT_TRUE(same(block, ref.block(src, scale)));
        }
        ASSERT_EQ(ref.line, record.line());
    }
}

TYPED_TEST(FirIntSingle, Checks) {
    using Sample = typename TypeParam::Sample;
    using State = typename TypeParam::State;
    Buffer<Vlq8u> alienMemory(256);
    auto* const alien = reinterpret_cast<State*>(alienMemory.data());
    const Sample x{};
    Buffer<Sample> dst(1);
    EXPECT_EQ(vlqStsNullPtr, TypeParam::one(x, nullptr, alien, 0));
    EXPECT_EQ(vlqStsNullPtr, TypeParam::one(x, dst.data(), nullptr, 0));
    // States of every other kind, by their tags.
    for (int high = '0'; high <= '3'; ++high) {
        for (int low = '0'; low <= '9'; ++low) {
            const Vlq32u tag = 0x46490000u | static_cast<Vlq32u>(high << 8 | low);
            std::memcpy(alienMemory.data(), &tag, sizeof tag);
            if (tag == TypeParam::word) continue;
            EXPECT_EQ(vlqStsBadSpec, TypeParam::one(x, dst.data(), alien, 0)) << std::hex << tag;
        }
    }
    EXPECT_TRUE(dst.untouched());
}

}  // namespace
