/* Reads a recording in blocks, changes its sampling rate and writes it to another file. */
#include "change_rate.h"

#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

#include "console.h"
#include "level.h"
#include "low_pass.h"
#include "output_file.h"
#include "sound_file.h"
#include "vlqs.h"

/* The filter works in periods: each reads `down` samples and writes `up`. A block is this many. */
enum { blockPeriods = 160 };

typedef struct {
    Vlq16s *input, *output;
    VlqsFIRState32s_16s* filter;
    Vlq8u* filterMemory;
} Channel;

typedef struct {
    const RateChange* change;
    int up, down;
    SF_INFO info;
    SNDFILE* source;
    SNDFILE* sink;
    OutputFile file;

    Vlq32s* taps;
    Channel* channels;
    Vlq16s* interleaved; /* a block as the file has it: channel after channel for each moment */

    double seconds; /* spent in the filter */
    sf_count_t written;
    Level levelBefore, levelAfter;
} Job;

/* Taps are integers in units of 2^-15. Their sums of products are formed in 32 bits, so the
 * magnitudes of the taps that one result uses must not add up to more than 65535: these come to
 * about 1.5 * 32768. Between two samples of the input lie up - 1 zeros, and the gain makes good
 * for what they take away. */
enum { tapBits = 15 };

static bool designFilter(Job* job) {
    const int count = job->change->tapCount;
    const double highRate = (double)job->info.samplerate * job->up;
    double* exact = malloc((size_t)count * sizeof *exact);
    job->taps = vlqsMalloc_32s(count);
    const bool worked = exact && job->taps;
    if (worked) {
        designLowPass(exact, count, job->change->cutOff / highRate);
        for (int n = 0; n < count; ++n)
            job->taps[n] = (Vlq32s)lround(ldexp(exact[n] * job->up, tapBits));
    }
    free(exact);
    return worked || complain("There is not enough memory for a filter.");
}

/* Builds one filter record in memory of our own; it starts from silence (the null pointer). */
static bool createFilter(const Job* job, Channel* channel) {
    const int count = job->change->tapCount;
    Vlq32s bytes = 0;
    if (!succeeded(vlqsFIRMRGetStateSize32s_16s(count, job->up, job->down, &bytes),
                   "vlqsFIRMRGetStateSize32s_16s"))
        return false;
    channel->filterMemory = vlqsMalloc_8u(bytes);
    if (!channel->filterMemory) return complain("There is not enough memory for a filter.");
    return succeeded(vlqsFIRMRInit32s_16s(&channel->filter, job->taps, count, -tapBits, job->up, 0,
                                          job->down, 0, NULL, channel->filterMemory),
                     "vlqsFIRMRInit32s_16s");
}

static bool createChannels(Job* job) {
    const int count = job->info.channels,
              longest = blockPeriods * (job->up > job->down ? job->up : job->down);
    job->interleaved = vlqsMalloc_16s(longest * count);
    job->channels = calloc((size_t)count, sizeof *job->channels);
    if (!job->interleaved || !job->channels)
        return complain("There is not enough memory for the sound.");
    for (int c = 0; c < count; ++c) {
        Channel* channel = &job->channels[c];
        channel->input = vlqsMalloc_16s(blockPeriods * job->down);
        channel->output = vlqsMalloc_16s(blockPeriods * job->up);
        if (!channel->input || !channel->output)
            return complain("There is not enough memory for the sound.");
        if (!createFilter(job, channel)) return false;
    }
    return true;
}

/* Takes a block of one channel through its filter. A multi-rate filter is called like any other,
 * only that its length counts periods. Scale factor 0: results are rounded to 16 bits as they are.
 * */
static bool filterBlock(Job* job, Channel* channel, int periods) {
    struct timespec start, end;
    clock_gettime(CLOCK_MONOTONIC, &start);
    const VlqStatus status =
        vlqsFIR32s_16s_Sfs(channel->input, channel->output, periods, channel->filter, 0);
    clock_gettime(CLOCK_MONOTONIC, &end);
    job->seconds +=
        (double)(end.tv_sec - start.tv_sec) + 1e-9 * (double)(end.tv_nsec - start.tv_nsec);
    return succeeded(status, "vlqsFIR32s_16s_Sfs");
}

/* One block, already read: `len` samples of each channel. The last one is filled up with silence
 * to whole periods. */
static bool processBlock(Job* job, int len) {
    const int count = job->info.channels, periods = (len + job->down - 1) / job->down,
              results = periods * job->up;
    for (int c = 0; c < count; ++c) {
        Channel* channel = &job->channels[c];
        for (int n = 0; n < periods * job->down; ++n)
            channel->input[n] = n < len ? job->interleaved[n * count + c] : 0;
    }
    for (int c = 0; c < count; ++c) {
        Channel* channel = &job->channels[c];
        if (!filterBlock(job, channel, periods)) return false;
        for (int n = 0; n < results; ++n) job->interleaved[n * count + c] = channel->output[n];
        addToLevel(&job->levelBefore, channel->input, len);
        addToLevel(&job->levelAfter, channel->output, results);
    }
    errno = 0;
    if (sf_writef_short(job->sink, job->interleaved, results) != results)
        return cannotWrite(job->file.path);
    job->written += results;
    return true;
}

static bool streamSound(Job* job, const char* inputPath) {
    const sf_count_t blockLen = blockPeriods * (sf_count_t)job->down;
    for (sf_count_t done = 0; done < job->info.frames;) {
        const sf_count_t left = job->info.frames - done;
        const int len = (int)(left < blockLen ? left : blockLen);
        if (sf_readf_short(job->source, job->interleaved, len) != len)
            return complain("%s ends before its last sample.", inputPath);
        if (!processBlock(job, len)) return false;
        done += len;
        showProgress((double)done, (double)job->info.frames);
    }
    return true;
}

static bool openFiles(Job* job, char* paths[2]) {
    job->source = openSound(paths[0], &job->info);
    if (!job->source) return false;
    if (job->info.samplerate != job->change->fromRate)
        return complain("%s has %d samples a second, but this program takes %d.", paths[0],
                        job->info.samplerate, job->change->fromRate);
    if (!createOutput(&job->file, paths[1])) return false;

    SF_INFO info = {.samplerate = job->change->toRate, .channels = job->info.channels};
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    errno = 0;
    job->sink = sf_open_fd(job->file.descriptor, SFM_WRITE, &info, SF_TRUE);
    return job->sink || cannotWrite(paths[1]);
}

/* Closes the sound and reports what only shows then, such as a full disk. */
static bool finishSound(Job* job) {
    errno = 0;
    const int failure = sf_close(job->sink);
    job->sink = NULL;
    return failure == 0 || cannotWrite(job->file.path);
}

static bool run(Job* job, char* paths[2]) {
    const RateChange* change = job->change;
    if (!openFiles(job, paths) || !designFilter(job) || !createChannels(job)) return false;

    const double duration = (double)job->info.frames / change->fromRate;
    printf("%s: %.2f s, %d Hz, %d channel%s\n", paths[0], duration, change->fromRate,
           job->info.channels, job->info.channels == 1 ? "" : "s");
    printf("Low-pass of %d taps at %d Hz, cut-off %.0f Hz\n", change->tapCount,
           change->fromRate * job->up, change->cutOff);
    if (!streamSound(job, paths[0]) || !finishSound(job) || !keepOutputs(&job->file, 1))
        return false;
    printf("%.2f s of sound filtered in %.2f ms, real-time factor %.0f\n", duration,
           1e3 * job->seconds, duration / job->seconds);
    printLevel("before:", &job->levelBefore);
    printLevel("after:", &job->levelAfter);
    printf("Sound of %d Hz, %lld samples: %s\n", change->toRate, (long long)job->written,
           job->file.path);
    return true;
}

/* Releases what was acquired so far; removes an output that did not get complete. */
static void release(Job* job) {
    if (job->source) sf_close(job->source);
    if (job->sink) sf_close(job->sink);
    removeOutputs(&job->file, 1);
    for (int c = 0; job->channels && c < job->info.channels; ++c) {
        Channel* channel = &job->channels[c];
        vlqsFree(channel->input);
        vlqsFree(channel->output);
        vlqsFree(channel->filterMemory); /* the record lies in it and needs no release of its own */
    }
    free(job->channels);
    vlqsFree(job->interleaved);
    vlqsFree(job->taps);
}

int changeRate(const RateChange* change, int argc, char** argv) {
    if (argc != 3) {
        complain("Usage: %s INPUT.wav OUTPUT.wav", change->program);
        return EXIT_FAILURE;
    }
    Job job = {.change = change};
    const bool rises = change->toRate > change->fromRate;
    job.up = rises ? change->toRate / change->fromRate : 1;
    job.down = rises ? 1 : change->fromRate / change->toRate;
    const bool worked = run(&job, argv + 1);
    release(&job);
    return worked ? EXIT_SUCCESS : EXIT_FAILURE;
}
