/* The level of a signal. */
#ifndef LEVEL_H
#define LEVEL_H

#include "vlqs.h"

/* Sums from which a level is told; start from all zeros. */
typedef struct {
    double squares, samples;
    int peak;
} Level;

void addToLevel(Level* level, const Vlq16s* samples, int len);

/* One line: name, RMS and peak in dBFS. */
void printLevel(const char* name, const Level* level);

#endif
