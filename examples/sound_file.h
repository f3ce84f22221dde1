/* Opens a 16-bit WAV file and makes sure that it is whole. */
#ifndef SOUND_FILE_H
#define SOUND_FILE_H

#include <sndfile.h>

/* Opens a WAV file of any kind of samples that libsndfile knows, any rate, any number of channels.
 * Returns null, after one sentence on the standard error stream, when the file is missing, empty,
 * not a WAV file, or shorter than its header says. Close it with sf_close(). */
SNDFILE* openWav(const char* path, SF_INFO* info);

/* The name of the kind of samples in a file, such as "Signed 16 bit PCM". */
const char* sampleKind(const SF_INFO* info);

/* Opens a WAV file of 16-bit samples, any rate, any number of channels. Returns null, after one
 * sentence on the standard error stream, when the file is missing, empty, of another kind, or
 * shorter than its header says. Close it with sf_close(). */
SNDFILE* openSound(const char* path, SF_INFO* info);

#endif
