// The record of a FIR filter with integer arithmetic: layout, construction, taps and delay line.
// Complex samples and taps are seen as their parts, Parts of them each.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

#include "filter/fir/integer/fir_integer_kernels.h"
#include "frame/loop/element_views.h"
#include "frame/state/state.h"
#include "vlqs/core.h"
#include "vlqs/fir.h"

namespace vlq::fir::integer {

// Samples of a call that goes through the staging area at once.
inline constexpr Vlq32s kBlock = 4096;

// The parts of samples and taps; what is real is its own part.
using vlq::reals;
inline const Vlq16s* reals(const Vlq16s* v) { return v; }
inline const Vlq32s* reals(const Vlq32s* v) { return v; }
inline const Vlq32f* reals(const Vlq32f* v) { return v; }
inline Vlq16s* reals(Vlq16s* v) { return v; }
inline Vlq32s* reals(Vlq32s* v) { return v; }
inline Vlq32f* reals(Vlq32f* v) { return v; }

template <int Parts>
struct PartsOf {
    using Sample = Vlq16s;
};
template <>
struct PartsOf<2> {
    using Sample = Vlq16sc;
};

struct PhaseTable;  // of multi-rate filters

// ListPart is a part of a tap in the list that is read back.
template <class ListPart, int Parts>
struct Record {
    using Sample = typename PartsOf<Parts>::Sample;
    using Part = ListPart;
    static constexpr int kParts = Parts;

    Vlq32u idCtx;
    RelPtr<ListPart> taps;  // reversed: taps[i] = h[tapsLen - 1 - i]
    RelPtr<Vlq16s>
        dlyLine;  // store; the live window of dlyLen samples starts at dlyIndex, oldest first
    Vlq32s tapsLen;
    Vlq32s upFactor;    // multi-rate only
    Vlq32s firstChunk;  // parts of samples that go into the store at the seam of two blocks
    Vlq32s downFactor;  // multi-rate only
    Vlq32s tapsStride;  // multi-rate only: outputs of the first chunk
    Vlq32s tapsFactor;
    RelPtr<Vlq16s> tapRows;
    Vlq32s dlyIndex;
    RelPtr<PhaseTable> phases;  // multi-rate only
    Vlq32s rowLen;              // words
    Vlq32s dlyLen;              // samples in the delay line
    RelPtr<Vlq16s> blockBuf;    // kBlock samples; multi-rate: the streams
    Vlq32s ownsMemory;
    Vlq32s upPhase;  // multi-rate only, as the next two
    Vlq32s downPhase;
    Vlq32s mrSamples;  // taps of a phase, room for the decimator's steps included
    Vlq32s magnitude;  // of all taps of an output together; of every record
};
using RealRecord = Record<Vlq32s, 1>;
static_assert(sizeof(RealRecord) == 80 && offsetof(RealRecord, ownsMemory) == 60);

// ---- sizes --------------------------------------------------------------------------------------

template <int Parts>
struct Layout;

// A row has two zeros before its taps and some behind them; the block has room for four.
template <>
struct Layout<1> {
    static constexpr Vlq64s rowLen(Vlq64s tapsLen) { return (tapsLen + 11) & ~Vlq64s{7}; }
    static constexpr Vlq64s firstChunk(Vlq64s tapsLen) { return rowLen(tapsLen); }
    static constexpr Vlq64s delayStoreBytes(Vlq64s tapsLen) {
        return ((rowLen(tapsLen) + 2 * tapsLen) * 2 + 23) & ~Vlq64s{15};
    }
    static constexpr Vlq64s rowsBytes(Vlq64s tapsLen) { return 8 * rowLen(tapsLen); }
};

// Two rows of pairs: (c, -d) gives the real, (d, c) the imaginary part of a product with c + id.
template <>
struct Layout<2> {
    static constexpr Vlq64s rowLen(Vlq64s tapsLen) { return 2 * tapsLen; }
    static constexpr Vlq64s firstChunk(Vlq64s tapsLen) {
        return ((2 * tapsLen + 7) & ~Vlq64s{7}) + 2;
    }
    static constexpr Vlq64s delayStoreBytes(Vlq64s tapsLen) {
        return (12 * tapsLen + 31) & ~Vlq64s{15};
    }
    static constexpr Vlq64s rowsBytes(Vlq64s tapsLen) { return 16 * tapsLen; }
};

template <class State>
constexpr Vlq64s recordBytes(Vlq64s tapsLen) {
    using L = Layout<State::kParts>;
    constexpr Vlq64s tapBytes = State::kParts * static_cast<Vlq64s>(sizeof(typename State::Part));
    constexpr Vlq64s sampleBytes = 4;  // of the staging area, whatever the sample
    constexpr Vlq64s alignment = 16;
    return roundUp(tapBytes * tapsLen, alignment) + L::delayStoreBytes(tapsLen) +
           L::rowsBytes(tapsLen) + Vlq64s{sizeof(State)} + kBlock * sampleBytes + alignment;
}

// ---- words --------------------------------------------------------------------------------------

template <Vlq32u word, Vlq32u multiRateWord, Vlq32u... streamWord>
struct Words {
    static constexpr Vlq32u kWord = word;
    static constexpr Vlq32u kMultiRateWord = multiRateWord;
    static constexpr bool isFilter(Vlq32u id) { return id == word || id == multiRateWord; }
    // Streaming records are released as plain ones.
    static constexpr bool isFreeable(Vlq32u id) {
        return isFilter(id) || ((id == streamWord) || ...);
    }
};

template <class State>
struct Kind;

template <class State>
inline bool isSingleRate(const State& state) {
    return state.idCtx == Kind<State>::kWord;
}
template <class State>
inline bool isMultiRate(const State& state) {
    return state.idCtx == Kind<State>::kMultiRateWord;
}
// The accessors serve single-rate and multi-rate records alike.
template <class State>
inline bool isFilter(const State& state) {
    return Kind<State>::isFilter(state.idCtx);
}

// ---- taps to 16 bits ----------------------------------------------------------------------------

// parts[i], i < count, as 16-bit integers times 2^exponent.
struct Keep {
    template <class T>
    Vlq32s operator()(T part) const {
        return part;
    }
};
struct ShiftDown {
    Vlq32s exponent;
    Vlq32s operator()(Vlq32s part) const { return part >> exponent; }
};

inline ShiftDown fitted(const Vlq32s* parts, std::ptrdiff_t count) {
    Vlq32u peak = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const auto part = static_cast<Vlq32u>(loadScalar(parts + i));
        peak = std::max(peak, std::min(part, 0 - part));
    }
    Vlq32s shift = 0;
    for (; peak > 32766; peak >>= 1) ++shift;
    return {shift};
}
// Already of 16 bits; -32768 alone has no counterpart.
inline ShiftDown fitted(const Vlq16s* parts, std::ptrdiff_t count) {
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        if (loadScalar(parts + i) == -32768) return {1};
    }
    return {0};
}

// Floats times a power of two, rounded to nearest, ties away from zero; the largest then takes 15
// bits, unless the power would lie beyond 2^-limit or 2^limit.
struct Quantize {
    Vlq32s exponent;
    double scale;
    Vlq32s operator()(Vlq32f part) const {
        using Limits = std::numeric_limits<Vlq32s>;
        const double scaled = scale * static_cast<double>(part);
        const double rounded = scaled < 0 ? scaled - 0.5 : scaled + 0.5;
        if (!(rounded > Limits::min())) return Limits::min();
        return rounded < Limits::max() ? static_cast<Vlq32s>(rounded) : Limits::max();
    }
};
inline Quantize quantized(const Vlq32f* parts, std::ptrdiff_t count, Vlq32s limit) {
    constexpr double top = 32767.0;
    double peak = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        peak = std::max(peak, std::fabs(static_cast<double>(loadScalar(parts + i))));
    Quantize rule{0, 1.0};
    for (; peak > top && rule.exponent < limit; peak *= 0.5, rule.scale *= 0.5) ++rule.exponent;
    if (rule.exponent > 0) return rule;
    for (double twice = peak + peak; twice < top && rule.exponent > -limit;
         twice += twice, rule.scale += rule.scale) {
        --rule.exponent;
    }
    return rule;
}

// ---- writing ------------------------------------------------------------------------------------

inline Vlq16s saturated(Vlq64s value) {
    return static_cast<Vlq16s>(std::clamp<Vlq64s>(value, -32768, 32767));
}

// Before the taps of a real row.
inline constexpr int kZeros = 2;

template <class ListPart, int Parts>
TapRows<Parts> rowsOf(const Record<ListPart, Parts>& record) {
    if constexpr (Parts == 1)
        return {{record.tapRows + kZeros}, record.tapsLen, record.magnitude};
    else
        return {{record.tapRows, record.tapRows + record.rowLen},
                2 * std::ptrdiff_t{record.tapsLen},
                record.magnitude};
}

// The list that is read back, from taps in natural order.
template <class ListPart, int Parts, class T, class Rule>
void writeList(Record<ListPart, Parts>& record, const T* parts, const Rule& rule) {
    const std::ptrdiff_t len = record.tapsLen;
    ListPart* list = record.taps;
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        for (int p = 0; p < Parts; ++p) {
            list[i * Parts + p] =
                static_cast<ListPart>(rule(loadScalar(parts + (len - 1 - i) * Parts + p)));
        }
    }
}

// A tap of the list as a pair of words in the rows for the real and for the imaginary part.
template <class ListPart>
void writeComplexTap(const ListPart* tap, Vlq16s* re, Vlq16s* im) {
    re[0] = im[1] = saturated(tap[0]);
    re[1] = saturated(-Vlq64s{tap[1]});
    im[0] = saturated(tap[1]);
}

// Of all words of a row together; of a long one the top of the type.
inline Vlq32s magnitudeOf(const Vlq16s* row, std::ptrdiff_t words) {
    Vlq64s sum = 0;
    for (std::ptrdiff_t i = 0; i < words; ++i) sum += std::abs(Vlq32s{row[i]});
    return static_cast<Vlq32s>(std::min<Vlq64s>(sum, std::numeric_limits<Vlq32s>::max()));
}

// The rows of a single-rate filter, from the list.
template <class ListPart, int Parts>
void writeRows(Record<ListPart, Parts>& record) {
    const std::ptrdiff_t len = record.tapsLen;
    const ListPart* list = record.taps;
    Vlq16s* row = record.tapRows;
    if constexpr (Parts == 1) {
        std::fill(row, row + record.rowLen, Vlq16s{0});
        for (std::ptrdiff_t i = 0; i < len; ++i) row[kZeros + i] = saturated(list[i]);
    } else {
        for (std::ptrdiff_t i = 0; i < 2 * len; i += 2)
            writeComplexTap(list + i, row + i, row + record.rowLen + i);
    }
    record.magnitude = magnitudeOf(row, record.rowLen);
}

// The sum stays in range: a factor that far out moves every sum out of its range anyway.
inline Vlq32s effectiveFactor(Vlq32s tapsFactor, Vlq32s exponent) {
    using Limits = std::numeric_limits<Vlq32s>;
    return static_cast<Vlq32s>(std::min<Vlq64s>(Vlq64s{tapsFactor} + exponent, Limits::max()));
}

inline void moveWords(const Vlq16s* src, Vlq16s* dst, std::ptrdiff_t words) {
    std::memmove(dst, src, static_cast<std::size_t>(words) * sizeof(Vlq16s));
}

// dlyLine: newest sample first; null for silence.
template <class ListPart, int Parts>
void writeDelayLine(Record<ListPart, Parts>& record, const Vlq16s* dlyLine) {
    const std::ptrdiff_t len = record.dlyLen;
    Vlq16s* oldest = record.dlyLine;
    record.dlyIndex = 0;
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        for (int p = 0; p < Parts; ++p) {
            oldest[i * Parts + p] =
                dlyLine ? loadScalar(dlyLine + (len - 1 - i) * Parts + p) : Vlq16s{0};
        }
    }
}
template <class ListPart, int Parts>
void readDelayLine(const Record<ListPart, Parts>& record, Vlq16s* dlyLine) {
    const std::ptrdiff_t len = record.dlyLen;
    const Vlq16s* oldest = record.dlyLine + std::ptrdiff_t{record.dlyIndex} * Parts;
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        std::memcpy(dlyLine + i * Parts, oldest + (len - 1 - i) * Parts, Parts * sizeof(Vlq16s));
    }
}

template <class State>
State* layOut(void* memory, Vlq32s tapsLen) {
    using L = Layout<State::kParts>;
    constexpr std::size_t alignment = 16;
    const Vlq64s len = tapsLen;
    Cursor cursor(memory, recordBytes<State>(len));
    auto* state = ::new (static_cast<void*>(cursor.take<State>(1, alignment))) State{};
    state->tapsLen = state->dlyLen = tapsLen;
    state->firstChunk = static_cast<Vlq32s>(L::firstChunk(len));
    state->rowLen = static_cast<Vlq32s>(L::rowLen(len));
    state->idCtx = Kind<State>::kWord;
    state->taps = cursor.take<typename State::Part>(len * State::kParts);
    state->dlyLine =
        reinterpret_cast<Vlq16s*>(cursor.take<char>(L::delayStoreBytes(len), alignment));
    state->tapRows = reinterpret_cast<Vlq16s*>(cursor.take<char>(L::rowsBytes(len)));
    state->blockBuf = cursor.take<Vlq16s>(Vlq64s{kBlock} * State::kParts, alignment);
    return state;
}

// A record in memory of our own; null when there is none, as for one of 2 GiB.
template <class State>
State* allocate(Vlq32s tapsLen) {
    const Vlq64s bytes = recordBytes<State>(tapsLen);
    if (!fitsRecord(bytes)) return nullptr;
    Vlq8u* memory = vlqsMalloc_8u(static_cast<Vlq32s>(bytes));
    if (!memory) return nullptr;
    State* state = layOut<State>(memory, tapsLen);
    state->ownsMemory = 1;
    return state;
}

}  // namespace vlq::fir::integer

struct vlq::VlqsFIRState_16s : vlq::fir::integer::Record<Vlq16s, 1> {};
struct vlq::VlqsFIRState32s_16s : vlq::fir::integer::Record<Vlq32s, 1> {};
struct vlq::VlqsFIRState32sc_16sc : vlq::fir::integer::Record<Vlq32s, 2> {};

namespace vlq::fir::integer {

template <>
struct Kind<VlqsFIRState_16s> : Words<0x46493239, 0x46493330, 0x46493331, 0x46493332> {};
template <>
struct Kind<VlqsFIRState32s_16s> : Words<0x46493039, 0x46493131> {};
template <>
struct Kind<VlqsFIRState32sc_16sc> : Words<0x46493130, 0x46493132> {};

}  // namespace vlq::fir::integer
