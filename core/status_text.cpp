// One sentence for each status.
#include "vlqs/core.h"

const char* vlqGetStatusString(VlqStatus status) {
    switch (status) {
        case vlqStsWarnBitWidth: return "A bit width was clamped to 0 to 32.";
        case vlqStsWarnNaN: return "A sample is not a number.";
        case vlqStsWarnLnNegative: return "Logarithm of a negative sample.";
        case vlqStsWarnLnZero: return "Logarithm of a zero sample.";
        case vlqStsWarnDivByZero: return "A sample was divided by zero.";
        case vlqStsWarnEvenMask: return "An even median mask was shortened by one.";
        case vlqStsWarnInvZero: return "A zero sample was inverted.";
        case vlqStsWarnSqrtNegArg: return "Square root of a negative sample.";
        case vlqStsOk: return "The call succeeded.";
        case vlqStsBadArg: return "A mode or parameter is outside its set.";
        case vlqStsBadSize: return "A length, size or count is too small.";
        case vlqStsBadSelector: return "A selector is outside its enumeration.";
        case vlqStsNullPtr: return "A required pointer is null.";
        case vlqStsNoMemory: return "Memory was refused.";
        case vlqStsZeroDivisor: return "A constant divisor is zero or too small.";
        case vlqStsBadCauchyParam: return "The Cauchy parameter is not positive.";
        case vlqStsBadScale: return "The scale stored with the taps is negative.";
        case vlqStsBadOrder: return "A transform order is out of range.";
        case vlqStsBadFlag: return "A normalization flag is outside its set.";
        case vlqStsBadSpec: return "The state or spec is not alive or is of another kind.";
        case vlqStsThresholdRange: return "The low threshold is above the high one.";
        case vlqStsThresholdNegative: return "A threshold on magnitudes is negative.";
        case vlqStsBadDlyIndex: return "A delay-line index is out of range.";
        case vlqStsBadFilterOrder: return "An IIR order is out of range.";
        case vlqStsBadTapCount: return "A tap count is below 1.";
        case vlqStsBadRelFreq: return "A relative frequency is outside [0, 1).";
        case vlqStsBadRatePhase: return "A multi-rate phase is out of range.";
        case vlqStsBadRateFactor: return "A multi-rate factor is below 1.";
        case vlqStsBadSamplePhase: return "A sampling phase is out of range.";
        case vlqStsBadSampleFactor: return "A sampling factor is below 1.";
        case vlqStsBadShift: return "A shift count is negative.";
        case vlqStsBadMask: return "A window mask is shorter than 1.";
        case vlqStsBadWaveletOffset: return "A wavelet offset is below -1.";
        case vlqStsBadJaehneMagn: return "The magnitude is negative.";
        case vlqStsBadAlpha: return "The Kaiser alpha is too large for the length.";
        case vlqStsBadTriangleAsym: return "The triangle's asymmetry is out of range.";
        case vlqStsBadTrianglePhase: return "The triangle's phase is out of range.";
        case vlqStsBadTriangleFreq: return "The triangle's frequency is out of range.";
        case vlqStsBadTriangleMagn: return "The triangle's magnitude is not positive.";
        case vlqStsBadTonePhase: return "The tone's phase is out of range.";
        case vlqStsBadToneFreq: return "The tone's frequency is out of range.";
        case vlqStsBadToneMagn: return "The tone's magnitude is not positive.";
        case vlqStsBadChannelCount: return "A channel count is below 1.";
        case vlqStsBadMatrixStride: return "A matrix stride is not a positive multiple of 8 bytes.";
        case vlqStsBadSparsePos: return "Tap positions do not ascend from a non-negative start.";
        case vlqStsSingularMatrix: return "A matrix cannot be inverted.";
        case vlqStsBadIIRGenOrder: return "The design order is outside 1 to 12.";
        case vlqStsBadIIRGenFreq: return "The design frequency is outside (0, 0.5).";
        case vlqStsBadIIRGenRipple: return "The ripple is outside (0, 29].";
        case vlqStsBadRoundMode: return "The function has no such rounding mode.";
        default: return "This number is not a status of the library.";
    }
}
