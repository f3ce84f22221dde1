// Few periods of an integer multi-rate filter: each output from a row of taps of its own.
//
// Where there are too few periods to fill the lanes of a vector with them, lanes go along the
// window instead: the products of a window with its row leave the sum of an output spread over the
// lanes of a vector. Four such vectors at a time are added up to one that holds four outputs.
#pragma once

#include "filter/fir/integer/fir_integer_kernels.h"

namespace vlq::fir::integer {

// A row holds whole vectors: zeros, then the taps of its output, the newest sample's last. The
// windows therefore begin before the oldest sample that counts, and end with the newest.
struct PhaseRows {
    const Vlq16s* rows;         // of each output of a period; of a complex one Re's, then Im's
    const Vlq32s* starts;       // of their windows, in values from the period's first sample
    std::ptrdiff_t rowLen;      // 16-bit values
    std::ptrdiff_t outputs;     // of a period
    std::ptrdiff_t inputWords;  // of a period
};

// Bytes of the vectors of a row that holds so many 16-bit taps.
constexpr int rowVectorBytes(Vlq64s words) {
    constexpr Vlq64s wordBytes = sizeof(Vlq16s);
    int bytes = 16;
    while (bytes < kVecBytes && bytes < words * wordBytes) bytes *= 2;
    return bytes;
}
constexpr Vlq64s phaseRowLength(Vlq64s words) {
    const Vlq64s lanes = rowVectorBytes(words) / static_cast<int>(sizeof(Vlq16s));
    return (words + lanes - 1) / lanes * lanes;
}

// Products of one window with its row, or rows, to be summed over the lanes. Vectors is the number
// of them in a row; 0 for any.
template <int B, int Vectors, int Parts>
[[gnu::always_inline]] inline void windowProducts(const Vlq16s* window, const Vlq16s* row,
                                                  std::ptrdiff_t rowLen, Vec<Vlq32s, B>* sums) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq16s, B>::lanes;
    auto products = [&](int part, std::ptrdiff_t j) {
        return pairSums(load<Vlq16s, B>(window + j),
                        loadAligned<Vlq16s, B>(row + part * rowLen + j));
    };
    for (int part = 0; part < Parts; ++part) sums[part] = products(part, 0);
    if constexpr (Vectors == 0) {
        for (std::ptrdiff_t j = lanes; j < rowLen; j += lanes) {
            for (int part = 0; part < Parts; ++part) sums[part] += products(part, j);
        }
    } else {
#pragma GCC unroll 4
        for (std::ptrdiff_t j = lanes; j < Vectors * lanes; j += lanes) {
            for (int part = 0; part < Parts; ++part) sums[part] += products(part, j);
        }
    }
}

// A vector of outputs. window(i) and row(i) are those of output i.
template <int B, int Vectors, int Parts, class Window, class Row>
[[gnu::always_inline]] inline Vec<Vlq16s, B> vectorOfOutputs(Window window, Row row,
                                                             std::ptrdiff_t rowLen,
                                                             const Finish& finish) {
    constexpr int fours = Vec<Vlq16s, B>::lanes / 4;
    Vec<Vlq32s, B> four[fours];
#pragma GCC unroll 8
    for (int k = 0; k < fours; ++k) {
        Vec<Vlq32s, B> sums[4];
#pragma GCC unroll 4
        for (int i = 0; i < 4; i += Parts) {
            const int output = (4 * k + i) / Parts;
            windowProducts<B, Vectors, Parts>(window(output), row(output), rowLen, sums + i);
        }
        four[k] = blockSums(sums);
    }
    // Blocks of the wider vectors: sums of parts of the windows.
    if constexpr (B == 16) {
        return narrowSatBlocks(finish(four[0]), finish(four[1]));
    } else if constexpr (B == 32) {
        return narrowSatBlocks(finish(addBlocks(four[0], four[2])),
                               finish(addBlocks(four[1], four[3])));
    } else {
        return narrowSatBlocks(
            finish(addBlocks(addBlocks(four[0], four[2]), addBlocks(four[4], four[6]))),
            finish(addBlocks(addBlocks(four[1], four[3]), addBlocks(four[5], four[7]))));
    }
}

// Periods that fill a vector with their outputs. The last vector of each ends with the period.
template <int B, int Vectors, int Parts>
[[gnu::noinline]] void longPeriods(const PhaseRows& phases, const Vlq16s* x, Vlq16s* dst,
                                   std::ptrdiff_t periods, const Finish& finish) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq16s, B>::lanes, outputs = lanes / Parts;
    const std::ptrdiff_t rowLen = Vectors ? Vectors * lanes : phases.rowLen;
    const std::ptrdiff_t last = phases.outputs - outputs;
    for (; periods > 0; --periods, x += phases.inputWords, dst += phases.outputs * Parts) {
        for (std::ptrdiff_t first = 0;; first = std::min(first + outputs, last)) {
            const Vlq16s* const rows = phases.rows + first * Parts * rowLen;
            const Vlq32s* const starts = phases.starts + first;
            store(dst + first * Parts,
                  vectorOfOutputs<B, Vectors, Parts>(
                      [&](int i) { return x + starts[i]; },
                      [&](int i) { return rows + i * Parts * rowLen; }, rowLen, finish));
            if (first == last) break;
        }
    }
}

// Periods of fewer outputs: a vector goes across them.
template <int Parts>
[[gnu::noinline]] void shortPeriods(const PhaseRows& phases, const Vlq16s* x, Vlq16s* dst,
                                    std::ptrdiff_t periods, const Finish& finish) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq16s, 16>::lanes;
    std::ptrdiff_t output = 0;
    for (std::ptrdiff_t left = periods * phases.outputs * Parts; left > 0;
         left -= lanes, dst += lanes) {
        const Vlq16s *windows[lanes / Parts], *rows[lanes / Parts];
        for (int i = 0; i < lanes / Parts; ++i) {
            windows[i] = x + phases.starts[output];
            rows[i] = phases.rows + output * Parts * phases.rowLen;
            // Behind the last output there are no samples: it is made again.
            if (Parts * (i + 1) < left && ++output == phases.outputs) {
                output = 0;
                x += phases.inputWords;
            }
        }
        const auto results =
            vectorOfOutputs<16, 0, Parts>([&](int i) { return windows[i]; },
                                          [&](int i) { return rows[i]; }, phases.rowLen, finish);
        if (left >= lanes) {
            store(dst, results);
        } else {
            Vlq16s first[lanes];
            store(first, results);
            std::memcpy(dst, first, static_cast<std::size_t>(left) * sizeof(Vlq16s));
        }
    }
}

// The outputs of whole periods, whose samples begin at x.
template <int Parts>
inline void rowOutputs(const PhaseRows& phases, const Vlq16s* x, Vlq16s* dst,
                       std::ptrdiff_t periods, const Finish& finish) {
    constexpr std::ptrdiff_t lanes = Vec<Vlq16s>::lanes, fewest = Vec<Vlq16s, 16>::lanes;
    const std::ptrdiff_t outputWords = phases.outputs * Parts;
    if (outputWords < fewest) return shortPeriods<Parts>(phases, x, dst, periods, finish);
    if (phases.rowLen % lanes != 0 || outputWords < lanes)
        return longPeriods<16, 0, Parts>(phases, x, dst, periods, finish);
    switch (phases.rowLen / lanes) {
        case 1: return longPeriods<kVecBytes, 1, Parts>(phases, x, dst, periods, finish);
        case 2: return longPeriods<kVecBytes, 2, Parts>(phases, x, dst, periods, finish);
        case 3: return longPeriods<kVecBytes, 3, Parts>(phases, x, dst, periods, finish);
        default: return longPeriods<kVecBytes, 0, Parts>(phases, x, dst, periods, finish);
    }
}

}  // namespace vlq::fir::integer
