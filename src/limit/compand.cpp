// G.711 companding: A-law and mu-law codes to samples, back, and from one law to the other.
#include "limit/compand_kernels.h"

#include <type_traits>

#include "frame/simd/control.h"
#include "vlqs/limit.h"

namespace {

using namespace vlq::compand;

template <class Op, class S, class D>
VlqStatus convert(const S* src, D* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    const vlq::StandardFloatMode mode(std::is_floating_point_v<S>);
    vlq::mapBlocks(dst, len, Op{}, src);
    return vlqStsOk;
}

VlqStatus lookUp(const CodeTable& table, const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    if (!src || !dst) return vlqStsNullPtr;
    if (len < 1) return vlqStsBadSize;
    vlq::mapScalars(
        dst, len, [&](Vlq8u code) { return table[code]; }, src);
    return vlqStsOk;
}

}  // namespace

VlqStatus vlq::vlqsALawToLin_8u16s(const Vlq8u* src, Vlq16s* dst, Vlq32s len) {
    return convert<Decode<ALaw>>(src, dst, len);
}
VlqStatus vlq::vlqsMuLawToLin_8u16s(const Vlq8u* src, Vlq16s* dst, Vlq32s len) {
    return convert<Decode<MuLaw>>(src, dst, len);
}
VlqStatus vlq::vlqsALawToLin_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len) {
    return convert<DecodeToFloat<ALaw>>(src, dst, len);
}
VlqStatus vlq::vlqsMuLawToLin_8u32f(const Vlq8u* src, Vlq32f* dst, Vlq32s len) {
    return convert<DecodeToFloat<MuLaw>>(src, dst, len);
}

VlqStatus vlq::vlqsLinToALaw_16s8u(const Vlq16s* src, Vlq8u* dst, Vlq32s len) {
    return convert<Encode<ALaw>>(src, dst, len);
}
VlqStatus vlq::vlqsLinToMuLaw_16s8u(const Vlq16s* src, Vlq8u* dst, Vlq32s len) {
    return convert<Encode<MuLaw>>(src, dst, len);
}
VlqStatus vlq::vlqsLinToALaw_32f8u(const Vlq32f* src, Vlq8u* dst, Vlq32s len) {
    return convert<Encode<ALaw>>(src, dst, len);
}
VlqStatus vlq::vlqsLinToMuLaw_32f8u(const Vlq32f* src, Vlq8u* dst, Vlq32s len) {
    return convert<Encode<MuLaw>>(src, dst, len);
}

VlqStatus vlq::vlqsALawToMuLaw_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    return lookUp(kALawToMuLaw, src, dst, len);
}
VlqStatus vlq::vlqsMuLawToALaw_8u(const Vlq8u* src, Vlq8u* dst, Vlq32s len) {
    return lookUp(kMuLawToALaw, src, dst, len);
}
