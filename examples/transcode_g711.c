/* Changes between the sample formats of telephony: 16-bit samples, A-law and mu-law.
 *
 *     transcode_g711 a|mu|linear INPUT.wav OUTPUT.wav
 *
 * Reads a WAV file in any of the three formats, any rate, any number of channels, and writes one in
 * the format asked for. A law keeps 8 bits a sample, spaced so that the error is some 35 dB below
 * the signal at every level from full scale down to -40 dBFS.
 *
 * The lesson: codes are converted as vectors of bytes, and from one law to the other without a
 * detour over samples, which would pick other codes than the standard's tables.
 */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "console.h"
#include "output_file.h"
#include "sound_file.h"
#include "vlqs.h"

enum { blockLen = 4096 };

/* A format: as the command line names it, as WAV files do, and the bytes of a sample. */
typedef struct {
    const char* name;
    int subtype;
    int bytes;
} Format;

static const Format formats[] = {
    {"linear", SF_FORMAT_PCM_16, 2}, {"a", SF_FORMAT_ALAW, 1}, {"mu", SF_FORMAT_ULAW, 1}};
enum { linear, aLaw, muLaw, formatCount };

/* Converts `len` samples. Vectors are typed by what is in them; the file's bytes are just that. */
static VlqStatus convert(int from, int to, const Vlq8u* src, Vlq8u* dst, int len) {
    const Vlq16s* samples = (const Vlq16s*)(const void*)src;
    Vlq16s* results = (Vlq16s*)(void*)dst;
    if (from == to) return vlqsCopy_8u(src, dst, len * formats[from].bytes);
    if (from == linear && to == aLaw) return vlqsLinToALaw_16s8u(samples, dst, len);
    if (from == linear && to == muLaw) return vlqsLinToMuLaw_16s8u(samples, dst, len);
    if (from == aLaw && to == linear) return vlqsALawToLin_8u16s(src, results, len);
    if (from == muLaw && to == linear) return vlqsMuLawToLin_8u16s(src, results, len);
    return from == aLaw ? vlqsALawToMuLaw_8u(src, dst, len) : vlqsMuLawToALaw_8u(src, dst, len);
}

typedef struct {
    SF_INFO info;
    SNDFILE *source, *sink;
    OutputFile file;
    Vlq8u *input, *output;
} Job;

static int formatOf(const SF_INFO* info) {
    int f = 0;
    while (f < formatCount && formats[f].subtype != (info->format & SF_FORMAT_SUBMASK)) ++f;
    return f;
}

static bool transcode(Job* job, int from, int to, const char* inputPath) {
    const sf_count_t total = job->info.frames * job->info.channels;
    for (sf_count_t done = 0; done < total;) {
        const int len = (int)(total - done < blockLen ? total - done : blockLen);
        const sf_count_t inBytes = (sf_count_t)len * formats[from].bytes,
                         outBytes = (sf_count_t)len * formats[to].bytes;
        if (sf_read_raw(job->source, job->input, inBytes) != inBytes)
            return complain("%s ends before its last sample.", inputPath);
        if (!succeeded(convert(from, to, job->input, job->output, len), "the conversion"))
            return false;
        errno = 0;
        if (sf_write_raw(job->sink, job->output, outBytes) != outBytes)
            return cannotWrite(job->file.path);
        done += len;
    }
    return true;
}

static bool run(Job* job, const char* target, const char* inputPath, const char* outputPath) {
    int to = 0;
    while (to < formatCount && strcmp(target, formats[to].name) != 0) ++to;
    if (to == formatCount) return complain("%s is not a format: a, mu or linear.", target);

    job->source = openWav(inputPath, &job->info);
    if (!job->source) return false;
    const int from = formatOf(&job->info);
    if (from == formatCount)
        return complain("%s holds %s samples; this program takes 16-bit, A-law or mu-law ones.",
                        inputPath, sampleKind(&job->info));

    if (!createOutput(&job->file, outputPath)) return false;
    SF_INFO info = {.samplerate = job->info.samplerate, .channels = job->info.channels};
    info.format = SF_FORMAT_WAV | formats[to].subtype;
    errno = 0;
    job->sink = sf_open_fd(job->file.descriptor, SFM_WRITE, &info, SF_TRUE);
    if (!job->sink) return cannotWrite(outputPath);

    job->input = vlqsMalloc_8u(2 * blockLen);
    job->output = vlqsMalloc_8u(2 * blockLen);
    if (!job->input || !job->output) return complain("There is not enough memory for the sound.");
    if (!transcode(job, from, to, inputPath)) return false;

    errno = 0;
    const int failure = sf_close(job->sink);
    job->sink = NULL;
    if (failure != 0) return cannotWrite(outputPath);
    if (!keepOutputs(&job->file, 1)) return false;
    printf("%s: %lld samples, %s to %s: %s\n", inputPath,
           (long long)(job->info.frames * job->info.channels), formats[from].name, formats[to].name,
           outputPath);
    return true;
}

int main(int argc, char** argv) {
    if (argc != 4) {
        complain("Usage: %s a|mu|linear INPUT.wav OUTPUT.wav", "transcode_g711");
        return EXIT_FAILURE;
    }
    Job job = {0};
    const bool worked = run(&job, argv[1], argv[2], argv[3]);
    if (job.source) sf_close(job.source);
    if (job.sink) sf_close(job.sink);
    removeOutputs(&job.file, 1);
    vlqsFree(job.input);
    vlqsFree(job.output);
    return worked ? EXIT_SUCCESS : EXIT_FAILURE;
}
