// Quotients of floats. The second vector is divided by the first.
#include "arith/divide_float_kernels.h"

#include "vlqs/arith.h"

namespace {

using namespace vlq::divide;
using vlq::Vec;

template <class T>
VlqStatus divided(const T* divisors, const T* numerators, T* dst, Vlq32s len) {
    if (!divisors || !numerators || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const bool zeroFound = mapQuotients(dst, len, RealQuotient{}, divisors, numerators);
    return zeroFound ? vlqStsWarnDivByZero : vlqStsOk;
}

template <class Quotient, class T>
VlqStatus dividedComplex(const T* divisors, const T* numerators, T* dst, Vlq32s len) {
    if (!divisors || !numerators || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    bool zeroFound = false;
    vlq::mapComplex(dst, len, Quotient{&zeroFound}, divisors, numerators);
    return zeroFound ? vlqStsWarnDivByZero : vlqStsOk;
}

VlqStatus constantByVector(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const auto quotient = [n = Vec<Vlq32f>::broadcast(val)](Vec<Vlq32f> d) {
        return RealQuotient{}(d, n);
    };
    return mapQuotients(dst, len, quotient, src) ? vlqStsWarnDivByZero : vlqStsOk;
}

template <class T>
VlqStatus byConstant(const T* src, T val, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val == 0) return vlqStsZeroDivisor;
    constexpr T smallest = std::numeric_limits<T>::min();
    const auto constant = Vec<T>::broadcast(val);
    if (std::abs(val) >= smallest && std::abs(val) <= 1 / smallest) {
        const auto reciprocal = Vec<T>::broadcast(1 / val);
        vlq::map(
            dst, len, [reciprocal](Vec<T> n) { return n * reciprocal; }, src);
    } else {
        // No reciprocal of full precision, or none at all.
        vlq::map(
            dst, len, [constant](Vec<T> n) { return n / constant; }, src);
    }
    return vlqStsOk;
}

VlqStatus byComplexConstant(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val.re == 0 && val.im == 0) return vlqStsZeroDivisor;
    const double re = static_cast<double>(val.re), im = static_cast<double>(val.im),
                 size = re * re + im * im;
    vlq::mapComplex(dst, len, TimesReciprocal32fc{vlq::broadcastPair(re / size, -im / size)}, src);
    return vlqStsOk;
}

VlqStatus byComplexConstant(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (val.re == 0 && val.im == 0) return vlqStsZeroDivisor;
    const double larger = std::max(std::abs(val.re), std::abs(val.im));
    if (larger >= 0x1p-500 && larger <= 0x1p500) {
        const double size = (val.re * val.re + val.im * val.im) * 4;
        vlq::mapComplex(
            dst, len, TimesReciprocal64fc{vlq::broadcastPair(val.re / size, -val.im / size)}, src);
    } else {
        // The square leaves the range, or the reciprocal does.
        const auto constant = vlq::broadcastPair(val.re, val.im);
        vlq::mapComplex(
            dst, len, [constant](Vec<double> n) { return ScaledQuotient64fc{}(constant, n); }, src);
    }
    return vlqStsOk;
}

}  // namespace

// ---- two vectors --------------------------------------------------------------------------------
VlqStatus vlq::vlqsDiv_32f(const Vlq32f* src1, const Vlq32f* src2, Vlq32f* dst, Vlq32s len) {
    return divided(src1, src2, dst, len);
}
VlqStatus vlq::vlqsDiv_32f_I(const Vlq32f* src, Vlq32f* srcDst, Vlq32s len) {
    return divided(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsDiv_64f(const Vlq64f* src1, const Vlq64f* src2, Vlq64f* dst, Vlq32s len) {
    return divided(src1, src2, dst, len);
}
VlqStatus vlq::vlqsDiv_64f_I(const Vlq64f* src, Vlq64f* srcDst, Vlq32s len) {
    return divided(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsDiv_32fc(const Vlq32fc* src1, const Vlq32fc* src2, Vlq32fc* dst, Vlq32s len) {
    return dividedComplex<ComplexQuotient32fc>(src1, src2, dst, len);
}
VlqStatus vlq::vlqsDiv_32fc_I(const Vlq32fc* src, Vlq32fc* srcDst, Vlq32s len) {
    return dividedComplex<ComplexQuotient32fc>(src, srcDst, srcDst, len);
}
VlqStatus vlq::vlqsDiv_64fc(const Vlq64fc* src1, const Vlq64fc* src2, Vlq64fc* dst, Vlq32s len) {
    return dividedComplex<ComplexQuotient64fc>(src1, src2, dst, len);
}
VlqStatus vlq::vlqsDiv_64fc_I(const Vlq64fc* src, Vlq64fc* srcDst, Vlq32s len) {
    return dividedComplex<ComplexQuotient64fc>(src, srcDst, srcDst, len);
}

// ---- a constant ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsDivC_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    return byConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsDivC_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    return byConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsDivC_64f(const Vlq64f* src, Vlq64f val, Vlq64f* dst, Vlq32s len) {
    return byConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsDivC_64f_I(Vlq64f val, Vlq64f* srcDst, Vlq32s len) {
    return byConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsDivC_32fc(const Vlq32fc* src, Vlq32fc val, Vlq32fc* dst, Vlq32s len) {
    return byComplexConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsDivC_32fc_I(Vlq32fc val, Vlq32fc* srcDst, Vlq32s len) {
    return byComplexConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsDivC_64fc(const Vlq64fc* src, Vlq64fc val, Vlq64fc* dst, Vlq32s len) {
    return byComplexConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsDivC_64fc_I(Vlq64fc val, Vlq64fc* srcDst, Vlq32s len) {
    return byComplexConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsDivCRev_32f(const Vlq32f* src, Vlq32f val, Vlq32f* dst, Vlq32s len) {
    return constantByVector(src, val, dst, len);
}
VlqStatus vlq::vlqsDivCRev_32f_I(Vlq32f val, Vlq32f* srcDst, Vlq32s len) {
    return constantByVector(srcDst, val, srcDst, len);
}
