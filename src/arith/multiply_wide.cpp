// Products of 32 and 64-bit integers, and of floats stored as integers.
#include "arith/multiply_wide_kernels.h"
#include "frame/loop/element_views.h"

#include "frame/simd/control.h"

namespace {

using namespace vlq::multiply;
using vlq::clear;
using vlq::Scaling;
using vlq::StandardFloatMode;
using vlq::Vec;

template <class Family>
bool vanishes(Vlq32s scaleFactor) {
    return vlq::classify<Family, Vlq32s>(scaleFactor) == Scaling::Vanish;
}

VlqStatus product(const Vlq32s* a, const Vlq32s* b, Vlq32s* dst, Vlq32s len, Vlq32s scaleFactor) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Exact32s>(scaleFactor)) return clear(dst, len);
    const StandardFloatMode hold;
    withScale32s(scaleFactor, [&](auto op) { vlq::map(dst, len, op, a, b); });
    return vlqStsOk;
}

VlqStatus productByConstant(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                            Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Exact32s>(scaleFactor)) return clear(dst, len);
    const StandardFloatMode hold;
    withScale32s(scaleFactor, [&](auto op) {
        vlq::map(
            dst, len, [op, b = Vec<Vlq32s>::broadcast(val)](Vec<Vlq32s> a) { return op(a, b); },
            src);
    });
    return vlqStsOk;
}

VlqStatus realByComplex(const Vlq32s* real, const Vlq32sc* complex, Vlq32sc* dst, Vlq32s len,
                        Vlq32s scaleFactor) {
    if (!real || !complex || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Exact32s>(scaleFactor)) return clear(dst, len);
    const StandardFloatMode hold;
    withScale32s(scaleFactor, [&](auto op) { vlq::mapRealByComplex(dst, len, op, real, complex); });
    return vlqStsOk;
}

// Calls run with the operation on vectors of complex values for this scale factor. Returns whether
// there is one.
template <class Run>
bool withComplexVectors(Vlq32s scaleFactor, Run run) {
    if (scaleFactor <= kLastInDouble) {
        const StandardFloatMode hold;
        run(ComplexProduct32scInDouble{factorInDouble(scaleFactor)});
        return true;
    }
#if VLQ_SIMD_BYTES >= 32
    run(ComplexProduct32scRight(scaleFactor));
    return true;
#else
    return false;
#endif
}

// Complex values as 64-bit elements.
const std::int64_t* values(const Vlq32sc* p) { return reinterpret_cast<const std::int64_t*>(p); }
std::int64_t* values(Vlq32sc* p) { return reinterpret_cast<std::int64_t*>(p); }

VlqStatus complexProduct(const Vlq32sc* a, const Vlq32sc* b, Vlq32sc* dst, Vlq32s len,
                         Vlq32s scaleFactor) {
    if (!a || !b || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<ComplexExact32s>(scaleFactor)) return clear(dst, len);
    if (withComplexVectors(scaleFactor,
                           [&](auto op) { vlq::map(values(dst), len, op, values(a), values(b)); }))
        return vlqStsOk;
    withScalarScale<Vlq32s, std::int64_t>(scaleFactor, [&](auto scale) {
        vlq::mapScalars(dst, len, ComplexProduct32sc<decltype(scale)>{scale}, a, b);
    });
    return vlqStsOk;
}

VlqStatus complexProductByConstant(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<ComplexExact32s>(scaleFactor)) return clear(dst, len);
    const auto constant = Vec<std::int64_t>::broadcast(std::bit_cast<std::int64_t>(val));
    if (withComplexVectors(scaleFactor, [&](auto op) {
            vlq::map(
                values(dst), len, [op, constant](auto x) { return op(x, constant); }, values(src));
        })) {
        return vlqStsOk;
    }
    withScalarScale<Vlq32s, std::int64_t>(scaleFactor, [&](auto scale) {
        vlq::mapScalars(
            dst, len,
            [op = ComplexProduct32sc<decltype(scale)>{scale}, val](Vlq32sc x) {
                return op(x, val);
            },
            src);
    });
    return vlqStsOk;
}

}  // namespace

// ---- two vectors --------------------------------------------------------------------------------
VlqStatus vlq::vlqsMul_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                               Vlq32s scaleFactor) {
    return product(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_32s_ISfs(const Vlq32s* src, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return product(srcDst, src, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_Low_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    return product(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_32s32sc_Sfs(const Vlq32s* src1, const Vlq32sc* src2, Vlq32sc* dst,
                                   Vlq32s len, Vlq32s scaleFactor) {
    return realByComplex(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_32s32sc_ISfs(const Vlq32s* src, Vlq32sc* srcDst, Vlq32s len,
                                    Vlq32s scaleFactor) {
    return realByComplex(src, srcDst, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_32sc_Sfs(const Vlq32sc* src1, const Vlq32sc* src2, Vlq32sc* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return complexProduct(src1, src2, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMul_32sc_ISfs(const Vlq32sc* src, Vlq32sc* srcDst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return complexProduct(srcDst, src, srcDst, len, scaleFactor);
}

// ---- a constant ---------------------------------------------------------------------------------
VlqStatus vlq::vlqsMulC_32s_Sfs(const Vlq32s* src, Vlq32s val, Vlq32s* dst, Vlq32s len,
                                Vlq32s scaleFactor) {
    return productByConstant(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_32s_ISfs(Vlq32s val, Vlq32s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return productByConstant(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_32sc_Sfs(const Vlq32sc* src, Vlq32sc val, Vlq32sc* dst, Vlq32s len,
                                 Vlq32s scaleFactor) {
    return complexProductByConstant(src, val, dst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_32sc_ISfs(Vlq32sc val, Vlq32sc* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    return complexProductByConstant(srcDst, val, srcDst, len, scaleFactor);
}
VlqStatus vlq::vlqsMulC_64s_ISfs(Vlq64s val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    if (!srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<Exact64s>(scaleFactor)) return clear(srcDst, len);
    withScalarScale<Vlq64s, Int128>(scaleFactor, [&](auto scale) {
        mapScalars(
            srcDst, len, [scale, val](Vlq64s a) { return scale(static_cast<Int128>(a) * val); },
            srcDst);
    });
    return vlqStsOk;
}
VlqStatus vlq::vlqsMulC_64f64s_ISfs(Vlq64f val, Vlq64s* srcDst, Vlq32s len, Vlq32s scaleFactor) {
    if (!srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (!std::isfinite(val)) {
        mapScalars(srcDst, len, NonFiniteProduct64s{val}, srcDst);
        return vlqStsOk;
    }
    const IntegerAndPower factor = takeApart(val);
    const std::int64_t scale = std::int64_t{scaleFactor} - factor.power;
    if (scale >= Exact64s::vanishesFrom<Vlq64s>) return clear(srcDst, len);
    withScalarScale<Vlq64s, Int128>(scale, [&](auto store) {
        mapScalars(
            srcDst, len,
            [store, integer = factor.integer](Vlq64s a) {
                return store(static_cast<Int128>(a) * integer);
            },
            srcDst);
    });
    return vlqStsOk;
}
VlqStatus vlq::vlqsMulC_32f16s_Sfs(const Vlq32f* src, Vlq32f val, Vlq16s* dst, Vlq32s len,
                                   Vlq32s scaleFactor) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold;
    // The product of two floats is exact in double, and stays so under this scale. Beyond 2^400 and
    // 2^-400 it saturates or is 0 anyway.
    const double factor = static_cast<double>(val) *
                          vlq::scaleFactorPower<double>(std::clamp(scaleFactor, -400, 400));
    mapBlocks(dst, len, ProductInDouble16s{Vec<double>::broadcast(factor)}, src);
    return vlqStsOk;
}
VlqStatus vlq::vlqsMulC_Low_32f16s(const Vlq32f* src, Vlq32f val, Vlq16s* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const StandardFloatMode hold;
    mapBlocks(dst, len, ProductInFloat16s{Vec<float>::broadcast(val)}, src);
    return vlqStsOk;
}

// ---- products added to a vector -----------------------------------------------------------------
VlqStatus vlq::vlqsAddProduct_32s_Sfs(const Vlq32s* src1, const Vlq32s* src2, Vlq32s* srcDst,
                                      Vlq32s len, Vlq32s scaleFactor) {
    if (!src1 || !src2 || !srcDst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    if (vanishes<SumOfProduct32s>(scaleFactor)) return clear(srcDst, len);
    if (scaleFactor <= kLastInDouble) {
        const StandardFloatMode hold;
        map(srcDst, len, SumOfProduct32sInDouble{factorInDouble(scaleFactor)}, srcDst, src1, src2);
        return vlqStsOk;
    }
    withScalarScale<Vlq32s, std::int64_t>(scaleFactor, [&](auto scale) {
        mapScalars(
            srcDst, len,
            [scale](Vlq32s acc, Vlq32s a, Vlq32s b) {
                return scale(std::int64_t{acc} + std::int64_t{a} * b);
            },
            srcDst, src1, src2);
    });
    return vlqStsOk;
}
