// The two laws of G.711 as the standard describes them: a code names an interval of magnitudes, its
// output value is the middle of it, and the coder searches for the interval.
#pragma once

#include "vlqs/types.h"

namespace vlqtest {

// Lower bound and width of the intervals of one sign, by number 0 to 127. mu-law counts in 14 bits,
// A-law in 13; the first interval of mu-law is half as wide.
struct Interval {
    int low, width;
};
inline Interval muLawInterval(int number) {
    const int segment = number / 16, step = 2 << segment;
    const int start = (32 << segment) - 33 + step * (number % 16);
    return number == 0 ? Interval{0, 1} : Interval{start + 0, step};
}
inline Interval aLawInterval(int number) {
    const int segment = number / 16;
    const int step = segment == 0 ? 2 : 1 << segment;
    const int start = segment == 0 ? 0 : 16 << segment;
    return {start + step * (number % 16), step};
}

inline int muLawOutput(int number) {
    if (number == 0) return 0;
    const Interval interval = muLawInterval(number);
    return interval.low + interval.width / 2;
}
inline int aLawOutput(int number) {
    const Interval interval = aLawInterval(number);
    return interval.low + interval.width / 2;
}

// The number of a magnitude: the last interval that does not begin above it.
template <class IntervalOf>
int numberOf(int magnitude, IntervalOf interval) {
    int number = 0;
    while (number < 127 && interval(number + 1).low <= magnitude) ++number;
    return number;
}

inline Vlq8u muLawCodeRef(Vlq16s x) {
    const int magnitude = (x < 0 ? -1 - x : x) / 4;
    const int number = numberOf(magnitude, muLawInterval);
    return static_cast<Vlq8u>((x < 0 ? 0x7F : 0xFF) - number);
}
inline Vlq8u aLawCodeRef(Vlq16s x) {
    const int magnitude = (x < 0 ? -1 - x : x) / 8;
    const int number = numberOf(magnitude, aLawInterval);
    return static_cast<Vlq8u>(((x < 0 ? 0 : 0x80) + number) ^ 0x55);
}
inline Vlq16s muLawSampleRef(Vlq8u code) {
    const bool isPositive = code >= 0x80;
    const int output = 4 * muLawOutput((isPositive ? 0xFF : 0x7F) - code);
    return static_cast<Vlq16s>(isPositive ? output : -output);
}
inline Vlq16s aLawSampleRef(Vlq8u code) {
    const int plain = code ^ 0x55;
    const int output = 8 * aLawOutput(plain & 0x7F);
    return static_cast<Vlq16s>(plain >= 0x80 ? output : -output);
}

// The pairs of output values in the tables of the standard, from the smallest value up.
inline constexpr int kMuLawToALaw[128] = {
    1,   1,   2,   2,   3,   3,   4,   4,   5,   5,   6,   6,   7,   7,   8,   8,   9,   10,  11,
    12,  13,  14,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  25,  27,  29,  31,  33,  34,
    35,  36,  37,  38,  39,  40,  41,  42,  43,  44,  46,  48,  49,  50,  51,  52,  53,  54,  55,
    56,  57,  58,  59,  60,  61,  62,  64,  65,  66,  67,  68,  69,  70,  71,  72,  73,  74,  75,
    76,  77,  78,  79,  80,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,  95,
    96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114,
    115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128};
inline constexpr int kALawToMuLaw[128] = {
    1,   3,   5,   7,   9,   11,  13,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  25,  26,
    27,  28,  29,  30,  31,  32,  32,  33,  33,  34,  34,  35,  35,  36,  37,  38,  39,  40,  41,
    42,  43,  44,  45,  46,  47,  48,  48,  49,  49,  50,  51,  52,  53,  54,  55,  56,  57,  58,
    59,  60,  61,  62,  63,  64,  64,  65,  66,  67,  68,  69,  70,  71,  72,  73,  74,  75,  76,
    77,  78,  79,  80,  80,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,
    95,  96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
    114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127};

}  // namespace vlqtest
