/**
 * @file vlqs.h
 * @brief All of vlqs: signal-processing primitives for audio, speech, telephony and modem samples.
 *
 * C99 or later, C++11 or later. Every call checks its arguments first and returns a VlqStatus; if a
 * check fails, no output is touched. There is nothing to initialize and nothing to shut down.
 */
#ifndef VLQS_H
#define VLQS_H

#include "vlqs/types.h"

#include "vlqs/core.h"
#include "vlqs/frame.h"

#include "vlqs/arith.h"
#include "vlqs/complex.h"
#include "vlqs/convert.h"
#include "vlqs/fft.h"
#include "vlqs/fir.h"
#include "vlqs/limit.h"
#include "vlqs/maths.h"
#include "vlqs/move.h"

#endif
