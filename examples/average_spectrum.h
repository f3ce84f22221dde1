/* The average spectrum of a stream, by the library's real transform. */
#ifndef AVERAGE_SPECTRUM_H
#define AVERAGE_SPECTRUM_H

#include <stdbool.h>

#include "vlqs.h"

/* 1024 samples a transform: lines 47 Hz apart at 48 kHz, fine enough to see a voice's pitch. */
enum { spectrumOrder = 10, spectrumLen = 1 << spectrumOrder, spectrumLines = spectrumLen / 2 + 1 };

typedef struct {
    VlqsFFTSpec_R_32f* plan;
    Vlq8u* work;      /* memory that the transform uses during a call */
    Vlq32f* window;   /* Hann */
    Vlq32f* frame;    /* samples, windowed; 1 is full scale */
    Vlq32f* spectrum; /* real and imaginary part of each line */
} SpectrumAnalyser;

/* Sums of power, line by line; start from all zeros. */
typedef struct {
    double power[spectrumLines];
    double frames;
} AverageSpectrum;

/* Prepares the transform. Complains and returns false on a failure. */
bool createAnalyser(SpectrumAnalyser* analyser);

/* Releases an analyser, one whose creation failed included. */
void freeAnalyser(SpectrumAnalyser* analyser);

/* Adds len samples to an average. The last frame is filled up with zeros, so len should be a
 * multiple of spectrumLen everywhere but at the end of the stream. */
bool addToAverage(AverageSpectrum* average, SpectrumAnalyser* analyser, const Vlq16s* samples,
                  int len);

/* Level of each line in dBFS: a sine of full scale reads 0. Lines without any power read -200. */
void averageLevels(const AverageSpectrum* average, double levels[spectrumLines]);

#endif
