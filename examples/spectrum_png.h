/* Draws two spectra into one picture and writes it as a PNG file. */
#ifndef SPECTRUM_PNG_H
#define SPECTRUM_PNG_H

#include <stdbool.h>
#include <stdio.h>

typedef struct {
    const char* title;
    double sampleRate;    /* Hz; the frequency axis ends at half of it */
    double cutOff;        /* Hz; marked by a vertical line */
    int lines;            /* lines of each spectrum, from 0 to half the sample rate */
    const double* before; /* dBFS */
    const double* after;  /* dBFS */
} SpectrumPicture;

/* Writes a picture of 1000 x 600 pixels; false when memory or the file refuses. */
bool writeSpectrumPicture(FILE* file, const SpectrumPicture* picture);

#endif
