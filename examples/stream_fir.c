/* Filters a voice recording in blocks, the way a telephone or a sound card delivers it.
 *
 *     stream_fir INPUT.wav OUTPUT.wav SPECTRUM.png
 *
 * Reads a 16-bit WAV file of any rate and any number of channels, takes away what lies above the
 * telephone band with a low-pass of 64 taps, and writes the result together with a picture of the
 * spectra before and after. The file is never in memory as a whole.
 *
 * The lesson: a filter that remembers is a record. vlqsFIRGetStateSize32f_16s() says how much
 * memory it needs, vlqsFIRInit32f_16s() builds it there, and each vlqsFIR32f_16s_Sfs() filters one
 * block and leaves the record ready for the next. How the stream is cut into blocks does not
 * matter, which the program shows: it filters all in blocks of 160 samples (20 ms of telephone
 * speech) and again in blocks of 4096, where the library turns to a faster method, and compares.
 */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "average_spectrum.h"
#include "console.h"
#include "level.h"
#include "low_pass.h"
#include "output_file.h"
#include "sound_file.h"
#include "spectrum_png.h"
#include "vlqs.h"
#include "vlqs/core.h"

enum { tapCount = 64 };

/* The two ways to cut the stream. A chunk is what is read from the file at a time: it holds a whole
 * number of blocks of either size, and of the frames of the spectrum. */
enum { sizeCount = 2, chunkLen = 20480 };
static const int blockLens[sizeCount] = {160, 4096};

/* One channel: its samples, and a filter with a result for each block size. */
typedef struct {
    Vlq16s* input;
    Vlq16s* output[sizeCount];
    VlqsFIRState32f_16s* filter[sizeCount];
    Vlq8u* filterMemory[sizeCount];
} Channel;

typedef struct {
    SF_INFO info;
    SNDFILE* source;
    SNDFILE* sink;
    OutputFile files[2]; /* sound, picture */

    double cutOff;
    Vlq32f taps[tapCount];
    Channel* channels;
    Vlq16s* interleaved; /* a chunk as the file has it: channel after channel for each moment */

    double seconds[sizeCount]; /* spent in the filter */
    int largestDifference;
    Level levelBefore, levelAfter;
    SpectrumAnalyser analyser;
    AverageSpectrum before, after;
} Job;

/* The taps as floats. Their slope from pass to stop is 2.5 kHz wide at 48 kHz, and they delay the
 * sound by 31.5 samples. */
static void designFilter(Vlq32f taps[tapCount], double cutOff) {
    double exact[tapCount];
    designLowPass(exact, tapCount, cutOff);
    for (int n = 0; n < tapCount; ++n) taps[n] = (Vlq32f)exact[n];
}

/* Builds one filter record in memory of our own. The taps are copied into it; without initial
 * samples (the null pointer) the filter starts from silence. */
static bool createFilter(VlqsFIRState32f_16s** filter, Vlq8u** memory, const Vlq32f* taps) {
    Vlq32s bytes = 0;
    if (!succeeded(vlqsFIRGetStateSize32f_16s(tapCount, &bytes), "vlqsFIRGetStateSize32f_16s"))
        return false;
    *memory = vlqsMalloc_8u(bytes);
    if (!*memory) return complain("There is not enough memory for a filter.");
    return succeeded(vlqsFIRInit32f_16s(filter, taps, tapCount, NULL, *memory),
                     "vlqsFIRInit32f_16s");
}

/* Runs one chunk of one channel through the filter of one block size. Scale factor 0: the results
 * are rounded to 16 bits as they are, and limited should one exceed them. */
static bool filterChunk(Job* job, Channel* channel, int size, int len) {
    struct timespec start, end;
    clock_gettime(CLOCK_MONOTONIC, &start);
    for (int done = 0; done < len; done += blockLens[size]) {
        const int count = len - done < blockLens[size] ? len - done : blockLens[size];
        const VlqStatus status = vlqsFIR32f_16s_Sfs(
            channel->input + done, channel->output[size] + done, count, channel->filter[size], 0);
        if (!succeeded(status, "vlqsFIR32f_16s_Sfs")) return false;
    }
    clock_gettime(CLOCK_MONOTONIC, &end);
    job->seconds[size] +=
        (double)(end.tv_sec - start.tv_sec) + 1e-9 * (double)(end.tv_nsec - start.tv_nsec);
    return true;
}

static void compareResults(Job* job, const Channel* channel, int len) {
    for (int n = 0; n < len; ++n) {
        const int difference = abs(channel->output[0][n] - channel->output[1][n]);
        if (difference > job->largestDifference) job->largestDifference = difference;
    }
}

static bool createChannels(Job* job) {
    const int count = job->info.channels;
    job->interleaved = vlqsMalloc_16s(chunkLen * count);
    job->channels = calloc((size_t)count, sizeof *job->channels);
    if (!job->interleaved || !job->channels)
        return complain("There is not enough memory for the sound.");
    for (int c = 0; c < count; ++c) {
        Channel* channel = &job->channels[c];
        channel->input = vlqsMalloc_16s(chunkLen);
        if (!channel->input) return complain("There is not enough memory for the sound.");
        for (int size = 0; size < sizeCount; ++size) {
            channel->output[size] = vlqsMalloc_16s(chunkLen);
            if (!channel->output[size])
                return complain("There is not enough memory for the sound.");
            if (!createFilter(&channel->filter[size], &channel->filterMemory[size], job->taps))
                return false;
        }
    }
    return true;
}

/* Takes one chunk, already read, through everything: filters, comparison, levels, spectra. */
static bool processChunk(Job* job, int len) {
    const int count = job->info.channels;
    for (int c = 0; c < count; ++c) {
        Channel* channel = &job->channels[c];
        for (int n = 0; n < len; ++n) channel->input[n] = job->interleaved[n * count + c];
        for (int size = 0; size < sizeCount; ++size) {
            if (!filterChunk(job, channel, size, len)) return false;
        }
        const Vlq16s* result = channel->output[0];
        for (int n = 0; n < len; ++n) job->interleaved[n * count + c] = result[n];

        compareResults(job, channel, len);
        addToLevel(&job->levelBefore, channel->input, len);
        addToLevel(&job->levelAfter, result, len);
        if (!addToAverage(&job->before, &job->analyser, channel->input, len)) return false;
        if (!addToAverage(&job->after, &job->analyser, result, len)) return false;
    }
    return true;
}

static bool streamSound(Job* job, const char* inputPath) {
    for (sf_count_t done = 0; done < job->info.frames;) {
        const sf_count_t left = job->info.frames - done;
        const int len = left < chunkLen ? (int)left : chunkLen;
        if (sf_readf_short(job->source, job->interleaved, len) != len)
            return complain("%s ends before its last sample.", inputPath);
        if (!processChunk(job, len)) return false;
        errno = 0;
        if (sf_writef_short(job->sink, job->interleaved, len) != len)
            return cannotWrite(job->files[0].path);
        done += len;
        showProgress((double)done, (double)job->info.frames);
    }
    return true;
}

static bool openFiles(Job* job, char* paths[3]) {
    job->source = openSound(paths[0], &job->info);
    if (!job->source) return false;
    if (strcmp(paths[1], paths[2]) == 0)
        return complain("The sound and the picture need names of their own.");
    if (!createOutput(&job->files[0], paths[1]) || !createOutput(&job->files[1], paths[2]))
        return false;

    SF_INFO info = {.samplerate = job->info.samplerate, .channels = job->info.channels};
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    errno = 0;
    job->sink = sf_open_fd(job->files[0].descriptor, SFM_WRITE, &info, SF_TRUE);
    return job->sink || cannotWrite(paths[1]);
}

/* Closes the sound and reports what only shows then, such as a full disk. */
static bool finishSound(Job* job) {
    errno = 0;
    const int failure = sf_close(job->sink);
    job->sink = NULL;
    return failure == 0 || cannotWrite(job->files[0].path);
}

static bool drawPicture(Job* job, const char* inputPath) {
    const char* slash = strrchr(inputPath, '/');
    char title[256];
    double before[spectrumLines], after[spectrumLines];
    averageLevels(&job->before, before);
    averageLevels(&job->after, after);
    snprintf(title, sizeof title, "%s: average spectrum", slash ? slash + 1 : inputPath);
    const SpectrumPicture picture = {
        title, job->info.samplerate, job->cutOff, spectrumLines, before, after};

    errno = 0;
    FILE* file = fdopen(job->files[1].descriptor, "wb");
    bool written = file && writeSpectrumPicture(file, &picture);
    if (file && fclose(file) != 0) written = false;
    return written || cannotWrite(job->files[1].path);
}

static void printReport(const Job* job) {
    const double duration = (double)job->info.frames / job->info.samplerate;
    for (int size = 0; size < sizeCount; ++size)
        printf(
            "Blocks of %4d samples: %.2f s of sound filtered in %.2f ms, real-time factor %.0f\n",
            blockLens[size], duration, 1e3 * job->seconds[size], duration / job->seconds[size]);
    printf("Largest difference between the two results: %d of 32768\n", job->largestDifference);
    printLevel("before:", &job->levelBefore);
    printLevel("after:", &job->levelAfter);
    printf("Filtered sound: %s\nSpectrum picture: %s\n", job->files[0].path, job->files[1].path);
}

static bool run(Job* job, char* paths[3]) {
    if (!openFiles(job, paths)) return false;

    /* The telephone band ends at 3.4 kHz; below 8 kHz of sample rate at the same share of it. */
    job->cutOff = fmin(3400, 0.425 * job->info.samplerate);
    designFilter(job->taps, job->cutOff / job->info.samplerate);

    /* The library shares long blocks among threads. These take some ten microseconds each, less
     * than it may cost to wait for a second thread on a busy machine. */
    vlqSetNumThreads(1);
    if (!createAnalyser(&job->analyser) || !createChannels(job)) return false;

    printf("%s: %.2f s, %d Hz, %d channel%s\n", paths[0],
           (double)job->info.frames / job->info.samplerate, job->info.samplerate,
           job->info.channels, job->info.channels == 1 ? "" : "s");
    printf("Low-pass of %d taps, cut-off %.0f Hz\n", tapCount, job->cutOff);
    if (!streamSound(job, paths[0])) return false;
    if (job->largestDifference > 1)
        return complain("The block sizes give results that differ by %d.", job->largestDifference);
    if (!finishSound(job) || !drawPicture(job, paths[0]) || !keepOutputs(job->files, 2))
        return false;
    printReport(job);
    return true;
}

/* Releases what was acquired so far; removes outputs that did not get complete. */
static void release(Job* job) {
    if (job->source) sf_close(job->source);
    if (job->sink) sf_close(job->sink);
    removeOutputs(job->files, 2);
    freeAnalyser(&job->analyser);
    for (int c = 0; job->channels && c < job->info.channels; ++c) {
        Channel* channel = &job->channels[c];
        vlqsFree(channel->input);
        for (int size = 0; size < sizeCount; ++size) {
            vlqsFree(channel->output[size]);
            vlqsFree(channel->filterMemory
                         [size]); /* the record lies in it and needs no release of its own */
        }
    }
    free(job->channels);
    vlqsFree(job->interleaved);
}

int main(int argc, char** argv) {
    if (argc != 4) {
        complain("Usage: stream_fir INPUT.wav OUTPUT.wav SPECTRUM.png");
        return EXIT_FAILURE;
    }
    static Job job;
    const bool worked = run(&job, argv + 1);
    release(&job);
    return worked ? EXIT_SUCCESS : EXIT_FAILURE;
}
