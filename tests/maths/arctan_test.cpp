// Arctangents.
#include "maths/maths_check.h"

namespace {

using namespace vlqtest;

class Arctan : public ::testing::Test {
protected:
    Rng rng{seed()};
};

template <class T>
void check(Variants<T> f, Rng& rng) {
    checkFloatFunction<T, T>({f, [](long double x) { return std::atan(x); }, 1}, rng);
    T v[2] = {};
    EXPECT_EQ(vlqStsNullPtr, f.apply(nullptr, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, f.apply(v, nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, f.apply(v, v, 0, 0));
    EXPECT_EQ(vlqStsNullPtr, f.inPlace(nullptr, 0, 0));
    EXPECT_EQ(vlqStsBadSize, f.inPlace(v, -1, 0));
}

TEST_F(Arctan, SingleAndDouble) {
    check(unscaled<Vlq32f, vlqsArctan_32f, vlqsArctan_32f_I>("Arctan_32f"), rng);
    check(unscaled<Vlq64f, vlqsArctan_64f, vlqsArctan_64f_I>("Arctan_64f"), rng);
}

}  // namespace
