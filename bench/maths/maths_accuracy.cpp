// The error of the elementary functions: every input of the functions of one single-precision
// number, 10^8 random inputs and special values of those of one double-precision number. Prints
// tab-separated rows: build, function, inputs, largest error in ulp, limit in ulp, the input of the
// largest error, mean error in ulp.
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "vlqs/frame.h"
#include "vlqs/maths.h"

namespace {

constexpr int kBlock = 4096;

template <class T>
struct Function {
    const char* name;
    VlqStatus (*call)(const T*, T*, Vlq32s);
    double (*quick)(double);  // good enough to tell which errors may be the largest
    long double (*exact)(long double);
    double limit;
};

// In units of the last place of the exact result; 0 where both are the same special value, infinity
// where one of them is.
template <class T, class Exact>
double errorInUlp(T got, Exact want) {
    using Limits = std::numeric_limits<T>;
    const T rounded = static_cast<T>(want);
    if (got == rounded || (std::isnan(got) && std::isnan(rounded))) {
        if (!std::isfinite(rounded)) return 0;
    } else if (!std::isfinite(got) || !std::isfinite(rounded)) {
        return Limits::infinity();
    }
    int exponent;
    std::frexp(want, &exponent);
    exponent = std::max(exponent, Limits::min_exponent);
    return static_cast<double>(std::ldexp(std::fabs(got - want), Limits::digits - exponent));
}

template <class T>
class Measurement {
public:
    explicit Measurement(const Function<T>& function) : function_(function) {}

    void add(const std::vector<T>& x) {
        function_.call(x.data(), result_.data(), static_cast<Vlq32s>(x.size()));
        for (std::size_t i = 0; i < x.size(); ++i) {
            double error;
            if constexpr (sizeof(T) == 4) {
                error = errorInUlp(result_[i], function_.quick(x[i]));
                // Nearly the largest: the double reference itself errs by 2^-29 ulp or so.
                if (error > largest_ - 1e-6) error = errorInUlp(result_[i], function_.exact(x[i]));
            } else {
                error = errorInUlp(result_[i], function_.exact(x[i]));
            }
            sum_ += error;
            if (error > largest_) {
                largest_ = error;
                at_ = x[i];
            }
        }
        count_ += static_cast<double>(x.size());
    }
    void print(const char* inputs) const {
        std::printf("%s\t%s\t%s\t%.4f\t%g\t%a\t%.4f\n", vlqsGetLibVersion()->targetTag,
                    function_.name, inputs, largest_, function_.limit, static_cast<double>(at_),
                    sum_ / count_);
        std::fflush(stdout);
    }

private:
    const Function<T>& function_;
    std::vector<T> result_ = std::vector<T>(kBlock);
    double largest_ = -1, sum_ = 0, count_ = 0;
    T at_ = 0;
};

void measure(const Function<float>& function) {
    Measurement<float> measurement(function);
    std::vector<float> x(kBlock);
    for (std::uint64_t bits = 0; bits < std::uint64_t{1} << 32; bits += kBlock) {
        for (std::uint64_t i = 0; i < kBlock; ++i)
            x[i] = std::bit_cast<float>(static_cast<std::uint32_t>(bits + i));
        measurement.add(x);
    }
    measurement.print("all 2^32 inputs");
}

void measure(const Function<double>& function) {
    using Limits = std::numeric_limits<double>;
    Measurement<double> measurement(function);
    std::mt19937_64 random(20);
    const std::array special = {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                Limits::infinity(),
                                -Limits::infinity(),
                                Limits::quiet_NaN(),
                                Limits::denorm_min(),
                                -Limits::denorm_min(),
                                Limits::min(),
                                Limits::max(),
                                Limits::lowest()};
    measurement.add({special.begin(), special.end()});
    std::vector<double> x(kBlock);
    std::uniform_real_distribution<double> middle(-20, 20), wide(-750, 750);
    for (int done = 0; done < 100'000'000; done += kBlock) {
        for (std::size_t i = 0; i < kBlock; ++i) {
            const auto kind = random() % 3;
            x[i] = kind == 0   ? std::bit_cast<double>(random())
                   : kind == 1 ? middle(random)
                               : wide(random);
        }
        measurement.add(x);
    }
    measurement.print("10^8 random inputs");
}

}  // namespace

int main() {
    const Function<float> single[] = {
        {"Sqrt_32f", vlqsSqrt_32f, [](double x) { return std::sqrt(x); },
         [](long double x) { return std::sqrt(x); }, 0.5},
        {"Cubrt_32f", vlqsCubrt_32f, [](double x) { return std::cbrt(x); },
         [](long double x) { return std::cbrt(x); }, 1},
        {"Exp_32f", vlqsExp_32f, [](double x) { return std::exp(x); },
         [](long double x) { return std::exp(x); }, 1},
        {"Ln_32f", vlqsLn_32f, [](double x) { return std::log(x); },
         [](long double x) { return std::log(x); }, 1},
        {"Arctan_32f", vlqsArctan_32f, [](double x) { return std::atan(x); },
         [](long double x) { return std::atan(x); }, 1},
    };
    const Function<double> wide[] = {
        {"Exp_64f", vlqsExp_64f, nullptr, [](long double x) { return std::exp(x); }, 1},
        {"Ln_64f", vlqsLn_64f, nullptr, [](long double x) { return std::log(x); }, 1},
        {"Arctan_64f", vlqsArctan_64f, nullptr, [](long double x) { return std::atan(x); }, 1},
    };
    for (const auto& function : single) measure(function);
    for (const auto& function : wide) measure(function);
    return 0;
}
