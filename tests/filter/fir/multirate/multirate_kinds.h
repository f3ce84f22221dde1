// The kinds of floating multi-rate FIR filters, each with its functions under common names.
#pragma once

#include "filter/fir/kinds.h"

namespace vlqtest {

// How a filter is described: the arguments that stand between the taps and the delay line.
struct RateArguments {
    int up, upPhase, down, downPhase;
};

struct Mr32f {
    using Tap = Vlq32f;
    using Sample = Vlq32f;
    using State = VlqsFIRState_32f;
    static constexpr bool kScaled = false, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493031, kMultiRateWord = 0x46493033;
    static constexpr auto size = vlqsFIRMRGetStateSize_32f;
    static constexpr auto singleSize = vlqsFIRGetStateSize_32f;
    static constexpr auto init = vlqsFIRMRInit_32f;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc_32f;
    static constexpr auto free = vlqsFIRFree_32f;
    static constexpr auto setTaps = vlqsFIRSetTaps_32f;
    static constexpr auto getTaps = vlqsFIRGetTaps_32f;
    static constexpr auto setLine = vlqsFIRSetDlyLine_32f;
    static constexpr auto getLine = vlqsFIRGetDlyLine_32f;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int) {
        return vlqsFIR_32f(src, dst, periods, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int) {
        return vlqsFIR_32f_I(srcDst, periods, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_32f(src, dst, state);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_32f(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                    r.downPhase, line);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_32f_I(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                      r.downPhase, line);
    }
};
struct Mr32f_16s {
    using Tap = Vlq32f;
    using Sample = Vlq16s;
    using State = VlqsFIRState32f_16s;
    static constexpr bool kScaled = true, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493035, kMultiRateWord = 0x46493037;
    static constexpr auto size = vlqsFIRMRGetStateSize32f_16s;
    static constexpr auto singleSize = vlqsFIRGetStateSize32f_16s;
    static constexpr auto init = vlqsFIRMRInit32f_16s;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc32f_16s;
    static constexpr auto free = vlqsFIRFree32f_16s;
    static constexpr auto setTaps = vlqsFIRSetTaps32f_16s;
    static constexpr auto getTaps = vlqsFIRGetTaps32f_16s;
    static constexpr auto setLine = vlqsFIRSetDlyLine32f_16s;
    static constexpr auto getLine = vlqsFIRGetDlyLine32f_16s;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int scale) {
        return vlqsFIR32f_16s_Sfs(src, dst, periods, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int scale) {
        return vlqsFIR32f_16s_ISfs(srcDst, periods, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne32f_16s_Sfs(src, dst, state, scale);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR32f_Direct_16s_Sfs(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                           r.downPhase, line, scale);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR32f_Direct_16s_ISfs(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                            r.downPhase, line, scale);
    }
};
struct Mr32fc {
    using Tap = Vlq32fc;
    using Sample = Vlq32fc;
    using State = VlqsFIRState_32fc;
    static constexpr bool kScaled = false, kHasSingleRate = false;
    static constexpr Vlq32u kWord = 0x46493032, kMultiRateWord = 0x46493034;
    static constexpr auto size = vlqsFIRMRGetStateSize_32fc;
    static constexpr auto singleSize = vlqsFIRGetStateSize_32fc;
    static constexpr auto init = vlqsFIRMRInit_32fc;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc_32fc;
    static constexpr auto free = vlqsFIRFree_32fc;
    static constexpr auto setTaps = vlqsFIRSetTaps_32fc;
    static constexpr auto getTaps = vlqsFIRGetTaps_32fc;
    static constexpr auto setLine = vlqsFIRSetDlyLine_32fc;
    static constexpr auto getLine = vlqsFIRGetDlyLine_32fc;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int) {
        return vlqsFIR_32fc(src, dst, periods, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int) {
        return vlqsFIR_32fc_I(srcDst, periods, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_32fc(src, dst, state);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_32fc(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                     r.downPhase, line);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_32fc_I(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                       r.downPhase, line);
    }
};
struct Mr32fc_16sc {
    using Tap = Vlq32fc;
    using Sample = Vlq16sc;
    using State = VlqsFIRState32fc_16sc;
    static constexpr bool kScaled = true, kHasSingleRate = false;
    static constexpr Vlq32u kWord = 0x46493036, kMultiRateWord = 0x46493038;
    static constexpr auto size = vlqsFIRMRGetStateSize32fc_16sc;
    static constexpr auto singleSize = vlqsFIRGetStateSize32fc_16sc;
    static constexpr auto init = vlqsFIRMRInit32fc_16sc;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc32fc_16sc;
    static constexpr auto free = vlqsFIRFree32fc_16sc;
    static constexpr auto setTaps = vlqsFIRSetTaps32fc_16sc;
    static constexpr auto getTaps = vlqsFIRGetTaps32fc_16sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine32fc_16sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine32fc_16sc;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int scale) {
        return vlqsFIR32fc_16sc_Sfs(src, dst, periods, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int scale) {
        return vlqsFIR32fc_16sc_ISfs(srcDst, periods, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne32fc_16sc_Sfs(src, dst, state, scale);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR32fc_Direct_16sc_Sfs(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                             r.downPhase, line, scale);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR32fc_Direct_16sc_ISfs(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                              r.downPhase, line, scale);
    }
};
struct Mr64f {
    using Tap = Vlq64f;
    using Sample = Vlq64f;
    using State = VlqsFIRState_64f;
    static constexpr bool kScaled = false, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493133, kMultiRateWord = 0x46493135;
    static constexpr auto size = vlqsFIRMRGetStateSize_64f;
    static constexpr auto singleSize = vlqsFIRGetStateSize_64f;
    static constexpr auto init = vlqsFIRMRInit_64f;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc_64f;
    static constexpr auto free = vlqsFIRFree_64f;
    static constexpr auto setTaps = vlqsFIRSetTaps_64f;
    static constexpr auto getTaps = vlqsFIRGetTaps_64f;
    static constexpr auto setLine = vlqsFIRSetDlyLine_64f;
    static constexpr auto getLine = vlqsFIRGetDlyLine_64f;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int) {
        return vlqsFIR_64f(src, dst, periods, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int) {
        return vlqsFIR_64f_I(srcDst, periods, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_64f(src, dst, state);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_64f(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                    r.downPhase, line);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_64f_I(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                      r.downPhase, line);
    }
};
struct Mr64f_32f {
    using Tap = Vlq64f;
    using Sample = Vlq32f;
    using State = VlqsFIRState64f_32f;
    static constexpr bool kScaled = false, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493137, kMultiRateWord = 0x46493139;
    static constexpr auto size = vlqsFIRMRGetStateSize64f_32f;
    static constexpr auto singleSize = vlqsFIRGetStateSize64f_32f;
    static constexpr auto init = vlqsFIRMRInit64f_32f;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc64f_32f;
    static constexpr auto free = vlqsFIRFree64f_32f;
    static constexpr auto setTaps = vlqsFIRSetTaps64f_32f;
    static constexpr auto getTaps = vlqsFIRGetTaps64f_32f;
    static constexpr auto setLine = vlqsFIRSetDlyLine64f_32f;
    static constexpr auto getLine = vlqsFIRGetDlyLine64f_32f;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int) {
        return vlqsFIR64f_32f(src, dst, periods, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int) {
        return vlqsFIR64f_32f_I(srcDst, periods, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne64f_32f(src, dst, state);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int) {
        return vlqsFIRMR64f_Direct_32f(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                       r.downPhase, line);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int) {
        return vlqsFIRMR64f_Direct_32f_I(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                         r.downPhase, line);
    }
};
struct Mr64f_32s {
    using Tap = Vlq64f;
    using Sample = Vlq32s;
    using State = VlqsFIRState64f_32s;
    static constexpr bool kScaled = true, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493231, kMultiRateWord = 0x46493233;
    static constexpr auto size = vlqsFIRMRGetStateSize64f_32s;
    static constexpr auto singleSize = vlqsFIRGetStateSize64f_32s;
    static constexpr auto init = vlqsFIRMRInit64f_32s;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc64f_32s;
    static constexpr auto free = vlqsFIRFree64f_32s;
    static constexpr auto setTaps = vlqsFIRSetTaps64f_32s;
    static constexpr auto getTaps = vlqsFIRGetTaps64f_32s;
    static constexpr auto setLine = vlqsFIRSetDlyLine64f_32s;
    static constexpr auto getLine = vlqsFIRGetDlyLine64f_32s;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int scale) {
        return vlqsFIR64f_32s_Sfs(src, dst, periods, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int scale) {
        return vlqsFIR64f_32s_ISfs(srcDst, periods, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64f_32s_Sfs(src, dst, state, scale);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64f_Direct_32s_Sfs(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                           r.downPhase, line, scale);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64f_Direct_32s_ISfs(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                            r.downPhase, line, scale);
    }
};
struct Mr64f_16s {
    using Tap = Vlq64f;
    using Sample = Vlq16s;
    using State = VlqsFIRState64f_16s;
    static constexpr bool kScaled = true, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493235, kMultiRateWord = 0x46493237;
    static constexpr auto size = vlqsFIRMRGetStateSize64f_16s;
    static constexpr auto singleSize = vlqsFIRGetStateSize64f_16s;
    static constexpr auto init = vlqsFIRMRInit64f_16s;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc64f_16s;
    static constexpr auto free = vlqsFIRFree64f_16s;
    static constexpr auto setTaps = vlqsFIRSetTaps64f_16s;
    static constexpr auto getTaps = vlqsFIRGetTaps64f_16s;
    static constexpr auto setLine = vlqsFIRSetDlyLine64f_16s;
    static constexpr auto getLine = vlqsFIRGetDlyLine64f_16s;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int scale) {
        return vlqsFIR64f_16s_Sfs(src, dst, periods, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int scale) {
        return vlqsFIR64f_16s_ISfs(srcDst, periods, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64f_16s_Sfs(src, dst, state, scale);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64f_Direct_16s_Sfs(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                           r.downPhase, line, scale);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64f_Direct_16s_ISfs(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                            r.downPhase, line, scale);
    }
};
struct Mr64fc {
    using Tap = Vlq64fc;
    using Sample = Vlq64fc;
    using State = VlqsFIRState_64fc;
    static constexpr bool kScaled = false, kHasSingleRate = false;
    static constexpr Vlq32u kWord = 0x46493134, kMultiRateWord = 0x46493136;
    static constexpr auto size = vlqsFIRMRGetStateSize_64fc;
    static constexpr auto singleSize = vlqsFIRGetStateSize_64fc;
    static constexpr auto init = vlqsFIRMRInit_64fc;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc_64fc;
    static constexpr auto free = vlqsFIRFree_64fc;
    static constexpr auto setTaps = vlqsFIRSetTaps_64fc;
    static constexpr auto getTaps = vlqsFIRGetTaps_64fc;
    static constexpr auto setLine = vlqsFIRSetDlyLine_64fc;
    static constexpr auto getLine = vlqsFIRGetDlyLine_64fc;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int) {
        return vlqsFIR_64fc(src, dst, periods, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int) {
        return vlqsFIR_64fc_I(srcDst, periods, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne_64fc(src, dst, state);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_64fc(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                     r.downPhase, line);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int) {
        return vlqsFIRMR_Direct_64fc_I(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                       r.downPhase, line);
    }
};
struct Mr64fc_32fc {
    using Tap = Vlq64fc;
    using Sample = Vlq32fc;
    using State = VlqsFIRState64fc_32fc;
    static constexpr bool kScaled = false, kHasSingleRate = false;
    static constexpr Vlq32u kWord = 0x46493138, kMultiRateWord = 0x46493230;
    static constexpr auto size = vlqsFIRMRGetStateSize64fc_32fc;
    static constexpr auto singleSize = vlqsFIRGetStateSize64fc_32fc;
    static constexpr auto init = vlqsFIRMRInit64fc_32fc;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc64fc_32fc;
    static constexpr auto free = vlqsFIRFree64fc_32fc;
    static constexpr auto setTaps = vlqsFIRSetTaps64fc_32fc;
    static constexpr auto getTaps = vlqsFIRGetTaps64fc_32fc;
    static constexpr auto setLine = vlqsFIRSetDlyLine64fc_32fc;
    static constexpr auto getLine = vlqsFIRGetDlyLine64fc_32fc;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int) {
        return vlqsFIR64fc_32fc(src, dst, periods, state);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int) {
        return vlqsFIR64fc_32fc_I(srcDst, periods, state);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int) {
        return vlqsFIROne64fc_32fc(src, dst, state);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int) {
        return vlqsFIRMR64fc_Direct_32fc(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                         r.downPhase, line);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int) {
        return vlqsFIRMR64fc_Direct_32fc_I(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                           r.downPhase, line);
    }
};
struct Mr64fc_32sc {
    using Tap = Vlq64fc;
    using Sample = Vlq32sc;
    using State = VlqsFIRState64fc_32sc;
    static constexpr bool kScaled = true, kHasSingleRate = true;
    static constexpr Vlq32u kWord = 0x46493232, kMultiRateWord = 0x46493234;
    static constexpr auto size = vlqsFIRMRGetStateSize64fc_32sc;
    static constexpr auto singleSize = vlqsFIRGetStateSize64fc_32sc;
    static constexpr auto init = vlqsFIRMRInit64fc_32sc;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc64fc_32sc;
    static constexpr auto free = vlqsFIRFree64fc_32sc;
    static constexpr auto setTaps = vlqsFIRSetTaps64fc_32sc;
    static constexpr auto getTaps = vlqsFIRGetTaps64fc_32sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine64fc_32sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine64fc_32sc;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int scale) {
        return vlqsFIR64fc_32sc_Sfs(src, dst, periods, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int scale) {
        return vlqsFIR64fc_32sc_ISfs(srcDst, periods, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64fc_32sc_Sfs(src, dst, state, scale);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64fc_Direct_32sc_Sfs(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                             r.downPhase, line, scale);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64fc_Direct_32sc_ISfs(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                              r.downPhase, line, scale);
    }
};
struct Mr64fc_16sc {
    using Tap = Vlq64fc;
    using Sample = Vlq16sc;
    using State = VlqsFIRState64fc_16sc;
    static constexpr bool kScaled = true, kHasSingleRate = false;
    static constexpr Vlq32u kWord = 0x46493236, kMultiRateWord = 0x46493238;
    static constexpr auto size = vlqsFIRMRGetStateSize64fc_16sc;
    static constexpr auto singleSize = vlqsFIRGetStateSize64fc_16sc;
    static constexpr auto init = vlqsFIRMRInit64fc_16sc;
    static constexpr auto initAlloc = vlqsFIRMRInitAlloc64fc_16sc;
    static constexpr auto free = vlqsFIRFree64fc_16sc;
    static constexpr auto setTaps = vlqsFIRSetTaps64fc_16sc;
    static constexpr auto getTaps = vlqsFIRGetTaps64fc_16sc;
    static constexpr auto setLine = vlqsFIRSetDlyLine64fc_16sc;
    static constexpr auto getLine = vlqsFIRGetDlyLine64fc_16sc;
    static VlqStatus block(const Sample* src, Sample* dst, int periods, State* state, int scale) {
        return vlqsFIR64fc_16sc_Sfs(src, dst, periods, state, scale);
    }
    static VlqStatus inPlace(Sample* srcDst, int periods, State* state, int scale) {
        return vlqsFIR64fc_16sc_ISfs(srcDst, periods, state, scale);
    }
    static VlqStatus one(Sample src, Sample* dst, State* state, int scale) {
        return vlqsFIROne64fc_16sc_Sfs(src, dst, state, scale);
    }
    static VlqStatus direct(const Sample* src, Sample* dst, int periods, const Tap* taps, int len,
                            RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64fc_Direct_16sc_Sfs(src, dst, periods, taps, len, r.up, r.upPhase, r.down,
                                             r.downPhase, line, scale);
    }
    static VlqStatus directInPlace(Sample* srcDst, int periods, const Tap* taps, int len,
                                   RateArguments r, Sample* line, int scale) {
        return vlqsFIRMR64fc_Direct_16sc_ISfs(srcDst, periods, taps, len, r.up, r.upPhase, r.down,
                                              r.downPhase, line, scale);
    }
};

}  // namespace vlqtest
