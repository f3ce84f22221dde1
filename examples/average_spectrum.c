/* Windowed frames through the real transform, their power summed line by line. */
#include "average_spectrum.h"

#include <math.h>

#include "console.h"

bool createAnalyser(SpectrumAnalyser* analyser) {
    Vlq32s workBytes = 0;
    *analyser = (SpectrumAnalyser){0};
    if (!succeeded(vlqsFFTInitAlloc_R_32f(&analyser->plan, spectrumOrder, vlqNormNone, vlqHintNone),
                   "vlqsFFTInitAlloc_R_32f"))
        return false;
    if (!succeeded(vlqsFFTGetBufSize_R_32f(analyser->plan, &workBytes), "vlqsFFTGetBufSize_R_32f"))
        return false;

    /* A plan may need no work memory; a null pointer is right then. */
    analyser->work = vlqsMalloc_8u(workBytes);
    analyser->window = vlqsMalloc_32f(spectrumLen);
    analyser->frame = vlqsMalloc_32f(spectrumLen);
    analyser->spectrum = vlqsMalloc_32f(2 * spectrumLines);
    if ((workBytes > 0 && !analyser->work) || !analyser->window || !analyser->frame ||
        !analyser->spectrum)
        return complain("There is not enough memory for the spectrum.");

    const double turn = 2 * acos(-1.0);
    for (int n = 0; n < spectrumLen; ++n)
        analyser->window[n] = (Vlq32f)(0.5 - 0.5 * cos(turn * n / spectrumLen));
    return true;
}

void freeAnalyser(SpectrumAnalyser* analyser) {
    if (analyser->plan) vlqsFFTFree_R_32f(analyser->plan);
    vlqsFree(analyser->work);
    vlqsFree(analyser->window);
    vlqsFree(analyser->frame);
    vlqsFree(analyser->spectrum);
    *analyser = (SpectrumAnalyser){0};
}

bool addToAverage(AverageSpectrum* average, SpectrumAnalyser* analyser, const Vlq16s* samples,
                  int len) {
    for (int start = 0; start < len; start += spectrumLen) {
        const int count = len - start < spectrumLen ? len - start : spectrumLen;
        for (int n = 0; n < spectrumLen; ++n)
            analyser->frame[n] =
                n < count ? analyser->window[n] * (Vlq32f)samples[start + n] / 32768 : 0;

        if (!succeeded(vlqsFFTFwd_RToCCS_32f(analyser->frame, analyser->spectrum, analyser->plan,
                                             analyser->work),
                       "vlqsFFTFwd_RToCCS_32f"))
            return false;
        for (int line = 0; line < spectrumLines; ++line) {
            const double re = analyser->spectrum[2 * line];
            const double im = analyser->spectrum[2 * line + 1];
            average->power[line] += re * re + im * im;
        }
        average->frames += (double)count / spectrumLen;
    }
    return true;
}

void averageLevels(const AverageSpectrum* average, double levels[spectrumLines]) {
    /* A sine of amplitude 1 gives a line of len / 2, halved once more by the window's mean. */
    const double fullScale = spectrumLen / 4.0;
    for (int line = 0; line < spectrumLines; ++line) {
        const double power = average->power[line] / average->frames / (fullScale * fullScale);
        levels[line] = power > 1e-20 ? 10 * log10(power) : -200;
    }
}
