// Blocks of samples through a floating FIR state in the time domain.
#pragma once

#include <algorithm>

#include "filter/common/sample_conversion.h"
#include "filter/common/work.h"
#include "filter/fir/fir_state.h"
#include "filter/fir/time_domain_complex_kernels.h"
#include "filter/fir/time_domain_kernels.h"
#include "frame/team.h"
#include "vlqs/core.h"

namespace vlq::fir {

// Threads for `len` outputs. Never more than `built`, the number that a state was built for: its
// arrays have room for no more.
template <class E>
inline Vlq32s timeDomainTeam(Vlq32s built, Vlq32s len, Vlq32s tapsLen) {
    if (len <= Traits<E>::kThreadedAbove) return 1;
    return teamSize(std::min(built, ownGetNumThreads()), timeDomainNanoseconds<E>(len, tapsLen));
}

// Samples of the element's type. Only the outputs at the seam of two calls are made from the delay
// store; the others read src itself.
template <class E>
void timeDomainBlock(FirState<E>& state, const E* src, E* dst, Vlq32s len) {
    const Vlq32s tapsLen = state.tapsLen;
    const E* tapsWide = state.tapsWide;
    E* line = state.dlyLine;
    E* window = line + state.dlyIndex;
    state.dlyIndex = 0;
    if (len <= state.firstChunk) {
        widen(src, window + tapsLen, len);
        convolve(tapsWide, window + 1, dst, len, tapsLen);
        moveElements(window + len, line, tapsLen);
        return;
    }
    const Vlq32s seam = (tapsLen + 3) & ~3;
    widen(src, window + tapsLen, state.firstChunk);
    convolve(tapsWide, window + 1, dst, seam, tapsLen);
    widen(src + (len - tapsLen), line, tapsLen);

    const E* x = src + (seam - tapsLen + 1);
    dst += seam;
    const Vlq32s threads = timeDomainTeam<E>(state.threads, len, tapsLen);
    if (threads > 1) {
        shareEvenly(threads, len - seam, [=](Vlq32s first, Vlq32s count) {
            convolve(tapsWide, x + first, dst + first, count, tapsLen);
        });
    } else {
        convolve(tapsWide, x, dst, len - seam, tapsLen);
    }
}

// Samples of another type, in equal shares for a team, each thread with buffers of its own. dst may
// be src, so the history of each share is saved in the staging area before any is overwritten.
// Short filters alone: the staging area must hold the history of every share.
inline constexpr Vlq32s kLongestHistory = 63;

template <class E, class Sample, class Scale>
void timeDomainShares(FirState<E>& state, Vlq32s shares, const Sample* src, Sample* dst, Vlq32s len,
                      Scale scale) {
    const Vlq32s tapsLen = state.tapsLen, history = tapsLen - 1;
    const Vlq32s share = len / shares;
    const E* tapsWide = state.tapsWide;
    E* line = state.dlyLine;
    E* histories = state.blockBuf;
    if (history > 0) {
        moveElements(line + state.dlyIndex + 1, histories, history);
        for (Vlq32s i = 1; i < shares; ++i)
            widen(src + (i * share - history), histories + i * history, history);
    }
    state.dlyIndex = 0;
    widen(src + (len - tapsLen), line, tapsLen);

    shareEvenly(shares, shares, [=](Vlq32s first, Vlq32s count) {
        constexpr Vlq32s piece = 512;
        E window[kLongestHistory + piece], filtered[piece];
        for (Vlq32s i = first; i < first + count; ++i) {
            const Vlq32s end = i == shares - 1 ? len : (i + 1) * share;
            std::copy_n(histories + i * history, history, window);
            for (Vlq32s at = i * share; at < end; at += piece) {
                const Vlq32s outputs = std::min(piece, end - at);
                widen(src + at, window + history, outputs);
                convolve<E>(tapsWide, window, filtered, outputs, tapsLen);
                narrow(filtered, dst + at, outputs, scale);
                std::copy_n(window + outputs, history, window);
            }
        }
    });
}

// Samples of another type, in pieces that half the staging area holds widened and the other half
// filtered. dst may be src.
template <class E, class Sample, class Scale>
void timeDomainPieces(FirState<E>& state, const Sample* src, Sample* dst, Vlq32s len, Scale scale) {
    const Vlq32s threads = timeDomainTeam<E>(state.threads, len, state.tapsLen);
    const bool isShort =
        state.tapsLen <= kLongestHistory + 1 && threads <= kStaging / (kLongestHistory + 1);
    if (threads > 1 && isShort && len / threads >= state.tapsLen)
        return timeDomainShares(state, threads, src, dst, len, scale);
    constexpr Vlq32s half = kStaging / 2;
    E* widened = state.blockBuf;
    E* filtered = widened + half;
    for (Vlq32s done = 0; done < len; done += half) {
        const Vlq32s piece = std::min(half, len - done);
        widen(src + done, widened, piece);
        timeDomainBlock(state, widened, filtered, piece);
        narrow(filtered, dst + done, piece, scale);
    }
}

}  // namespace vlq::fir
