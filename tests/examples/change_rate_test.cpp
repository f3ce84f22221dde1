// Runs the examples that change the rate of a sound as a user does, on sounds made here and on a
// voice.
#include "examples/example_test.h"

namespace {

using namespace vlqtest;

double decibels(double ratio) { return 20 * std::log10(ratio); }

double rms(const Sound& sound) {
    double sum = 0;
    for (const double sample : sound.samples) sum += sample * sample;
    return std::sqrt(sum / static_cast<double>(sound.samples.size()));
}

class ChangeRate : public ExampleTest {
protected:
    ChangeRate(std::string path, int rateBefore, int rateAfter)
        : ExampleTest(std::move(path)), from(rateBefore), to(rateAfter) {}

    Outcome run(const fs::path& input) const {
        return wait(start({input.string(), sound().string()}));
    }

    Sound changed(const Sound& given) const {
        const Outcome outcome = run(write("given.wav", wav(given)));
        EXPECT_EQ(EXIT_SUCCESS, outcome.code) << outcome.err;
        EXPECT_EQ("", outcome.err);
        EXPECT_EQ(std::vector<std::string>{"sound.wav"}, left());
        return readWav(sound());
    }

    void checkShapes() const {
        for (const int channels : {1, 2, 6}) {
            for (const int frames : {1, 5, 6, 7, 959, 960, 961, 4801}) {
                const Sound result = changed(noise(from, frames, channels));
                EXPECT_EQ(to, result.rate);
                EXPECT_EQ(channels, result.channels);
                EXPECT_EQ(16, result.bits);
                // What remains of a period is filled up.
                EXPECT_EQ((frames * to + from - 1) / from * channels,
                          static_cast<int>(result.samples.size()))
                    << frames << " frames";
                fs::remove(sound());
            }
        }
    }

    void checkRefusals() const {
        const std::string whole = wav(noise(from, 5000, 1));
        const auto expectRefused = [&](const fs::path& input, const std::string& reason) {
            expectRefusal(run(input), input.string(), reason);
        };
        expectRefused(folder / "missing.wav", "does not exist");
        expectRefused(folder, "is not a file");
        expectRefused(write("empty.wav", ""), "is empty");
        expectRefused(write("text.wav", "These are words, and nobody can hear them.\n"),
                      "is not a WAV file");
        expectRefused(write("truncated.wav", whole.substr(0, 5000)), "cut short");
        expectRefused(write("header.wav", whole.substr(0, 40)), "cut short");
        expectRefused(write("silent.wav", wav(noise(from, 0, 1))), "holds no samples");
        const Sound deep{from, 1, 24, {}};
        expectRefused(write("deep.wav", wavHeader(deep, 3000) + std::string(3000, 'x')), "24 bit");
        expectRefused(write("rate.wav", wav(noise(44100, 5000, 1))), "44100 samples a second");
        const std::string input = write("given.wav", whole).string(),
                          nowhere = (folder / "no folder" / "file").string();
        expectRefusal(wait(start({input, nowhere})), nowhere, "cannot be written");
        expectRefusal(wait(start({input, folder.string()})), folder.string(), "not a file");
        const Outcome usage = wait(start({input}));
        EXPECT_EQ(EXIT_FAILURE, usage.code);
        EXPECT_EQ(0u, usage.err.find("Usage: " + fs::path(program).filename().string() +
                                     " INPUT.wav OUTPUT.wav\n"))
            << usage.err;
    }

    void checkEarlierFileStays() const {
        write("out/sound.wav", "earlier sound");
        EXPECT_EQ(EXIT_FAILURE,
                  run(write("cut.wav", wav(noise(from, 5000, 1)).substr(0, 3000))).code);
        EXPECT_EQ("earlier sound", readFile(sound()));
    }

    int from, to;
};

class Decimate : public ChangeRate {
protected:
    Decimate() : ChangeRate(DECIMATE, 48000, 8000) {}
};
class Interpolate : public ChangeRate {
protected:
    Interpolate() : ChangeRate(INTERPOLATE, 8000, 48000) {}
};

TEST_F(Decimate, KeepsChannelsAndDuration) { checkShapes(); }
TEST_F(Interpolate, KeepsChannelsAndDuration) { checkShapes(); }
TEST_F(Decimate, RefusesWhatItCannotReadOrWrite) { checkRefusals(); }
TEST_F(Interpolate, RefusesWhatItCannotReadOrWrite) { checkRefusals(); }
TEST_F(Decimate, LeavesAnEarlierFileAloneOnFailure) { checkEarlierFileStays(); }
TEST_F(Interpolate, LeavesAnEarlierFileAloneOnFailure) { checkEarlierFileStays(); }

// What lies above half the new rate would come back below it: 4.2 kHz at 3.8 kHz, 7 at 1, 9 at 1.
TEST_F(Decimate, PassesVoiceAndStopsWhatWouldFold) {
    const Sound result = changed(sines(48000, 96000, {1000, 3000, 4200, 7000, 9000}, 10000));
    EXPECT_NEAR(0, decibels(amplitude(result, 0, 1000) / 10000), 0.1);
    EXPECT_NEAR(0, decibels(amplitude(result, 1, 3000) / 10000), 0.1);
    EXPECT_LT(decibels(amplitude(result, 2, 3800) / 10000), -50);
    EXPECT_LT(decibels(amplitude(result, 3, 1000) / 10000), -50);
    EXPECT_LT(decibels(amplitude(result, 4, 1000) / 10000), -50);
    // Each channel has a filter of its own: nothing leaks from one to the next.
    EXPECT_LT(amplitude(result, 1, 1000), 1);
    EXPECT_LT(amplitude(result, 0, 3000), 1);
}

// The images stand at the multiples of the old rate, to either side.
TEST_F(Interpolate, KeepsTheLevelAndStopsTheImages) {
    const Sound result = changed(sines(8000, 16000, {1000, 3000}, 10000));
    for (const int channel : {0, 1}) {
        const double frequency = channel == 0 ? 1000 : 3000;
        EXPECT_NEAR(0, decibels(amplitude(result, channel, frequency) / 10000), 0.1);
        for (const double rate : {8000, 16000}) {
            EXPECT_LT(decibels(amplitude(result, channel, rate - frequency) / 10000), -50)
                << rate << " - " << frequency;
            EXPECT_LT(decibels(amplitude(result, channel, rate + frequency) / 10000), -50)
                << rate << " + " << frequency;
        }
    }
    EXPECT_LT(amplitude(result, 0, 3000), 1);
}

// Full scale must not wrap inside the filter.
TEST_F(Decimate, TakesFullScale) {
    EXPECT_NEAR(32767, amplitude(changed(sines(48000, 96000, {1000}, 32767)), 0, 1000), 50);
}
TEST_F(Interpolate, TakesFullScale) {
    EXPECT_NEAR(32767, amplitude(changed(sines(8000, 16000, {1000}, 32767)), 0, 1000), 50);
}

TEST_F(Decimate, SaysWhatItMeasured) {
    const Outcome outcome = run(write("given.wav", wav(sines(48000, 480000, {1000}, 16384))));
    ASSERT_EQ(EXIT_SUCCESS, outcome.code) << outcome.err;
    for (const std::string text :
         {"10.00 s, 48000 Hz, 1 channel\n", "Level before: RMS   -9.0 dBFS, peak   -6.0 dBFS",
          "Level after:  RMS   -9.0 dBFS", "Low-pass of 192 taps at 48000 Hz, cut-off 3600 Hz\n",
          "Sound of 8000 Hz, 80000 samples: ", "100 % filtered\n"}) {
        EXPECT_NE(std::string::npos, outcome.out.find(text)) << text << "\n" << outcome.out;
    }
}

// Down and up again: a voice lies below 4 kHz for the most part, and is then the same but for a
// delay.
TEST_F(Decimate, BringsAVoiceThere) {
    const fs::path voice = "/usr/share/sounds/alsa/Front_Center.wav";
    if (!fs::exists(voice)) GTEST_SKIP() << voice << " comes with Debian's alsa-utils";
    const Outcome down = run(voice);
    ASSERT_EQ(EXIT_SUCCESS, down.code) << down.err;
    const Sound before = readWav(voice), narrow = readWav(sound());
    EXPECT_EQ(8000, narrow.rate);
    EXPECT_EQ((before.samples.size() + 5) / 6, narrow.samples.size());
    EXPECT_NEAR(0, decibels(rms(narrow) / rms(before)), 1);

    const fs::path kept = folder / "narrow.wav";
    fs::rename(sound(), kept);
    program = INTERPOLATE;
    ASSERT_EQ(EXIT_SUCCESS, run(kept).code);
    const Sound after = readWav(sound());
    EXPECT_EQ(48000, after.rate);
    EXPECT_NEAR(0, decibels(rms(after) / rms(narrow)), 0.1);
    // Both filters delay by 95.5 samples of 48 kHz.
    constexpr std::size_t delay = 191;
    double error = 0, signal = 0;
    for (std::size_t n = 0; n + delay < before.samples.size(); ++n) {
        const double x = before.samples[n], difference = after.samples[n + delay] - x;
        error += difference * difference;
        signal += x * x;
    }
    EXPECT_LT(decibels(std::sqrt(error / signal)), -10);
}

}  // namespace
