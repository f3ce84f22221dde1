// What the FFT benchmarks share: bars by order and build, zeroed vectors, and the choice of orders.
#pragma once

#include <fftw3.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "harness/bench.h"
#include "vlqs/frame.h"

namespace vlqbench {

// Ratio to FFTW that the best of all libraries reaches with the instructions of each build; 0 where
// none is known. FFTW uses the widest vectors of the machine in every build: an SSE2 bar exceeds 1.
struct Bar {
    int order;
    double s2, v3, v4;
};
inline double barOf(const Bar& bar) {
    const std::string tag = buildTag();
    return tag == "s2" ? bar.s2 : tag == "v3" ? bar.v3 : bar.v4;
}

// A vector of zeros on a cache line.
template <class Value>
Value* zeros(int n) {
    auto* values = reinterpret_cast<Value*>(vlqsMalloc_8u(n * static_cast<int>(sizeof(Value))));
    for (int i = 0; i < n; ++i) values[i] = Value{};
    return values;
}

// FFTW measures its plans, but for the longest transforms, where that takes minutes.
inline unsigned planEffort(int order) { return order > 20 ? FFTW_ESTIMATE : FFTW_MEASURE; }
inline const char* planRemark(int order) { return order > 20 ? ", estimated plan" : ""; }

// addOrder(order, bar) for every bar; FFT_ORDERS=from-to in the environment takes some of the
// orders.
template <class Bars, class Add>
void eachOrder(const Bars& bars, Add addOrder) {
    fftwf_set_timelimit(20);
    fftw_set_timelimit(20);
    int from = 0, to = 99;
    if (const char* only = std::getenv("FFT_ORDERS")) std::sscanf(only, "%d-%d", &from, &to);
    for (const Bar& bar : bars) {
        if (bar.order >= from && bar.order <= to) addOrder(bar.order, barOf(bar));
    }
}

}  // namespace vlqbench
