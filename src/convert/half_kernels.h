// Conversions to and from half-precision numbers; integers are converted by way of floats.
#pragma once

#include "convert/floating_kernels.h"
#include "frame/simd/half.h"

namespace vlq::convert {

struct WidenHalf {
    Block<float, 2> operator()(const Block<std::uint16_t, 1>& v) const {
        return halfToFloat(v.part[0]);
    }
};

template <Rounding rounding>
struct NarrowToHalf {
    Block<std::uint16_t, 1> operator()(const Block<float, 2>& v) const {
        return {{floatToHalf<rounding == Rounding::TiesToEven>(v)}};
    }
};

template <Rounding rounding>
struct IntegerToHalf {
    Block<std::uint16_t, 1> operator()(const Block<std::int16_t, 1>& v) const {
        const auto w = widen(v.part[0]);
        return {{floatToHalf<rounding == Rounding::TiesToEven>(
            Block<float, 2>{{toFloat(w.part[0]), toFloat(w.part[1])}})}};
    }
};

template <class Scale, Rounding rounding>
struct HalfToInteger {
    ToInteger<std::int16_t, Scale, rounding> convert;
    Block<std::int16_t, 1> operator()(const Block<std::uint16_t, 1>& v) const {
        return convert(halfToFloat(v.part[0]));
    }
};

}  // namespace vlq::convert
