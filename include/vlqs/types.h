/**
 * @file types.h
 * @brief Sample types, enumerations and status codes: the vocabulary of every call.
 *
 * C99 or later, C++11 or later. Vectors are contiguous arrays of little-endian elements. Lengths
 * count elements (of a complex vector, complex elements), never bytes, and are signed 32-bit
 * integers unless a function says otherwise.
 */
#ifndef VLQS_TYPES_H
#define VLQS_TYPES_H

#include <stdint.h>

/* The library's own sources see these declarations in a namespace: there a public name is the
 * function's body, while the exported symbol of that name is a stub that jumps to it. */
#if defined(VLQS_BUILDING)
#define VLQS_BEGIN_DECLS namespace vlq {
#define VLQS_END_DECLS }
#elif defined(__cplusplus)
#define VLQS_BEGIN_DECLS extern "C" {
#define VLQS_END_DECLS }
#else
#define VLQS_BEGIN_DECLS
#define VLQS_END_DECLS
#endif

/** @defgroup vlqs_types Types and status codes */

/** @defgroup vlqs_types_scalar Scalar samples
 *  @ingroup vlqs_types
 *  @{ */
typedef uint8_t Vlq8u;   /**< 8-bit unsigned */
typedef int8_t Vlq8s;    /**< 8-bit signed */
typedef uint16_t Vlq16u; /**< 16-bit unsigned */
typedef int16_t Vlq16s;  /**< 16-bit signed */
typedef uint32_t Vlq32u; /**< 32-bit unsigned */
typedef int32_t Vlq32s;  /**< 32-bit signed */
typedef uint64_t Vlq64u; /**< 64-bit unsigned */
typedef int64_t Vlq64s;  /**< 64-bit signed */
typedef uint16_t Vlq16f; /**< bits of an IEEE 754 binary16 number; only conversions use it */
typedef float Vlq32f;    /**< IEEE 754 binary32 */
typedef double Vlq64f;   /**< IEEE 754 binary64 */
/** @} */

/** @defgroup vlqs_types_complex Complex samples
 *  @ingroup vlqs_types
 *  The real part first, the imaginary part next, without a gap: a vector of n complex elements has
 *  the memory layout of a vector of 2 n scalars.
 *  @{ */

/** Complex sample of two 8-bit signed parts; only vlqsMalloc_8sc() uses it. */
typedef struct {
    Vlq8s re; /**< real part */
    Vlq8s im; /**< imaginary part */
} Vlq8sc;

/** Complex sample of two 16-bit signed parts. */
typedef struct {
    Vlq16s re; /**< real part */
    Vlq16s im; /**< imaginary part */
} Vlq16sc;

/** Complex sample of two 32-bit signed parts. */
typedef struct {
    Vlq32s re; /**< real part */
    Vlq32s im; /**< imaginary part */
} Vlq32sc;

/** Complex sample of two 64-bit signed parts. */
typedef struct {
    Vlq64s re; /**< real part */
    Vlq64s im; /**< imaginary part */
} Vlq64sc;

/** Complex sample of two binary32 parts. */
typedef struct {
    Vlq32f re; /**< real part */
    Vlq32f im; /**< imaginary part */
} Vlq32fc;

/** Complex sample of two binary64 parts. */
typedef struct {
    Vlq64f re; /**< real part */
    Vlq64f im; /**< imaginary part */
} Vlq64fc;

/** @} */

/** @defgroup vlqs_types_enums Modes and statuses
 *  @ingroup vlqs_types
 *
 *  All of these are plain 32-bit integers, so the compiler does not notice when two neighboring
 *  arguments are exchanged: a rounding mode and a scale factor, or the flag and the hint of a
 *  transform.
 *  @{ */

/** How a value is rounded to an integer. */
typedef Vlq32s VlqRoundMode;
enum {
    vlqRndZero = 0,     /**< towards zero */
    vlqRndNear = 1,     /**< to nearest, ties to even */
    vlqRndFinancial = 2 /**< to nearest, ties away from zero */
};

/** Comparison that a threshold applies. */
typedef Vlq32s VlqCmpOp;
enum {
    vlqCmpLess = 0,   /**< elements below the level are replaced */
    vlqCmpGreater = 4 /**< elements above the level are replaced */
};

/** Preference for speed or for accuracy, where a family has a choice. */
typedef Vlq32s VlqHint;
enum {
    vlqHintNone = 0,    /**< no preference */
    vlqHintFast = 1,    /**< speed */
    vlqHintAccurate = 2 /**< accuracy */
};

/** Normalization flags of a transform of length N: which direction is multiplied, and by what. */
enum {
    vlqNormFwdByN = 1,  /**< forward by 1/N */
    vlqNormInvByN = 2,  /**< inverse by 1/N */
    vlqNormBySqrtN = 4, /**< both directions by 1/sqrt(N) */
    vlqNormNone = 8     /**< neither */
};

/**
 * Outcome of a call: 0 for success, negative for an error, positive for a warning. After an error
 * of a check nothing has been written. After a warning all results have been written, with a
 * substitute where an element has no result of its own.
 */
typedef Vlq32s VlqStatus;
enum {
    vlqStsWarnBitWidth = 27,    /**< a bit width was clamped to 0 to 32 */
    vlqStsWarnNaN = 9,          /**< a sample is NaN */
    vlqStsWarnLnNegative = 8,   /**< logarithm of a negative sample */
    vlqStsWarnLnZero = 7,       /**< logarithm of a zero sample */
    vlqStsWarnDivByZero = 6,    /**< a sample was divided by zero */
    vlqStsWarnEvenMask = 5,     /**< an even median mask was shortened by one */
    vlqStsWarnInvZero = 4,      /**< a zero sample was to be inverted */
    vlqStsWarnSqrtNegArg = 3,   /**< square root of a negative sample */
    vlqStsOk = 0,               /**< success */
    vlqStsBadArg = -5,          /**< a mode or parameter is outside its set */
    vlqStsBadSize = -6,         /**< a length, size or count is too small */
    vlqStsBadSelector = -7,     /**< a selector is outside its enumeration */
    vlqStsNullPtr = -8,         /**< a required pointer is null */
    vlqStsNoMemory = -9,        /**< out of memory */
    vlqStsZeroDivisor = -10,    /**< a constant divisor is zero or too small */
    vlqStsBadCauchyParam = -11, /**< the Cauchy parameter is not positive */
    vlqStsBadScale = -13,       /**< the scale stored with the taps is negative */
    vlqStsBadOrder = -15,       /**< a transform order is out of range */
    vlqStsBadFlag = -16,        /**< a normalization flag is outside its set */
    vlqStsBadSpec =
        -17, /**< the spec or state is not initialized, was freed, or is of another kind */
    vlqStsThresholdRange = -18,    /**< the low threshold is above the high one */
    vlqStsThresholdNegative = -19, /**< a threshold on magnitudes is negative */
    vlqStsBadDlyIndex = -24,       /**< a delay-line index is out of range */
    vlqStsBadFilterOrder = -25,    /**< an IIR order is out of range */
    vlqStsBadTapCount = -26,       /**< a tap count is below 1 */
    vlqStsBadRelFreq = -27,        /**< a relative frequency is outside [0, 1) */
    vlqStsBadRatePhase = -28,      /**< a multi-rate phase is out of range */
    vlqStsBadRateFactor = -29,     /**< a multi-rate factor is below 1 */
    vlqStsBadSamplePhase = -30,    /**< a sampling phase is out of range */
    vlqStsBadSampleFactor = -31,   /**< a sampling factor is below 1 */
    vlqStsBadShift = -32,          /**< a shift count is negative */
    vlqStsBadMask = -33,           /**< a window mask is shorter than 1 */
    vlqStsBadWaveletOffset = -35,  /**< a wavelet offset is below -1 */
    vlqStsBadJaehneMagn = -38,     /**< the magnitude is negative */
    vlqStsBadAlpha = -39,          /**< the Kaiser alpha is too large for the length */
    vlqStsBadTriangleAsym = -40,   /**< the triangle's asymmetry is out of range */
    vlqStsBadTrianglePhase = -41,  /**< the triangle's phase is out of range */
    vlqStsBadTriangleFreq = -42,   /**< the triangle's frequency is out of range */
    vlqStsBadTriangleMagn = -43,   /**< the triangle's magnitude is not positive */
    vlqStsBadTonePhase = -44,      /**< the tone's phase is out of range */
    vlqStsBadToneFreq = -45,       /**< the tone's frequency is out of range */
    vlqStsBadToneMagn = -46,       /**< the tone's magnitude is not positive */
    vlqStsBadChannelCount = -53,   /**< a channel count is below 1 */
    vlqStsBadMatrixStride = -182,  /**< a matrix stride is not a positive multiple of 8 bytes */
    vlqStsBadSparsePos = -194,     /**< tap positions do not ascend from a non-negative start */
    vlqStsSingularMatrix = -195,   /**< a matrix cannot be inverted */
    vlqStsBadIIRGenOrder = -206,   /**< the design order is outside 1 to 12 */
    vlqStsBadIIRGenFreq = -208,    /**< the design frequency is outside (0, 0.5) */
    vlqStsBadIIRGenRipple = -209,  /**< the ripple is outside (0, 29] */
    vlqStsBadRoundMode = -213      /**< the function has no such rounding mode */
};
/** @} */

#endif
