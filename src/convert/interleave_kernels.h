// Interleaved integer samples to one vector of floats in [-1, 1] per channel, and back. The kernels
// run under StandardFloatMode.
#pragma once

#include "frame/loop/map.h"
#include "frame/loop/map_packed24.h"
#include "frame/simd/convert.h"
#include "frame/simd/ops.h"

namespace vlq::splitjoin {

// A sample x of b bits becomes (2 x + 1) / (2^b - 1): the lowest is -1, the highest 1, and none is
// 0. It is rounded twice, after the product and after the sum.
struct ToUnit {
    float step, half;
    Vec<float> operator()(Vec<std::int32_t> v) const {
        return toFloat(v) * Vec<float>::broadcast(step) + Vec<float>::broadcast(half);
    }
    float operator()(std::int32_t x) const { return static_cast<float>(x) * step + half; }
};
inline constexpr ToUnit kToUnit16 = {0x1.0001p-15f,
                                     0x1.0001p-16f};  // 1/32767.5 and 1/65535, nearest floats
// 1/8388607.5, nearest float. 1/16777215 is halfway between two floats: with the lower one the ends
// come out as -1 and 1, with the upper one the highest sample would exceed 1.
inline constexpr ToUnit kToUnit24 = {0x1.000002p-23f, 0x1p-24f};

// The inverse, rounded to nearest. Values are clamped to [-1, 1], whose ends become those of the
// range exactly. NaN becomes the highest sample.
struct FromUnit {
    float scale;
    Vec<std::int32_t> operator()(Vec<float> v) const {
        const Vec<float> one = Vec<float>::broadcast(1.0f), minusOne = Vec<float>::broadcast(-1.0f);
        return toNearest(maximum(minimum(v, one), minusOne) * Vec<float>::broadcast(scale) -
                         Vec<float>::broadcast(0.5f));
    }
};
inline constexpr FromUnit kFromUnit16 = {32767.5f};
inline constexpr FromUnit kFromUnit24 = {8388607.5f};

// ---- one run of samples -------------------------------------------------------------------------
inline void toUnit(float* dst, const std::int16_t* src, std::ptrdiff_t len) {
    mapBlocks(
        dst, len,
        [](const Block<std::int16_t, 1>& v) {
            const auto w = widen(v.part[0]);
            return Block<float, 2>{{kToUnit16(w.part[0]), kToUnit16(w.part[1])}};
        },
        src);
}
inline void toUnit(float* dst, const std::uint8_t* packed, std::ptrdiff_t len) {
    mapFromPacked24<true>(dst, packed, len, [](const Packed24& v) {
        return Block<float, 2>{{kToUnit24(v.part[0]), kToUnit24(v.part[1])}};
    });
}
inline void fromUnit(std::int16_t* dst, const float* src, std::ptrdiff_t len) {
    mapBlocks(
        dst, len,
        [](const Block<float, 2>& v) {
            const Block<std::int32_t, 2> rounded{{kFromUnit16(v.part[0]), kFromUnit16(v.part[1])}};
            return Block<std::int16_t, 1>{{narrowSat<std::int16_t>(rounded)}};
        },
        src);
}
inline void fromUnit(std::uint8_t* packed, const float* src, std::ptrdiff_t len) {
    mapToPacked24(packed, src, len, [](const Block<float, 2>& v) {
        return Packed24{{kFromUnit24(v.part[0]), kFromUnit24(v.part[1])}};
    });
}

// ---- any number of channels ---------------------------------------------------------------------
inline float unitAt(const std::int16_t* src, std::ptrdiff_t index) {
    std::int16_t sample;
    std::memcpy(&sample, src + index, sizeof sample);
    return kToUnit16(sample);
}
inline float unitAt(const std::uint8_t* packed, std::ptrdiff_t index) {
    const std::uint8_t* p = packed + 3 * index;
    return kToUnit24(static_cast<std::int8_t>(p[2]) * 65536 + (p[1] << 8 | p[0]));
}

// One channel after another, over as many frames as stay in the first-level cache meanwhile.
template <class T>
inline void split(const T* src, float* const* dstRows, std::int32_t channels, std::int32_t frames) {
    if (channels == 1) return toUnit(dstRows[0], src, frames);
    const std::ptrdiff_t step = channels < 1024 ? 8192 / channels : 8;
    for (std::ptrdiff_t first = 0; first < frames; first += step) {
        const std::ptrdiff_t last = frames - first < step ? frames : first + step;
        for (std::ptrdiff_t c = 0; c < channels; ++c) {
            float* row = dstRows[c];
            for (std::ptrdiff_t f = first; f < last; ++f) {
                const float value = unitAt(src, f * channels + c);
                std::memcpy(row + f, &value, sizeof value);
            }
        }
    }
}

// Samples are interleaved in a tile of floats and converted from there: whole frames if any fit,
// else parts of one frame.
inline constexpr int kTile = 1024;

template <int kBytes, class T>
inline void join(const float* const* srcRows, std::int32_t channels, std::int32_t frames, T* dst) {
    constexpr int each = kBytes / static_cast<int>(sizeof(T));
    if (channels == 1) return fromUnit(dst, srcRows[0], frames);
    alignas(64) float tile[kTile];
    const std::ptrdiff_t frameStep = channels < kTile ? kTile / channels : 1;
    const std::ptrdiff_t channelStep = channels < kTile ? channels : kTile;
    for (std::ptrdiff_t f = 0; f < frames; f += frameStep) {
        const std::ptrdiff_t frameCount = frames - f < frameStep ? frames - f : frameStep;
        for (std::ptrdiff_t c = 0; c < channels; c += channelStep) {
            const std::ptrdiff_t channelCount =
                channels - c < channelStep ? channels - c : channelStep;
            for (std::ptrdiff_t k = 0; k < channelCount; ++k) {
                const float* row = srcRows[c + k] + f;
                for (std::ptrdiff_t i = 0; i < frameCount; ++i)
                    std::memcpy(tile + i * channelCount + k, row + i, sizeof(float));
            }
            fromUnit(dst + (f * channels + c) * each, tile, frameCount * channelCount);
        }
    }
}

// ---- stereo: both channels of a frame in one 32-bit lane ----------------------------------------
inline void splitStereo(const std::int16_t* src, float* left, float* right, std::ptrdiff_t frames) {
    const auto* pairs = reinterpret_cast<const std::int32_t*>(src);
    map(
        left, frames,
        [](Vec<std::int32_t> v) { return kToUnit16(shiftRight(shiftLeft(v, 16), 16)); }, pairs);
    map(
        right, frames, [](Vec<std::int32_t> v) { return kToUnit16(shiftRight(v, 16)); }, pairs);
}
inline void joinStereo(const float* left, const float* right, std::ptrdiff_t frames,
                       std::int16_t* dst) {
    map(
        reinterpret_cast<std::int32_t*>(dst), frames,
        [](Vec<float> l, Vec<float> r) {
            return (kFromUnit16(l) & Vec<std::int32_t>::broadcast(0xFFFF)) |
                   shiftLeft(kFromUnit16(r), 16);
        },
        left, right);
}

}  // namespace vlq::splitjoin
