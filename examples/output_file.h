/* Files that appear complete or not at all: written under a temporary name, renamed at the end. */
#ifndef OUTPUT_FILE_H
#define OUTPUT_FILE_H

#include <stdbool.h>

typedef struct {
    const char* path; /* where the file will be */
    char* temporary; /* where it is until it is complete, in the same folder; null: there is none */
    int descriptor;  /* open for writing; the caller closes it */
} OutputFile;

/* Creates the temporary file. From now on a signal that ends the program removes it. At most two
 * files can be under way at a time. Complains and returns false when it cannot be created. */
bool createOutput(OutputFile* output, const char* path);

/* Gives all files their final names. Complains, removes them all and returns false on a failure. */
bool keepOutputs(OutputFile* outputs, int count);

/* Removes the temporary files. Outputs that are not or no longer under way are left alone. */
void removeOutputs(OutputFile* outputs, int count);

/* Complains that a file cannot be written, for the reason in errno. Returns false. */
bool cannotWrite(const char* path);

#endif
