/* Takes a recording from one sample rate to another, in blocks. */
#ifndef CHANGE_RATE_H
#define CHANGE_RATE_H

typedef struct {
    const char* program;  /* its name, for the line that tells how to call it */
    int fromRate, toRate; /* Hz; one is a multiple of the other */
    int tapCount;
    double cutOff; /* Hz */
} RateChange;

/* The whole program: PROGRAM INPUT.wav OUTPUT.wav. Returns the exit code. */
int changeRate(const RateChange* change, int argc, char** argv);

#endif
