// The constant quarter wave, and the one that a plan computes.
#include "fourier/plan/twiddles.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace vlq::fft {
namespace {

constexpr int kQuarter = 1 << (kConstantSineOrder - 2);

// Taylor series in extended precision: below pi/4, twelve terms leave an error below one ulp.
consteval long double sineOf(long double x) {
    long double term = x, sum = x;
    for (int n = 2; n < 26; n += 2) sum += term *= -x * x / static_cast<long double>(n * (n + 1));
    return sum;
}
consteval long double cosineOf(long double x) {
    long double term = 1, sum = 1;
    for (int n = 1; n < 26; n += 2) sum += term *= -x * x / static_cast<long double>(n * (n + 1));
    return sum;
}

template <class T>
consteval std::array<T, kQuarter + 1> quarterWave() {
    constexpr long double step = 6.28318530717958647692528676655900577L / (1 << kConstantSineOrder);
    std::array<T, kQuarter + 1> values{};
    for (int i = 0; i <= kQuarter; ++i) {
        values[static_cast<std::size_t>(i)] = static_cast<T>(
            i <= kQuarter / 2 ? sineOf(static_cast<long double>(i) * step)
                              : cosineOf(static_cast<long double>(kQuarter - i) * step));
    }
    return values;
}

template <class T>
constexpr std::array<T, kQuarter + 1> kSine = quarterWave<T>();

}  // namespace

template <class T>
SineTable<T> sineTable(int order, T* scratch) {
    if (order <= kConstantSineOrder) return {kSine<T>.data(), kConstantSineOrder};
    const Vlq64s n = Vlq64s{1} << order, quarter = n / 4;
    const double step = 6.283185307179586 / static_cast<double>(n);
    // Both octants take arguments below pi/4, where sine and cosine are the most accurate.
    for (Vlq64s i = 0; i <= quarter / 2; ++i)
        scratch[i] = static_cast<T>(std::sin(static_cast<double>(i) * step));
    for (Vlq64s i = quarter / 2 + 1; i <= quarter; ++i) {
        scratch[i] = static_cast<T>(std::cos(static_cast<double>(quarter - i) * step));
    }
    return {scratch, order};
}

template SineTable<Vlq32f> sineTable<Vlq32f>(int, Vlq32f*);
template SineTable<Vlq64f> sineTable<Vlq64f>(int, Vlq64f*);

}  // namespace vlq::fft
