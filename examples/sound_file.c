/* Opens sound files of 16-bit samples with libsndfile. */
#include "sound_file.h"

#include <errno.h>
#include <stdbool.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>

#include "console.h"

static unsigned long littleEndian32(const unsigned char* bytes) {
    return bytes[0] | (unsigned long)bytes[1] << 8 | (unsigned long)bytes[2] << 16 |
           (unsigned long)bytes[3] << 24;
}

/* Walks through the chunks of a WAV file up to the samples and compares the size in their header
 * with the bytes that are there. libsndfile reads a file that was cut short without a complaint. */
static bool samplesAreComplete(FILE* file, off_t fileSize, const char* path) {
    unsigned char header[12];
    if (fread(header, 1, 12, file) != 12 || memcmp(header, "RIFF", 4) != 0 ||
        memcmp(header + 8, "WAVE", 4) != 0)
        return complain("%s is not a WAV file.", path);
    while (fread(header, 1, 8, file) == 8) {
        const off_t promised = (off_t)littleEndian32(header + 4);
        if (memcmp(header, "data", 4) == 0) {
            const off_t there = fileSize - ftello(file);
            if (there >= promised) return true;
            return complain(
                "%s was cut short: its header promises %lld bytes of samples, but only %lld are "
                "there.",
                path, (long long)promised, (long long)there);
        }
        if (fseeko(file, promised + promised % 2, SEEK_CUR) != 0) break;
    }
    return complain("%s was cut short: it ends before its samples begin.", path);
}

static bool isCompleteWav(const char* path) {
    struct stat about;
    if (stat(path, &about) != 0) {
        if (errno == ENOENT) return complain("%s does not exist.", path);
        return complain("%s cannot be read: %s.", path, strerror(errno));
    }
    if (!S_ISREG(about.st_mode)) return complain("%s is not a file.", path);
    if (about.st_size == 0) return complain("%s is empty.", path);

    FILE* file = fopen(path, "rb");
    if (!file) return complain("%s cannot be read: %s.", path, strerror(errno));
    const bool complete = samplesAreComplete(file, about.st_size, path);
    fclose(file);
    return complete;
}

SNDFILE* openWav(const char* path, SF_INFO* info) {
    if (!isCompleteWav(path)) return NULL;

    *info = (SF_INFO){0};
    SNDFILE* sound = sf_open(path, SFM_READ, info);
    if (!sound) {
        complain("%s is not a WAV file that can be read.", path);
    } else if (info->frames < 1) {
        complain("%s holds no samples.", path);
    } else {
        return sound;
    }
    if (sound) sf_close(sound);
    return NULL;
}

const char* sampleKind(const SF_INFO* info) {
    SF_FORMAT_INFO kind = {.format = info->format & SF_FORMAT_SUBMASK};
    const int failure = sf_command(NULL, SFC_GET_FORMAT_INFO, &kind, sizeof kind);
    return failure == 0 ? kind.name : "another kind of";
}

SNDFILE* openSound(const char* path, SF_INFO* info) {
    SNDFILE* sound = openWav(path, info);
    if (!sound || (info->format & SF_FORMAT_SUBMASK) == SF_FORMAT_PCM_16) return sound;
    complain("%s holds %s samples, but this program takes 16-bit ones.", path, sampleKind(info));
    sf_close(sound);
    return NULL;
}
