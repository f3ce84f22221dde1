// Square roots and cube roots.
#include "maths/root_kernels.h"

#include "frame/loop/any.h"
#include "frame/loop/element_views.h"
#include "frame/loop/map_complex.h"
#include "frame/simd/control.h"
#include "vlqs/maths.h"

namespace {

using namespace vlq::root;
using vlq::StandardFloatMode;
using vlq::Vec;

// Asked before a root in place overwrites the vector.
template <class T>
VlqStatus warning(const T* src, Vlq32s len) {
    const bool found = vlq::anyOf(src, len, [](Vec<T> v) { return v < Vec<T>::zero(); });
    return found ? vlqStsWarnSqrtNegArg : vlqStsOk;
}

template <class T>
VlqStatus scaled(const T* src, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode mode;
    VlqStatus status = vlqStsOk;
    if constexpr (std::is_signed_v<T>) status = warning(src, len);
    vlq::mapBlocks(dst, len, ScaledRoot<T>(scaleFactor), src);
    return status;
}

VlqStatus scaledComplex(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode mode;
    vlq::map(vlq::elements(dst), len, ScaledComplexRoot(scaleFactor), vlq::elements(src));
    return vlqStsOk;
}

template <class T>
VlqStatus scaled64s(const Vlq64s* src, T* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode mode;
    const VlqStatus status = warning(src, len);
    vlq::mapScalars(dst, len, ScaledRoot64s<T>(scaleFactor), src);
    return status;
}

template <class T>
VlqStatus real(const T* src, T* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const auto root = [](const vlq::Block<T, 1>& x) {
        return vlq::Block<T, 1>{{squareRoot(x.part[0])}};
    };
    const auto isNegative = [](Vec<T> v) { return v < Vec<T>::zero(); };
    auto negative = isNegative(Vec<T>::zero());
    vlq::mapBlocks(dst, len,
                   vlq::Watching<decltype(root), decltype(isNegative), decltype(negative)>(
                       root, isNegative, &negative),
                   src);
    return any(negative) ? vlqStsWarnSqrtNegArg : vlqStsOk;
}

template <class C>
VlqStatus complex(const C* src, C* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapComplex(dst, len, ComplexRoot{}, src);
    return vlqStsOk;
}

}  // namespace

// ---- square roots -------------------------------------------------------------------------------
VlqStatus vlq::vlqsSqrt_8u_Sfs(const Vlq8u* src, Vlq8u* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_8u_ISfs(Vlq8u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_16u_Sfs(const Vlq16u* src, Vlq16u* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_16u_ISfs(Vlq16u* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_16s_Sfs(const Vlq16s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_16s_ISfs(Vlq16s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_16sc_Sfs(const Vlq16sc* src, Vlq16sc* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_16sc_ISfs(Vlq16sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaledComplex(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode mode;
    const VlqStatus status = warning(src, len);
    mapBlocks(dst, len, ScaledRoot32s16s<SquareRoot>(factorOf<Vlq64f>(scaleFactor)), src);
    return status;
}
VlqStatus vlq::vlqsSqrt_64s_Sfs(const Vlq64s* src, Vlq64s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled64s(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_64s_ISfs(Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled64s(srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_64s16s_Sfs(const Vlq64s* src, Vlq16s* dst, Vlq32s len, Vlq32s scaleFactor) {
    return scaled64s(src, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsSqrt_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    return real(src, dst, len);
}
VlqStatus vlq::vlqsSqrt_32f_I(Vlq32f* srcDst, Vlq32s len) { return real(srcDst, srcDst, len); }
VlqStatus vlq::vlqsSqrt_64f(const Vlq64f* src, Vlq64f* dst, Vlq32s len) {
    return real(src, dst, len);
}
VlqStatus vlq::vlqsSqrt_64f_I(Vlq64f* srcDst, Vlq32s len) { return real(srcDst, srcDst, len); }
VlqStatus vlq::vlqsSqrt_32fc(const Vlq32fc* src, Vlq32fc* dst, Vlq32s len) {
    return complex(src, dst, len);
}
VlqStatus vlq::vlqsSqrt_32fc_I(Vlq32fc* srcDst, Vlq32s len) { return complex(srcDst, srcDst, len); }
VlqStatus vlq::vlqsSqrt_64fc(const Vlq64fc* src, Vlq64fc* dst, Vlq32s len) {
    return complex(src, dst, len);
}
VlqStatus vlq::vlqsSqrt_64fc_I(Vlq64fc* srcDst, Vlq32s len) { return complex(srcDst, srcDst, len); }

// ---- cube roots ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsCubrt_32f(const Vlq32f* src, Vlq32f* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    map(dst, len, CubeRoot{}, src);
    return vlqStsOk;
}
VlqStatus vlq::vlqsCubrt_32s16s_Sfs(const Vlq32s* src, Vlq16s* dst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode mode;
    // The factor is that of a float's exponent field, of which seven bits are used: it wraps.
    const Vlq64f factor = static_cast<Vlq64f>(wrappedPower(scaleFactor));
    mapBlocks(dst, len, ScaledRoot32s16s<CubeRoot>(factor), src);
    return vlqStsOk;
}
