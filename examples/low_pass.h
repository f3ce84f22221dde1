/* The taps of a low-pass filter. */
#ifndef LOW_PASS_H
#define LOW_PASS_H

/* Makes `count` taps of a low-pass whose cut-off is a share of the sample rate, below one half.
 * Their sum is 1: a constant signal keeps its level. They are symmetric, so all frequencies are
 * delayed alike, by (count - 1) / 2 samples. */
void designLowPass(double* taps, int count, double cutOff);

#endif
