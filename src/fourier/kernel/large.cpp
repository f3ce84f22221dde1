#include "fourier/kernel/large.h"

#include "fourier/kernel/regimes.h"
#include "fourier/kernel/sixteen_rows.h"

namespace vlq::fft {
namespace {

// The work buffer in the form of the data.
template <class T>
Blocks<T> workView(Blocks<T>, T* work, std::ptrdiff_t) {
    return {work};
}
template <class T>
Planes<T> workView(Planes<T>, T* work, std::ptrdiff_t length) {
    return {work, work + length};
}

// A row of 2^order values after its first pass, as sixteen.
template <class T, class Middle>
void splitRow(int order, const FloatingRecord<T>& record, Middle row, T* work) {
    constexpr int B = kVecBytes;
    const std::ptrdiff_t length = std::ptrdiff_t{1} << (order - 4);
    splitGroups<T, B>(row, length, 16, record.outerTwiddle[2].get(), work);
    for (int part = 0; part < 16; ++part) {
        rowTransform<T>(order - 4, 8, record.twiddleTable.get(), row.from(part * length),
                        workView(row, work, length));
    }
    joinRows<T, B>(row, row, length, record.outerTwiddle[1].get(), work);
}

}  // namespace

template <class T, class In, class Middle, class Out>
void largeTransform(int order, const FloatingRecord<T>& record, In src, Middle middle, Out dst,
                    T* work, bool inPlace, bool scaled) {
    constexpr int B = kVecBytes;
    if (order > kLastSplitTwice<T>)
        return runPhases<T>(order, record, src, middle, dst, work, inPlace, scaled);
    const std::ptrdiff_t length = std::ptrdiff_t{1} << (order - 4);
    splitRows<T, B>(src, middle, length, work, order % 2 ? kEightPoint<T> : kRootHalf<T>,
                    scaled ? record.normFactor : T(1));
    for (int r = 0; r < 16; ++r) {
        const Middle row = middle.from(r * length);
        if (order <= kLastSplitOnce<T>)
            rowTransform<T>(order - 4, 4, record.twiddleTable.get(), row,
                            workView(middle, work, length));
        else
            splitRow<T>(order - 4, record, row, work);
    }
    joinRows<T, B>(middle, dst, length, record.outerTwiddle[0].get(), work);
}

template void largeTransform(int, const FloatingRecord<Vlq32f>&, ForwardIn<Vlq32f>, Blocks<Vlq32f>,
                             ForwardOut<Vlq32f>, Vlq32f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq32f>&, InverseIn<Vlq32f>, Blocks<Vlq32f>,
                             InverseOut<Vlq32f>, Vlq32f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq32f>&, Parts<const Vlq32f>,
                             Planes<Vlq32f>, Parts<Vlq32f>, Vlq32f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq64f>&, ForwardIn<Vlq64f>, Blocks<Vlq64f>,
                             ForwardOut<Vlq64f>, Vlq64f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq64f>&, InverseIn<Vlq64f>, Blocks<Vlq64f>,
                             InverseOut<Vlq64f>, Vlq64f*, bool, bool);
template void largeTransform(int, const FloatingRecord<Vlq64f>&, Parts<const Vlq64f>,
                             Planes<Vlq64f>, Parts<Vlq64f>, Vlq64f*, bool, bool);

}  // namespace vlq::fft
