// The tags of FIR states, and which calls accept which.
#pragma once

#include "frame/state/life_cycle.h"
#include "vlqs/fir.h"

namespace vlq::fir {

template <Vlq32u singleRate, Vlq32u multiRate, Vlq32u... streams>
struct Tags {
    static constexpr Vlq32u kSingleRate = singleRate;
    static constexpr Vlq32u kMultiRate = multiRate;
    // The accessors serve single-rate and multi-rate states alike.
    static constexpr bool isFilter(Vlq32u tag) { return isOneOf<singleRate, multiRate>(tag); }
    // Streaming states are released as plain ones. inner(state) frees what has a block of its own.
    template <class State, class... Inner>
    static VlqStatus release(State* state, Inner... inner) {
        return freeIfOwned<singleRate, multiRate, streams...>(state, inner...);
    }
};

template <class State>
struct TagsOf;
template <>
struct TagsOf<VlqsFIRState_32f> : Tags<tag("FI01"), tag("FI03"), tag("FI33"), tag("FI34")> {};
template <>
struct TagsOf<VlqsFIRState_32fc> : Tags<tag("FI02"), tag("FI04")> {};
template <>
struct TagsOf<VlqsFIRState32f_16s> : Tags<tag("FI05"), tag("FI07")> {};
template <>
struct TagsOf<VlqsFIRState32fc_16sc> : Tags<tag("FI06"), tag("FI08")> {};
template <>
struct TagsOf<VlqsFIRState32s_16s> : Tags<tag("FI09"), tag("FI11")> {};
template <>
struct TagsOf<VlqsFIRState32sc_16sc> : Tags<tag("FI10"), tag("FI12")> {};
template <>
struct TagsOf<VlqsFIRState_64f> : Tags<tag("FI13"), tag("FI15")> {};
template <>
struct TagsOf<VlqsFIRState_64fc> : Tags<tag("FI14"), tag("FI16")> {};
template <>
struct TagsOf<VlqsFIRState64f_32f> : Tags<tag("FI17"), tag("FI19")> {};
template <>
struct TagsOf<VlqsFIRState64fc_32fc> : Tags<tag("FI18"), tag("FI20")> {};
template <>
struct TagsOf<VlqsFIRState64f_32s> : Tags<tag("FI21"), tag("FI23")> {};
template <>
struct TagsOf<VlqsFIRState64fc_32sc> : Tags<tag("FI22"), tag("FI24")> {};
template <>
struct TagsOf<VlqsFIRState64f_16s> : Tags<tag("FI25"), tag("FI27")> {};
template <>
struct TagsOf<VlqsFIRState64fc_16sc> : Tags<tag("FI26"), tag("FI28")> {};
template <>
struct TagsOf<VlqsFIRState_16s> : Tags<tag("FI29"), tag("FI30"), tag("FI31"), tag("FI32")> {};

template <class State>
inline bool isSingleRate(const State& state) {
    return state.tag == TagsOf<State>::kSingleRate;
}
template <class State>
inline bool isMultiRate(const State& state) {
    return state.tag == TagsOf<State>::kMultiRate;
}
template <class State>
inline bool isFilter(const State& state) {
    return TagsOf<State>::isFilter(state.tag);
}

}  // namespace vlq::fir
