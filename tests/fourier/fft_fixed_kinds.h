// The fixed-point kinds under one set of names, for tests that run over all of them.
#pragma once

#include "fourier/fft_fixed_ref.h"
#include "vlqs/fourier.h"

namespace vlqtest {

struct ComplexData {
    static constexpr bool isReal = false;
    static constexpr Layout layouts[] = {Layout::perm};  // stands for none
    static std::size_t signalLength(std::size_t n) { return 2 * n; }
    static std::size_t spectrumLength(std::size_t n, Layout) { return 2 * n; }
};
struct InterleavedData : ComplexData {
    static std::vector<long double> exact(bool forward, const std::vector<long double>& x, std::size_t n, Layout) {
        std::vector<Extended> values(n);
        for (std::size_t i = 0; i < n; ++i) values[i] = {x[2 * i], x[2 * i + 1]};
        values = dft(values, forward ? -1 : 1);
        std::vector<long double> y;
        for (const Extended& v : values) y.insert(y.end(), {v.real(), v.imag()});
        return y;
    }
};
struct SplitData : ComplexData {
    static std::vector<long double> exact(bool forward, const std::vector<long double>& x, std::size_t n, Layout) {
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
};
struct RealData {
    static constexpr bool isReal = true;
    static constexpr Layout layouts[] = {Layout::ccs, Layout::pack, Layout::perm};
    static std::size_t signalLength(std::size_t n) { return n; }
    static std::size_t spectrumLength(std::size_t n, Layout layout) { return elementsOf(layout, n); }
    static std::vector<long double> exact(bool forward, const std::vector<long double>& x, std::size_t n, Layout layout) {
        return forward ? realSpectrum(x, layout) : realSignal(x, layout, n);
    }
};
// The second array of a split signal; a null signal has two null arrays.
template <class T>
T* after(T* signal, std::ptrdiff_t n) {
    return signal ? signal + n : nullptr;
}

struct C_16sc : InterleavedData {
    using Spec = VlqsFFTSpec_C_16sc;
    using Signal = Vlq16s;
    using Spectrum = Vlq16s;
    static constexpr Vlq32s word = 1;
    static constexpr int largest = 28;
    static constexpr bool is16 = true, inDouble = false;
    static constexpr auto getSize = vlqsFFTGetSize_C_16sc;
    static constexpr auto init = vlqsFFTInit_C_16sc;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_16sc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_16sc;
    static constexpr auto free = vlqsFFTFree_C_16sc;
    static VlqStatus forward(const Signal* x, Spectrum* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout) {
        const auto* src = reinterpret_cast<const Vlq16sc*>(x);
        auto* dst = reinterpret_cast<Vlq16sc*>(y);
        return x == y ? vlqsFFTFwd_CToC_16sc_ISfs(dst, spec, scale, buf) : vlqsFFTFwd_CToC_16sc_Sfs(src, dst, spec, scale, buf);
    }
    static VlqStatus inverse(const Spectrum* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout) {
        const auto* src = reinterpret_cast<const Vlq16sc*>(x);
        auto* dst = reinterpret_cast<Vlq16sc*>(y);
        return x == y ? vlqsFFTInv_CToC_16sc_ISfs(dst, spec, scale, buf) : vlqsFFTInv_CToC_16sc_Sfs(src, dst, spec, scale, buf);
    }
};
struct C_16s : SplitData {
    using Spec = VlqsFFTSpec_C_16s;
    using Signal = Vlq16s;
    using Spectrum = Vlq16s;
    static constexpr Vlq32s word = 2;
    static constexpr int largest = 28;
    static constexpr bool is16 = true, inDouble = false;
    static constexpr auto getSize = vlqsFFTGetSize_C_16s;
    static constexpr auto init = vlqsFFTInit_C_16s;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_16s;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_16s;
    static constexpr auto free = vlqsFFTFree_C_16s;
    static VlqStatus forward(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int order, Layout) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        return x == y ? vlqsFFTFwd_CToC_16s_ISfs(y, after(y, n), spec, scale, buf)
                      : vlqsFFTFwd_CToC_16s_Sfs(x, after(x, n), y, after(y, n), spec, scale, buf);
    }
    static VlqStatus inverse(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int order, Layout) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        return x == y ? vlqsFFTInv_CToC_16s_ISfs(y, after(y, n), spec, scale, buf)
                      : vlqsFFTInv_CToC_16s_Sfs(x, after(x, n), y, after(y, n), spec, scale, buf);
    }
};
struct R_16s : RealData {
    using Spec = VlqsFFTSpec_R_16s;
    using Signal = Vlq16s;
    using Spectrum = Vlq16s;
    static constexpr Vlq32s word = 3;
    static constexpr int largest = 29;
    static constexpr bool is16 = true, inDouble = false;
    static constexpr auto getSize = vlqsFFTGetSize_R_16s;
    static constexpr auto init = vlqsFFTInit_R_16s;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_16s;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_16s;
    static constexpr auto free = vlqsFFTFree_R_16s;
    static VlqStatus forward(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout layout) {
        switch (layout) {
            case Layout::ccs:
                return x == y ? vlqsFFTFwd_RToCCS_16s_ISfs(y, spec, scale, buf) : vlqsFFTFwd_RToCCS_16s_Sfs(x, y, spec, scale, buf);
            case Layout::pack:
                return x == y ? vlqsFFTFwd_RToPack_16s_ISfs(y, spec, scale, buf) : vlqsFFTFwd_RToPack_16s_Sfs(x, y, spec, scale, buf);
            default:
                return x == y ? vlqsFFTFwd_RToPerm_16s_ISfs(y, spec, scale, buf) : vlqsFFTFwd_RToPerm_16s_Sfs(x, y, spec, scale, buf);
        }
    }
    static VlqStatus inverse(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout layout) {
        switch (layout) {
            case Layout::ccs:
                return x == y ? vlqsFFTInv_CCSToR_16s_ISfs(y, spec, scale, buf) : vlqsFFTInv_CCSToR_16s_Sfs(x, y, spec, scale, buf);
            case Layout::pack:
                return x == y ? vlqsFFTInv_PackToR_16s_ISfs(y, spec, scale, buf) : vlqsFFTInv_PackToR_16s_Sfs(x, y, spec, scale, buf);
            default:
                return x == y ? vlqsFFTInv_PermToR_16s_ISfs(y, spec, scale, buf) : vlqsFFTInv_PermToR_16s_Sfs(x, y, spec, scale, buf);
        }
    }
};
struct C_32sc : InterleavedData {
    using Spec = VlqsFFTSpec_C_32sc;
    using Signal = Vlq32s;
    using Spectrum = Vlq32s;
    static constexpr Vlq32s word = 0x434D414C;
    static constexpr int largest = 27;
    static constexpr bool is16 = false, inDouble = true;
    static constexpr auto getSize = vlqsFFTGetSize_C_32sc;
    static constexpr auto init = vlqsFFTInit_C_32sc;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32sc;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32sc;
    static constexpr auto free = vlqsFFTFree_C_32sc;
    static VlqStatus forward(const Signal* x, Spectrum* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout) {
        const auto* src = reinterpret_cast<const Vlq32sc*>(x);
        auto* dst = reinterpret_cast<Vlq32sc*>(y);
        return x == y ? vlqsFFTFwd_CToC_32sc_ISfs(dst, spec, scale, buf) : vlqsFFTFwd_CToC_32sc_Sfs(src, dst, spec, scale, buf);
    }
    static VlqStatus inverse(const Spectrum* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout) {
        const auto* src = reinterpret_cast<const Vlq32sc*>(x);
        auto* dst = reinterpret_cast<Vlq32sc*>(y);
        return x == y ? vlqsFFTInv_CToC_32sc_ISfs(dst, spec, scale, buf) : vlqsFFTInv_CToC_32sc_Sfs(src, dst, spec, scale, buf);
    }
};
struct C_32s : SplitData {
    using Spec = VlqsFFTSpec_C_32s;
    using Signal = Vlq32s;
    using Spectrum = Vlq32s;
    static constexpr Vlq32s word = 0x434D414D;
    static constexpr int largest = 27;
    static constexpr bool is16 = false, inDouble = true;
    static constexpr auto getSize = vlqsFFTGetSize_C_32s;
    static constexpr auto init = vlqsFFTInit_C_32s;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_C_32s;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_C_32s;
    static constexpr auto free = vlqsFFTFree_C_32s;
    static VlqStatus forward(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int order, Layout) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        return x == y ? vlqsFFTFwd_CToC_32s_ISfs(y, after(y, n), spec, scale, buf)
                      : vlqsFFTFwd_CToC_32s_Sfs(x, after(x, n), y, after(y, n), spec, scale, buf);
    }
    static VlqStatus inverse(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int order, Layout) {
        const std::ptrdiff_t n = std::ptrdiff_t{1} << order;
        return x == y ? vlqsFFTInv_CToC_32s_ISfs(y, after(y, n), spec, scale, buf)
                      : vlqsFFTInv_CToC_32s_Sfs(x, after(x, n), y, after(y, n), spec, scale, buf);
    }
};
struct R_32s : RealData {
    using Spec = VlqsFFTSpec_R_32s;
    using Signal = Vlq32s;
    using Spectrum = Vlq32s;
    static constexpr Vlq32s word = 0x434D414E;
    static constexpr int largest = 28;
    static constexpr bool is16 = false, inDouble = true;
    static constexpr auto getSize = vlqsFFTGetSize_R_32s;
    static constexpr auto init = vlqsFFTInit_R_32s;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_32s;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_32s;
    static constexpr auto free = vlqsFFTFree_R_32s;
    static VlqStatus forward(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout layout) {
        switch (layout) {
            case Layout::ccs:
                return x == y ? vlqsFFTFwd_RToCCS_32s_ISfs(y, spec, scale, buf) : vlqsFFTFwd_RToCCS_32s_Sfs(x, y, spec, scale, buf);
            case Layout::pack:
                return x == y ? vlqsFFTFwd_RToPack_32s_ISfs(y, spec, scale, buf) : vlqsFFTFwd_RToPack_32s_Sfs(x, y, spec, scale, buf);
            default:
                return x == y ? vlqsFFTFwd_RToPerm_32s_ISfs(y, spec, scale, buf) : vlqsFFTFwd_RToPerm_32s_Sfs(x, y, spec, scale, buf);
        }
    }
    static VlqStatus inverse(const Signal* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout layout) {
        switch (layout) {
            case Layout::ccs:
                return x == y ? vlqsFFTInv_CCSToR_32s_ISfs(y, spec, scale, buf) : vlqsFFTInv_CCSToR_32s_Sfs(x, y, spec, scale, buf);
            case Layout::pack:
                return x == y ? vlqsFFTInv_PackToR_32s_ISfs(y, spec, scale, buf) : vlqsFFTInv_PackToR_32s_Sfs(x, y, spec, scale, buf);
            default:
                return x == y ? vlqsFFTInv_PermToR_32s_ISfs(y, spec, scale, buf) : vlqsFFTInv_PermToR_32s_Sfs(x, y, spec, scale, buf);
        }
    }
};
struct R_16s32s : RealData {
    static constexpr Layout layouts[] = {Layout::ccs};
    using Spec = VlqsFFTSpec_R_16s32s;
    using Signal = Vlq16s;
    using Spectrum = Vlq32s;
    static constexpr Vlq32s word = 0x434D414F;
    static constexpr int largest = 29;
    static constexpr bool is16 = false, inDouble = false;
    static constexpr auto getSize = vlqsFFTGetSize_R_16s32s;
    static constexpr auto init = vlqsFFTInit_R_16s32s;
    static constexpr auto initAlloc = vlqsFFTInitAlloc_R_16s32s;
    static constexpr auto getBufSize = vlqsFFTGetBufSize_R_16s32s;
    static constexpr auto free = vlqsFFTFree_R_16s32s;
    static VlqStatus forward(const Signal* x, Spectrum* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout) {
        return vlqsFFTFwd_RToCCS_16s32s_Sfs(x, y, spec, scale, buf);
    }
    static VlqStatus inverse(const Spectrum* x, Signal* y, const Spec* spec, Vlq32s scale, Vlq8u* buf, int, Layout) {
        return vlqsFFTInv_CCSToR_32s16s_Sfs(x, y, spec, scale, buf);
    }
};

}  // namespace vlqtest
