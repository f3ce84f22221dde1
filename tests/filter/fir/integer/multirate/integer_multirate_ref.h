// Multi-rate filtering in integer arithmetic by its definition: step by step at the high rate,
// where a step takes a sample when the one counter is 0 and gives a result when the other is.
#pragma once

#include "filter/fir/integer/integer_ref.h"

namespace vlqtest {

struct RateChange {
    int up = 1, upPhase = 0, down = 1, downPhase = 0;
};

template <class Sample, class Tap>
class FirIntMultirateRef {
public:
    FirIntMultirateRef(const std::vector<Tap>& h, std::int64_t tapsFactor, RateChange change,
                       const std::vector<Sample>& past = {})
        : line(past),
          taps_(h),
          factor_(tapsFactor),
          rates_(change),
          u_((change.up - change.upPhase) % change.up),
          v_((change.down - change.downPhase) % change.down) {
        line.resize((h.size() + static_cast<std::size_t>(change.up) - 1) /
                    static_cast<std::size_t>(change.up));
    }

    // src holds whole periods.
    std::vector<Sample> block(const std::vector<Sample>& src, std::int64_t scaleFactor) {
        std::vector<Sample> dst;
        std::size_t next = 0;
        const std::size_t steps = src.size() * static_cast<std::size_t>(rates_.up);
        for (std::size_t step = 0; step < steps; ++step) {
            if (u_ == 0) {
                line.insert(line.begin(), src[next++]);
                line.pop_back();
            }
            if (v_ == 0) {
                std::vector<Tap> phase;
                for (std::size_t k = static_cast<std::size_t>(u_); k < taps_.size();
                     k += static_cast<std::size_t>(rates_.up))
                    phase.push_back(taps_[k]);
                dst.push_back(FirIntRef<Sample, Tap>::sumAll(line, phase, factor_ - scaleFactor));
            }
            u_ = (u_ + 1) % rates_.up;
            v_ = (v_ + 1) % rates_.down;
        }
        return dst;
    }

    std::vector<Sample> line;  // newest first

private:
    std::vector<Tap> taps_;
    std::int64_t factor_;
    RateChange rates_;
    int u_, v_;
};

}  // namespace vlqtest
