// Bitwise operations on two vectors, on a vector and a constant, and NOT.
#include "arith/logic_kernels.h"
#include "frame/loop/element_views.h"

namespace {

using namespace vlq::logic;
using vlq::clear;
using vlq::copy;

template <class T, class Op>
VlqStatus twoVectors(const T* src1, const T* src2, T* dst, Vlq32s len, const Op& op) {
    if (!src1 || !src2 || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapStreaming(dst, len, op, src1, src2);
    return vlqStsOk;
}

template <class T, class Op>
VlqStatus oneVector(const T* src, T* dst, Vlq32s len, const Op& op) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapStreaming(dst, len, op, src);
    return vlqStsOk;
}

// A constant of 0 makes the operation a clear or a copy, which makes the remaining checks and
// returns the status.
template <class T>
VlqStatus andConstant(const T* src, T val, T* dst, Vlq32s len) {
    if (val == 0) return src ? clear(dst, len) : vlqStsNullPtr;
    return oneVector(src, dst, len, WithConstant<And, T>(val));
}
template <class T>
VlqStatus orConstant(const T* src, T val, T* dst, Vlq32s len) {
    if (val == 0) return copy(src, dst, len);
    return oneVector(src, dst, len, WithConstant<Or, T>(val));
}
template <class T>
VlqStatus xorConstant(const T* src, T val, T* dst, Vlq32s len) {
    if (val == 0) return copy(src, dst, len);
    return oneVector(src, dst, len, WithConstant<Xor, T>(val));
}

}  // namespace

VlqStatus vlq::vlqsAnd_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, And{});
}
VlqStatus vlq::vlqsAnd_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, And{});
}
VlqStatus vlq::vlqsAnd_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, And{});
}
VlqStatus vlq::vlqsAnd_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, And{});
}
VlqStatus vlq::vlqsAnd_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, And{});
}
VlqStatus vlq::vlqsAnd_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, And{});
}

VlqStatus vlq::vlqsOr_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, Or{});
}
VlqStatus vlq::vlqsOr_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, Or{});
}
VlqStatus vlq::vlqsOr_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, Or{});
}
VlqStatus vlq::vlqsOr_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, Or{});
}
VlqStatus vlq::vlqsOr_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, Or{});
}
VlqStatus vlq::vlqsOr_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, Or{});
}

VlqStatus vlq::vlqsXor_8u(const Vlq8u* src1, const Vlq8u* src2, Vlq8u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, Xor{});
}
VlqStatus vlq::vlqsXor_8u_I(const Vlq8u* src, Vlq8u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, Xor{});
}
VlqStatus vlq::vlqsXor_16u(const Vlq16u* src1, const Vlq16u* src2, Vlq16u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, Xor{});
}
VlqStatus vlq::vlqsXor_16u_I(const Vlq16u* src, Vlq16u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, Xor{});
}
VlqStatus vlq::vlqsXor_32u(const Vlq32u* src1, const Vlq32u* src2, Vlq32u* dst, Vlq32s len) {
    return twoVectors(src1, src2, dst, len, Xor{});
}
VlqStatus vlq::vlqsXor_32u_I(const Vlq32u* src, Vlq32u* srcDst, Vlq32s len) {
    return twoVectors(srcDst, src, srcDst, len, Xor{});
}

VlqStatus vlq::vlqsAndC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len) {
    return andConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsAndC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len) {
    return andConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsAndC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len) {
    return andConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsAndC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len) {
    return andConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsAndC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len) {
    return andConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsAndC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len) {
    return andConstant(srcDst, val, srcDst, len);
}

VlqStatus vlq::vlqsOrC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len) {
    return orConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsOrC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len) {
    return orConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsOrC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len) {
    return orConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsOrC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len) {
    return orConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsOrC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len) {
    return orConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsOrC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len) {
    return orConstant(srcDst, val, srcDst, len);
}

VlqStatus vlq::vlqsXorC_8u(const Vlq8u* src, Vlq8u val, Vlq8u* dst, Vlq32s len) {
    return xorConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsXorC_8u_I(Vlq8u val, Vlq8u* srcDst, Vlq32s len) {
    return xorConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsXorC_16u(const Vlq16u* src, Vlq16u val, Vlq16u* dst, Vlq32s len) {
    return xorConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsXorC_16u_I(Vlq16u val, Vlq16u* srcDst, Vlq32s len) {
    return xorConstant(srcDst, val, srcDst, len);
}
VlqStatus vlq::vlqsXorC_32u(const Vlq32u* src, Vlq32u val, Vlq32u* dst, Vlq32s len) {
    return xorConstant(src, val, dst, len);
}
VlqStatus vlq::vlqsXorC_32u_I(Vlq32u val, Vlq32u* srcDst, Vlq32s len) {
    return xorConstant(srcDst, val, srcDst, len);
}

VlqStatus vlq::vlqsNot_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    return oneVector(src, dst, len, Not{});
}
VlqStatus vlq::vlqsNot_8u_I(Vlq8u* srcDst, Vlq32s len) {
    return oneVector(srcDst, srcDst, len, Not{});
}
VlqStatus vlq::vlqsNot_16u(const Vlq16u* src, Vlq16u* dst, Vlq32s len) {
    return oneVector(src, dst, len, Not{});
}
VlqStatus vlq::vlqsNot_16u_I(Vlq16u* srcDst, Vlq32s len) {
    return oneVector(srcDst, srcDst, len, Not{});
}
VlqStatus vlq::vlqsNot_32u(const Vlq32u* src, Vlq32u* dst, Vlq32s len) {
    return oneVector(src, dst, len, Not{});
}
VlqStatus vlq::vlqsNot_32u_I(Vlq32u* srcDst, Vlq32s len) {
    return oneVector(srcDst, srcDst, len, Not{});
}
