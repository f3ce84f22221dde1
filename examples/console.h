/* What the example says while it works: one sentence for a failure, a bar for progress. */
#ifndef CONSOLE_H
#define CONSOLE_H

#include <stdbool.h>

#include "vlqs.h"

/* Prints one line to the standard error stream. Returns false, for `return complain(...)`. */
bool complain(const char* format, ...) __attribute__((format(printf, 1, 2)));

/* Tells whether a call of the library succeeded; complains when it did not. Warnings, which are
 * positive, are successes: all results were written. */
bool succeeded(VlqStatus status, const char* call);

/* Shows how much is done: a bar that grows on a terminal, a line every quarter elsewhere. */
void showProgress(double done, double total);

/* Ends an unfinished bar, so that the next line begins on the left. */
void endProgress(void);

#endif
