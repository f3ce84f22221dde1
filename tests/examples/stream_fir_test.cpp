// Runs the example as a user does, on sounds made here, and looks at all that it leaves behind.
#include "examples/example_test.h"

#include <png.h>

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

namespace {

using namespace vlqtest;

class StreamFir : public ExampleTest {
protected:
    StreamFir() : ExampleTest(STREAM_FIR) {}

    Outcome run(const fs::path& input) const {
        return wait(start({input.string(), sound().string(), picture().string()}));
    }

    fs::path picture() const { return folder / "out" / "picture.png"; }

    void expectRefused(const fs::path& input, const std::string& reason) const {
        expectRefusal(run(input), input.string(), reason);
    }

    void checkShape(const Sound& given) const {
        const Outcome outcome = run(write("given.wav", wav(given)));
        ASSERT_EQ(EXIT_SUCCESS, outcome.code) << outcome.err;
        EXPECT_EQ("", outcome.err);
        EXPECT_EQ(2u, left().size());
        const Sound result = readWav(sound());
        EXPECT_EQ(given.rate, result.rate);
        EXPECT_EQ(given.channels, result.channels);
        EXPECT_EQ(16, result.bits);
        EXPECT_EQ(given.samples.size(), result.samples.size());
    }

    // Starts the program with a standard output that takes nothing, so that it stops in the middle
    // of its work, does something to it there, and returns how it ended.
    Outcome disturb(const std::function<void(pid_t, int)>& disturbance) const {
        const fs::path input = write("given.wav", wav(noise(8000, 60000, 1)));
        int ends[2];
        EXPECT_EQ(0, pipe2(ends, O_CLOEXEC));
        fcntl(ends[1], F_SETFL, O_NONBLOCK);
        const std::array<char, 512> filling{};
        while (::write(ends[1], filling.data(), filling.size()) > 0) {}
        while (::write(ends[1], filling.data(), 1) > 0) {}
        fcntl(ends[1], F_SETFL, 0);

        const pid_t child = start({input.string(), sound().string(), picture().string()}, ends[1]);
        close(ends[1]);
        for (int i = 0; i < 2000 && left().size() < 2; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        EXPECT_EQ(2u, left().size());
        EXPECT_FALSE(fs::exists(sound()));
        EXPECT_FALSE(fs::exists(picture()));
        disturbance(child, ends[0]);
        const Outcome outcome = wait(child);
        return outcome;
    }
};

TEST_F(StreamFir, KeepsLengthChannelsAndRate) {
    checkShape(noise(8000, 40001, 1));
    checkShape(noise(44100, 20480, 2));
    checkShape(noise(16000, 4097, 6));
    checkShape(noise(4000, 1, 1));
    checkShape(Sound{48000, 1, 16, std::vector<std::int16_t>(1000)});
}

TEST_F(StreamFir, PassesVoiceAndStopsWhatLiesAbove) {
    const Sound given = sines(48000, 48000, {1000, 8000, 2000}, 10000);
    ASSERT_EQ(EXIT_SUCCESS, run(write("given.wav", wav(given))).code);
    const Sound result = readWav(sound());
    ASSERT_EQ(given.samples.size(), result.samples.size());
    EXPECT_NEAR(0, 20 * std::log10(amplitude(result, 0, 1000) / 10000), 0.1);
    EXPECT_LT(20 * std::log10(amplitude(result, 1, 8000) / 10000), -50);
    EXPECT_NEAR(0, 20 * std::log10(amplitude(result, 2, 2000) / 10000), 0.1);
    // Each channel has a filter of its own: nothing leaks from one to the next.
    EXPECT_LT(amplitude(result, 0, 2000), 1);
    EXPECT_LT(amplitude(result, 1, 1000), 1);
    EXPECT_LT(amplitude(result, 2, 1000), 1);
}

TEST_F(StreamFir, SaysWhatItMeasured) {
    const Outcome outcome = run(write("given.wav", wav(sines(8000, 80000, {1000}, 16384))));
    ASSERT_EQ(EXIT_SUCCESS, outcome.code) << outcome.err;
    const auto says = [&](const std::string& text) {
        return outcome.out.find(text) != std::string::npos;
    };
    EXPECT_TRUE(says("10.00 s, 8000 Hz, 1 channel\n")) << outcome.out;
    EXPECT_TRUE(says("Level before: RMS   -9.0 dBFS, peak   -6.0 dBFS")) << outcome.out;
    EXPECT_TRUE(says("Level after:  RMS   -9.0 dBFS")) << outcome.out;
    EXPECT_TRUE(says("between the two results: 0 of") || says("between the two results: 1 of"))
        << outcome.out;
    EXPECT_TRUE(says("Blocks of  160 samples: 10.00 s")) << outcome.out;
    EXPECT_TRUE(says("Blocks of 4096 samples: 10.00 s")) << outcome.out;
    EXPECT_TRUE(says(picture().string())) << outcome.out;
    // The progress bar is for terminals.
    EXPECT_EQ(std::string::npos, outcome.out.find('\r'));
    EXPECT_TRUE(says("100 % filtered\n")) << outcome.out;
}

TEST_F(StreamFir, DrawsBothSpectra) {
    ASSERT_EQ(EXIT_SUCCESS, run(write("given.wav", wav(noise(48000, 96000, 1)))).code);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    ASSERT_NE(0, png_image_begin_read_from_file(&image, picture().c_str()));
    image.format = PNG_FORMAT_RGB;
    ASSERT_EQ(1000u, image.width);
    ASSERT_EQ(600u, image.height);
    std::vector<std::array<unsigned char, 3>> pixels(image.width * image.height);
    ASSERT_NE(0, png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr));

    // Mean height of a colour below the legend and right of the slope, 6 kHz of 24.
    const auto meanRow = [&](std::array<unsigned char, 3> colour) {
        double sum = 0, count = 0;
        for (std::size_t y = 100; y < 520; ++y) {
            for (std::size_t x = 320; x < 970; ++x) {
                if (pixels[y * 1000 + x] != colour) continue;
                sum += static_cast<double>(y);
                ++count;
            }
        }
        EXPECT_GT(count, 500) << "the curve is missing";
        return sum / count;
    };
    const double before = meanRow({240, 138, 36}), after = meanRow({24, 90, 189});
    EXPECT_GT(after, before + 150) << "the filter must be seen";
}

TEST_F(StreamFir, RefusesWhatItCannotRead) {
    const std::string whole = wav(noise(8000, 5000, 1));
    expectRefused(folder / "missing.wav", "does not exist");
    expectRefused(folder, "is not a file");
    expectRefused(write("empty.wav", ""), "is empty");
    expectRefused(write("text.wav", "These are words, and nobody can hear them.\n"),
                  "is not a WAV file");
    expectRefused(write("short.wav", "RIFF"), "is not a WAV file");
    expectRefused(write("truncated.wav", whole.substr(0, 5000)), "cut short");
    expectRefused(write("one_byte_missing.wav", whole.substr(0, whole.size() - 1)), "cut short");
    expectRefused(write("header.wav", whole.substr(0, 40)), "cut short");
    expectRefused(write("silent.wav", wav(noise(8000, 0, 1))), "holds no samples");
    const Sound deep{8000, 1, 24, {}};
    expectRefused(write("deep.wav", wavHeader(deep, 3000) + std::string(3000, 'x')), "24 bit");
    const Sound shallow{8000, 1, 8, {}};
    expectRefused(write("shallow.wav", wavHeader(shallow, 3000) + std::string(3000, 'x')), "8 bit");
}

TEST_F(StreamFir, RefusesWhatItCannotWrite) {
    const std::string input = write("given.wav", wav(noise(8000, 5000, 1))).string();
    const std::string nowhere = (folder / "no folder" / "file").string();
    expectRefusal(wait(start({input, nowhere, picture().string()})), nowhere, "cannot be written");
    expectRefusal(wait(start({input, sound().string(), nowhere})), nowhere, "cannot be written");
    expectRefusal(wait(start({input, folder.string(), picture().string()})), folder.string(),
                  "not a file");
    expectRefusal(wait(start({input, sound().string(), sound().string()})), "",
                  "names of their own");
}

TEST_F(StreamFir, LeavesEarlierFilesAloneOnFailure) {
    write("out/sound.wav", "earlier sound");
    write("out/picture.png", "earlier picture");
    EXPECT_EQ(EXIT_FAILURE, run(write("cut.wav", wav(noise(8000, 5000, 1)).substr(0, 3000))).code);
    EXPECT_EQ("earlier sound", readFile(sound()));
    EXPECT_EQ("earlier picture", readFile(picture()));
    EXPECT_EQ(2u, left().size());
    EXPECT_EQ(EXIT_SUCCESS, run(write("whole.wav", wav(noise(8000, 5000, 1)))).code);
    EXPECT_EQ(10044u, fs::file_size(sound()));
    EXPECT_EQ(2u, left().size());
}

TEST_F(StreamFir, LeavesNothingWhenItIsStopped) {
    const Outcome terminated = disturb([](pid_t child, int readEnd) {
        kill(child, SIGTERM);
        close(readEnd);
    });
    EXPECT_EQ(-SIGTERM, terminated.code);
    EXPECT_EQ(std::vector<std::string>{}, left());

    const Outcome unheard = disturb([](pid_t, int readEnd) { close(readEnd); });
    EXPECT_EQ(-SIGPIPE, unheard.code);
    EXPECT_EQ(std::vector<std::string>{}, left());
}

TEST_F(StreamFir, AsksForThreeNames) {
    const Outcome outcome = wait(start({"given.wav"}));
    EXPECT_EQ(EXIT_FAILURE, outcome.code);
    EXPECT_EQ(0u, outcome.err.find("Usage: "));
}

TEST_F(StreamFir, NeedsNoMoreMemoryForLongSounds) {
    constexpr int rate = 48000;
    const Sound second = noise(rate, rate, 2);
    const std::string bytes = wav(second).substr(44);
    const auto peak = [&](std::size_t seconds) {
        {
            std::ofstream file(folder / "given.wav", std::ios::binary);
            file << wavHeader(second, bytes.size() * seconds);
            for (std::size_t i = 0; i < seconds; ++i) file << bytes;
        }
        const Outcome outcome = run(folder / "given.wav");
        EXPECT_EQ(EXIT_SUCCESS, outcome.code) << outcome.err;
        EXPECT_EQ(44 + bytes.size() * seconds, fs::file_size(sound()));
        return outcome.peakBytes;
    };
    // What is measured is never less than this program's own memory at the start, so that must be
    // less than the long sound; otherwise a program that holds all of it could pass.
    rusage own{};
    getrusage(RUSAGE_SELF, &own);
    ASSERT_LT(own.ru_maxrss * 1024, static_cast<long>(300 * bytes.size()));

    const long few = peak(5), many = peak(300);
    EXPECT_LT(many, few + 1000000);
}

}  // namespace
