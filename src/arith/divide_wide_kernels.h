// Exact quotients of 64-bit integers by a constant: clamp(round(n * 2^-scaleFactor / divisor)),
// with ties to even. That rounding is symmetric about 0, so magnitudes are divided.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "vlqs/types.h"

namespace vlq::divide {

__extension__ typedef unsigned __int128 Unsigned128;

struct Magnitude {
    std::uint64_t size, below0;  // below0: all bits are set for a negative result
    Magnitude(Vlq64s n, std::uint64_t flip) {
        const auto bits = static_cast<std::uint64_t>(n), sign = static_cast<std::uint64_t>(n >> 63);
        size = (bits ^ sign) - sign;
        below0 = sign ^ flip;
    }
    Vlq64s withSign(std::uint64_t result) const {
        return static_cast<Vlq64s>((result ^ below0) - below0);
    }
    // The largest magnitude of a result of this sign.
    std::uint64_t limit() const {
        return static_cast<std::uint64_t>(std::numeric_limits<Vlq64s>::max()) - below0;
    }
};

// floor(size / divisor) for size < 2^63 + 2^61 and 2 <= divisor < 2^62, by one multiplication with
// a 64-bit reciprocal. If the reciprocal is rounded down, quotients come out too small, which
// adding it once more corrects; if it is rounded up, they come out too large. The smaller of the
// two rounding errors is below half a divisor, too small to change a quotient of this range. After:
// A. D. Robison, N-bit unsigned division via N-bit multiply-add, 2005.
class Reciprocal {
public:
    explicit Reciprocal(std::uint64_t divisor)
        : shift_(static_cast<int>(std::bit_width(divisor - 1)) - 1) {
        const Unsigned128 power = static_cast<Unsigned128>(1) << (64 + shift_);
        const auto rest = static_cast<std::uint64_t>(power % divisor);
        reciprocal_ = static_cast<std::uint64_t>(power / divisor);
        if (rest == 0) return;
        if (rest > divisor / 2)
            ++reciprocal_;
        else
            extra_ = reciprocal_;
    }
    std::uint64_t operator()(std::uint64_t size) const {
        return static_cast<std::uint64_t>((static_cast<Unsigned128>(size) * reciprocal_ + extra_) >>
                                          64) >>
               shift_;
    }

private:
    int shift_;
    std::uint64_t reciprocal_, extra_ = 0;
};

// Divisors from 2 up to 2^62. Half a divisor is added before the division; a remainder of 0 with an
// even divisor is then a tie.
template <bool evenDivisor>
class RoundedQuotient {
public:
    RoundedQuotient(std::uint64_t divisor, bool negative)
        : quotient_(divisor), divisor_(divisor), flip_(0 - static_cast<std::uint64_t>(negative)) {}
    Vlq64s operator()(Vlq64s n) const {
        const Magnitude m(n, flip_);
        const std::uint64_t raised = m.size + divisor_ / 2;
        std::uint64_t q = quotient_(raised);
        if constexpr (evenDivisor) q -= q & static_cast<std::uint64_t>(q * divisor_ == raised);
        return m.withSign(q);
    }

private:
    Reciprocal quotient_;
    std::uint64_t divisor_, flip_;
};

// Divisors from 2^62 on: the quotient is 0, 1 or 2.
class SmallQuotient {
public:
    SmallQuotient(std::uint64_t divisor, bool negative)
        : one_(divisor / 2),
          two_(divisor >> 63 ? ~std::uint64_t{0} : divisor + (divisor - 1) / 2),
          flip_(0 - static_cast<std::uint64_t>(negative)) {}
    Vlq64s operator()(Vlq64s n) const {
        const Magnitude m(n, flip_);
        return m.withSign(static_cast<std::uint64_t>(m.size > one_) +
                          static_cast<std::uint64_t>(m.size > two_));
    }

private:
    std::uint64_t one_, two_;  // above these sizes the quotient is at least 1, or 2
    std::uint64_t flip_;
};

// Times 2^up over a divisor of 1.
class ShiftedUp {
public:
    ShiftedUp(std::int64_t up, bool negative)
        : up_(up < 63 ? static_cast<int>(up) : 63),
          flip_(0 - static_cast<std::uint64_t>(negative)) {}
    Vlq64s operator()(Vlq64s n) const {
        const Magnitude m(n, flip_);
        const std::uint64_t limit = m.limit();
        return m.withSign(m.size > limit >> up_ ? limit : m.size << up_);
    }

private:
    int up_;
    std::uint64_t flip_;
};

// Times 2^up, 1 <= up, over an odd divisor of at least 3: there are no ties. The division of 128 by
// 64 bits is algorithm 4 of: N. Moller, T. Granlund, Improved division by invariant integers, 2011.
class ShiftedUpQuotient {
public:
    ShiftedUpQuotient(std::uint64_t divisor, std::int64_t up, bool negative)
        : flip_(0 - static_cast<std::uint64_t>(negative)) {
        const int room = std::countl_zero(divisor);
        divisor_ = divisor << room;
        reciprocal_ = static_cast<std::uint64_t>(~static_cast<Unsigned128>(0) /
                                                 divisor_);  // without its 65th bit
        half_ = (divisor / 2) << room;
        // Sizes that do not saturate are below 2^63 * divisor / 2^up.
        const Unsigned128 top = (static_cast<Unsigned128>(divisor) << 63) + divisor / 2;
        const Unsigned128 most = up < 128 ? top >> up : 0;
        most_ = most >> 63 ? std::uint64_t{1} << 63 : static_cast<std::uint64_t>(most);
        const std::int64_t shift = up + room;
        high_ = shift > 64 ? (shift < 128 ? static_cast<int>(shift - 64) : 63) : 0;
        low_ = shift < 64 ? static_cast<int>(shift) : 64;
    }
    Vlq64s operator()(Vlq64s n) const {
        const Magnitude m(n, flip_);
        const std::uint64_t limit = m.limit();
        const Unsigned128 dividend = (static_cast<Unsigned128>(m.size << high_) << low_) + half_;
        const std::uint64_t q = quotient(static_cast<std::uint64_t>(dividend >> 64),
                                         static_cast<std::uint64_t>(dividend));
        return m.withSign(m.size > most_ || q > limit ? limit : q);
    }

private:
    std::uint64_t quotient(std::uint64_t upper, std::uint64_t lower) const {
        const Unsigned128 estimate = static_cast<Unsigned128>(reciprocal_) * upper +
                                     (static_cast<Unsigned128>(upper) << 64 | lower);
        std::uint64_t q = static_cast<std::uint64_t>(estimate >> 64) + 1;
        std::uint64_t rest = lower - q * divisor_;
        const std::uint64_t tooMuch =
            0 - static_cast<std::uint64_t>(rest > static_cast<std::uint64_t>(estimate));
        q += tooMuch;
        rest += divisor_ & tooMuch;
        return q + static_cast<std::uint64_t>(rest >= divisor_);
    }

    std::uint64_t divisor_, reciprocal_, half_, most_, flip_;
    int high_, low_;
};

// Calls run with the operation on one element, or returns true: all results are 0 then.
template <class Run>
inline bool withQuotient(Vlq64s val, std::int64_t scaleFactor, Run run) {
    const bool negative = val < 0;
    std::uint64_t divisor =
        negative ? 0 - static_cast<std::uint64_t>(val) : static_cast<std::uint64_t>(val);
    // Powers of two of the divisor and the scale are one.
    const int even = std::countr_zero(divisor);
    const std::int64_t up = -scaleFactor - even;
    divisor >>= even;
    if (up < 0) {
        // From 2^64 on the divisor is at least twice any numerator.
        if (up < -63 || divisor > ~std::uint64_t{0} >> -up) return true;
        divisor <<= -up;
        if (divisor >> 62)
            run(SmallQuotient(divisor, negative));
        else
            run(RoundedQuotient<true>(divisor, negative));
    } else if (divisor == 1) {
        run(ShiftedUp(up, negative));
    } else if (up > 0) {
        run(ShiftedUpQuotient(divisor, up, negative));
    } else if (divisor >> 62) {
        run(SmallQuotient(divisor, negative));
    } else {
        run(RoundedQuotient<false>(divisor, negative));
    }
    return false;
}

}  // namespace vlq::divide
