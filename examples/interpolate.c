/* Takes a recording of telephone speech from 8 kHz to the 48 kHz of a sound card.
 *
 *     interpolate INPUT.wav OUTPUT.wav
 *
 * Reads a 16-bit WAV file of 8 kHz and any number of channels. Five zeros between two samples would
 * give the new rate, but also mirror images of the spectrum around 8, 16 and 24 kHz, which a
 * low-pass must take away.
 *
 * The lesson: a multi-rate filter does both in one step, and never multiplies by the zeros: of its
 * 192 taps each result meets the 32 that fall on samples, and which 32 these are goes round with
 * the six results of a sample. Its record comes from vlqsFIRMRInit32s_16s() with the factors 6 up
 * and 1 down, and vlqsFIR32s_16s_Sfs() runs it as it runs any filter, but counts periods of 1
 * sample in and 6 out. change_rate.c does this.
 */
#include "change_rate.h"

int main(int argc, char** argv) {
    /* Flat to 3.4 kHz, the telephone's highest; its image at 4.6 kHz and all others are gone. */
    static const RateChange change = {"interpolate", 8000, 48000, 192, 3800};
    return changeRate(&change, argc, argv);
}
