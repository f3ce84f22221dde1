/* Takes a voice recording from 48 kHz to the 8 kHz of the telephone.
 *
 *     decimate INPUT.wav OUTPUT.wav
 *
 * Reads a 16-bit WAV file of 48 kHz and any number of channels. What lies above 4 kHz cannot be
 * told at 8 kHz from what lies below, so a low-pass must take it away before five of six samples
 * go.
 *
 * The lesson: a multi-rate filter does both in one step, and never computes a sample that is to be
 * dropped: with 192 taps, 32 multiplications a sample of input instead of 192. Its record comes
 * from vlqsFIRMRInit32s_16s() with the factors 1 up and 6 down, and vlqsFIR32s_16s_Sfs() runs it as
 * it runs any filter, but counts periods of 6 samples in and 1 out. change_rate.c does this.
 */
#include "change_rate.h"

int main(int argc, char** argv) {
    /* Flat to 3.2 kHz, nothing above 4 kHz: 192 taps at 48 kHz fall off over 800 Hz. */
    static const RateChange change = {"decimate", 48000, 8000, 192, 3600};
    return changeRate(&change, argc, argv);
}
