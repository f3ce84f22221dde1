// Squares.
#include "harness/scale_ref.h"
#include "maths/maths_check.h"

namespace {

using namespace vlqtest;

class Power : public ::testing::Test {
protected:
    Rng rng{seed()};
};

template <class T>
void checkIntegers(const Variants<T>& f) {
    const Reference<T, T> ref{
        [](T x, int scaleFactor) { return scaleRef<T>(Exact{x} * x, scaleFactor); }};
    const auto scales = scaleFactors(-36, 36);
    checkSweep<T, T>(f, ref, scales, extremeValue<T>);
    checkValues<T, T>(f, ref, scales, everyValue<T>());
}

TEST_F(Power, Integers) {
    checkIntegers<Vlq8u>({"Sqr_8u", vlqsSqr_8u_Sfs, vlqsSqr_8u_ISfs});
    checkIntegers<Vlq16u>({"Sqr_16u", vlqsSqr_16u_Sfs, vlqsSqr_16u_ISfs});
    checkIntegers<Vlq16s>({"Sqr_16s", vlqsSqr_16s_Sfs, vlqsSqr_16s_ISfs});
}

TEST_F(Power, ComplexIntegers) {
    const Reference<Vlq16sc, Vlq16sc> ref{[](Vlq16sc z, int scaleFactor) {
        return Vlq16sc{scaleRef<Vlq16s>(Exact{z.re} * z.re - Exact{z.im} * z.im, scaleFactor),
                       scaleRef<Vlq16s>(2 * Exact{z.re} * z.im, scaleFactor)};
    }};
    const Variants<Vlq16sc> f = {"Sqr_16sc", vlqsSqr_16sc_Sfs, vlqsSqr_16sc_ISfs};
    checkSweep<Vlq16sc, Vlq16sc>(f, ref, scaleFactors(-36, 36), extremeElement<Vlq16sc>);
    checkValues<Vlq16sc, Vlq16sc>(f, ref, scaleFactors(-36, 36),
                                  extremeElements<Vlq16sc>(3000, rng));
}

template <class T>
void checkReals(const Variants<T>& f) {
    checkSweep<T, T>(f, {[](T x, int) { return x * x; }}, {0}, extremeValue<T>);
}
template <class C>
void checkComplex(const Variants<C>& f) {
    checkSweep<C, C>(f, {[](C z, int) {
                         return C{z.re * z.re - z.im * z.im, z.re * z.im + z.im * z.re};
                     }},
                     {0}, extremeElement<C>);
}

TEST_F(Power, Floats) {
    checkReals(unscaled<Vlq32f, vlqsSqr_32f, vlqsSqr_32f_I>("Sqr_32f"));
    checkReals(unscaled<Vlq64f, vlqsSqr_64f, vlqsSqr_64f_I>("Sqr_64f"));
    checkComplex(unscaled<Vlq32fc, vlqsSqr_32fc, vlqsSqr_32fc_I>("Sqr_32fc"));
    checkComplex(unscaled<Vlq64fc, vlqsSqr_64fc, vlqsSqr_64fc_I>("Sqr_64fc"));
}

}  // namespace
