/* The level of a signal in dBFS. */
#include "level.h"

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

void addToLevel(Level* level, const Vlq16s* samples, int len) {
    for (int n = 0; n < len; ++n) {
        level->squares += (double)samples[n] * samples[n];
        if (abs(samples[n]) > level->peak) level->peak = abs(samples[n]);
    }
    level->samples += len;
}

void printLevel(const char* name, const Level* level) {
    /* 0 dBFS is the largest sample value, 32768. */
    printf("Level %-7s RMS %6.1f dBFS, peak %6.1f dBFS\n", name,
           10 * log10(level->squares / level->samples) - 20 * log10(32768),
           20 * log10(level->peak / 32768.0));
}
