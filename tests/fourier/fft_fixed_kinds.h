// The fixed-point kinds under one set of names, for tests that run over all of them.
#pragma once

#include "fourier/fft_real_ref.h"
#include "vlqs/fft.h"

namespace vlqtest {

// How a kind is planned; `tag` is the first field of its spec.
template <class SpecType, Vlq32u specTag, int largestOrder, auto getSizeCall, auto initCall,
          auto initAllocCall, auto getBufSizeCall, auto freeCall>
struct Planning {
    using Spec = SpecType;
    static constexpr Vlq32u tag = specTag;
    static constexpr int largest = largestOrder;
    static constexpr auto getSize = getSizeCall;
    static constexpr auto init = initCall;
    static constexpr auto initAlloc = initAllocCall;
    static constexpr auto getBufSize = getBufSizeCall;
    static constexpr auto free = freeCall;
};

// A transform out of place, or in place where both pointers are equal.
template <auto apart, auto inPlace>
struct Call {
    template <class T, class Spec>
    static VlqStatus run(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf) {
        return x == y ? inPlace(y, spec, scale, buf) : apart(x, y, spec, scale, buf);
    }
    // Split parts; a null signal has two null arrays.
    template <class T, class Spec>
    static VlqStatus runSplit(const T* x, T* y, std::ptrdiff_t n, const Spec* spec, Vlq32s scale,
                              Vlq8u* buf) {
        const T* const xIm = x ? x + n : nullptr;
        T* const yIm = y ? y + n : nullptr;
        return x == y ? inPlace(y, yIm, spec, scale, buf) : apart(x, xIm, y, yIm, spec, scale, buf);
    }
};

template <class T>
struct ComplexData {
    using Signal = T;
    using Spectrum = T;
    static constexpr bool isReal = false, is16 = sizeof(T) == 2, inDouble = sizeof(T) == 4;
    static constexpr Layout layouts[] = {Layout::perm};  // unused
    static std::size_t signalLength(std::size_t n) { return 2 * n; }
    static std::size_t spectrumLength(std::size_t n, Layout) { return 2 * n; }
};
template <class Spec, class T, class Complex, class Forward, class Inverse>
struct InterleavedData : ComplexData<T> {
    static std::vector<long double> exact(bool forward, const std::vector<long double>& x,
                                          std::size_t n, Layout) {
        std::vector<Extended> values(n);
        for (std::size_t i = 0; i < n; ++i) values[i] = {x[2 * i], x[2 * i + 1]};
        values = dft(values, forward ? -1 : 1);
        std::vector<long double> y;
        for (const Extended& v : values) y.insert(y.end(), {v.real(), v.imag()});
        return y;
    }
    static VlqStatus forward(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int,
                             Layout) {
        return Forward::run(reinterpret_cast<const Complex*>(x), reinterpret_cast<Complex*>(y),
                            spec, scale, buf);
    }
    static VlqStatus inverse(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int,
                             Layout) {
        return Inverse::run(reinterpret_cast<const Complex*>(x), reinterpret_cast<Complex*>(y),
                            spec, scale, buf);
    }
};
template <class Spec, class T, class Forward, class Inverse>
struct SplitData : ComplexData<T> {
    static std::vector<long double> exact(bool forward, const std::vector<long double>& x,
                                          std::size_t n, Layout) {
        std::vector<Extended> values(n);
        for (std::size_t i = 0; i < n; ++i) values[i] = {x[i], x[n + i]};
        values = dft(values, forward ? -1 : 1);
        std::vector<long double> y(2 * n);
        for (std::size_t i = 0; i < n; ++i) {
            y[i] = values[i].real();
            y[n + i] = values[i].imag();
        }
        return y;
    }
    static VlqStatus forward(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf,
                             int order, Layout) {
        return Forward::runSplit(x, y, std::ptrdiff_t{1} << order, spec, scale, buf);
    }
    static VlqStatus inverse(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf,
                             int order, Layout) {
        return Inverse::runSplit(x, y, std::ptrdiff_t{1} << order, spec, scale, buf);
    }
};
struct RealSignal {
    static constexpr bool isReal = true;
    static std::size_t signalLength(std::size_t n) { return n; }
    static std::size_t spectrumLength(std::size_t n, Layout layout) {
        return layoutSize(layout, n);
    }
    static std::vector<long double> exact(bool forward, const std::vector<long double>& x,
                                          std::size_t n, Layout layout) {
        return forward ? realSpectrum(x, layout) : realSignal(x, layout, n);
    }
};
template <class Spec, class T, class ToCcs, class ToPack, class ToPerm, class FromCcs,
          class FromPack, class FromPerm>
struct RealData : RealSignal {
    using Signal = T;
    using Spectrum = T;
    static constexpr bool is16 = sizeof(T) == 2, inDouble = sizeof(T) == 4;
    static constexpr Layout layouts[] = {Layout::ccs, Layout::pack, Layout::perm};
    static VlqStatus forward(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int,
                             Layout layout) {
        if (layout == Layout::ccs) return ToCcs::run(x, y, spec, scale, buf);
        return layout == Layout::pack ? ToPack::run(x, y, spec, scale, buf)
                                      : ToPerm::run(x, y, spec, scale, buf);
    }
    static VlqStatus inverse(const T* x, T* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int,
                             Layout layout) {
        if (layout == Layout::ccs) return FromCcs::run(x, y, spec, scale, buf);
        return layout == Layout::pack ? FromPack::run(x, y, spec, scale, buf)
                                      : FromPerm::run(x, y, spec, scale, buf);
    }
};

struct C_16sc : Planning<VlqsFFTSpec_C_16sc, 1, 28, vlqsFFTGetSize_C_16sc, vlqsFFTInit_C_16sc,
                         vlqsFFTInitAlloc_C_16sc, vlqsFFTGetBufSize_C_16sc, vlqsFFTFree_C_16sc>,
                InterleavedData<VlqsFFTSpec_C_16sc, Vlq16s, Vlq16sc,
                                Call<vlqsFFTFwd_CToC_16sc_Sfs, vlqsFFTFwd_CToC_16sc_ISfs>,
                                Call<vlqsFFTInv_CToC_16sc_Sfs, vlqsFFTInv_CToC_16sc_ISfs>> {};
struct C_16s
    : Planning<VlqsFFTSpec_C_16s, 2, 28, vlqsFFTGetSize_C_16s, vlqsFFTInit_C_16s,
               vlqsFFTInitAlloc_C_16s, vlqsFFTGetBufSize_C_16s, vlqsFFTFree_C_16s>,
      SplitData<VlqsFFTSpec_C_16s, Vlq16s, Call<vlqsFFTFwd_CToC_16s_Sfs, vlqsFFTFwd_CToC_16s_ISfs>,
                Call<vlqsFFTInv_CToC_16s_Sfs, vlqsFFTInv_CToC_16s_ISfs>> {};
struct R_16s : Planning<VlqsFFTSpec_R_16s, 3, 29, vlqsFFTGetSize_R_16s, vlqsFFTInit_R_16s,
                        vlqsFFTInitAlloc_R_16s, vlqsFFTGetBufSize_R_16s, vlqsFFTFree_R_16s>,
               RealData<VlqsFFTSpec_R_16s, Vlq16s,
                        Call<vlqsFFTFwd_RToCCS_16s_Sfs, vlqsFFTFwd_RToCCS_16s_ISfs>,
                        Call<vlqsFFTFwd_RToPack_16s_Sfs, vlqsFFTFwd_RToPack_16s_ISfs>,
                        Call<vlqsFFTFwd_RToPerm_16s_Sfs, vlqsFFTFwd_RToPerm_16s_ISfs>,
                        Call<vlqsFFTInv_CCSToR_16s_Sfs, vlqsFFTInv_CCSToR_16s_ISfs>,
                        Call<vlqsFFTInv_PackToR_16s_Sfs, vlqsFFTInv_PackToR_16s_ISfs>,
                        Call<vlqsFFTInv_PermToR_16s_Sfs, vlqsFFTInv_PermToR_16s_ISfs>> {};
struct C_32sc
    : Planning<VlqsFFTSpec_C_32sc, 0x434D414C, 27, vlqsFFTGetSize_C_32sc, vlqsFFTInit_C_32sc,
               vlqsFFTInitAlloc_C_32sc, vlqsFFTGetBufSize_C_32sc, vlqsFFTFree_C_32sc>,
      InterleavedData<VlqsFFTSpec_C_32sc, Vlq32s, Vlq32sc,
                      Call<vlqsFFTFwd_CToC_32sc_Sfs, vlqsFFTFwd_CToC_32sc_ISfs>,
                      Call<vlqsFFTInv_CToC_32sc_Sfs, vlqsFFTInv_CToC_32sc_ISfs>> {};
struct C_32s
    : Planning<VlqsFFTSpec_C_32s, 0x434D414D, 27, vlqsFFTGetSize_C_32s, vlqsFFTInit_C_32s,
               vlqsFFTInitAlloc_C_32s, vlqsFFTGetBufSize_C_32s, vlqsFFTFree_C_32s>,
      SplitData<VlqsFFTSpec_C_32s, Vlq32s, Call<vlqsFFTFwd_CToC_32s_Sfs, vlqsFFTFwd_CToC_32s_ISfs>,
                Call<vlqsFFTInv_CToC_32s_Sfs, vlqsFFTInv_CToC_32s_ISfs>> {};
struct R_32s : Planning<VlqsFFTSpec_R_32s, 0x434D414E, 28, vlqsFFTGetSize_R_32s, vlqsFFTInit_R_32s,
                        vlqsFFTInitAlloc_R_32s, vlqsFFTGetBufSize_R_32s, vlqsFFTFree_R_32s>,
               RealData<VlqsFFTSpec_R_32s, Vlq32s,
                        Call<vlqsFFTFwd_RToCCS_32s_Sfs, vlqsFFTFwd_RToCCS_32s_ISfs>,
                        Call<vlqsFFTFwd_RToPack_32s_Sfs, vlqsFFTFwd_RToPack_32s_ISfs>,
                        Call<vlqsFFTFwd_RToPerm_32s_Sfs, vlqsFFTFwd_RToPerm_32s_ISfs>,
                        Call<vlqsFFTInv_CCSToR_32s_Sfs, vlqsFFTInv_CCSToR_32s_ISfs>,
                        Call<vlqsFFTInv_PackToR_32s_Sfs, vlqsFFTInv_PackToR_32s_ISfs>,
                        Call<vlqsFFTInv_PermToR_32s_Sfs, vlqsFFTInv_PermToR_32s_ISfs>> {};
struct R_16s32s
    : Planning<VlqsFFTSpec_R_16s32s, 0x434D414F, 29, vlqsFFTGetSize_R_16s32s, vlqsFFTInit_R_16s32s,
               vlqsFFTInitAlloc_R_16s32s, vlqsFFTGetBufSize_R_16s32s, vlqsFFTFree_R_16s32s>,
      RealSignal {
    using Signal = Vlq16s;
    using Spectrum = Vlq32s;
    static constexpr bool is16 = false, inDouble = false;
    static constexpr Layout layouts[] = {Layout::ccs};
    static VlqStatus forward(const Signal* x, Spectrum* y, const Spec* spec, Vlq32s scale,
                             Vlq8u* buf, int, Layout) {
        return vlqsFFTFwd_RToCCS_16s32s_Sfs(x, y, spec, scale, buf);
    }
    static VlqStatus inverse(const Spectrum* x, Signal* y, const Spec* spec, Vlq32s scale,
                             Vlq8u* buf, int, Layout) {
        return vlqsFFTInv_CCSToR_32s16s_Sfs(x, y, spec, scale, buf);
    }
};

}  // namespace vlqtest
