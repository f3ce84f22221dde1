// Runs an example as a user does, on sounds made here, and looks at all that it leaves behind.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <vector>

#include "harness/random.h"

namespace vlqtest {

namespace fs = std::filesystem;

struct Sound {
    int rate = 0, channels = 0, bits = 16;
    std::vector<std::int16_t> samples;
};

inline void append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 255);
}

// The header of a WAV file whose samples take `bytes` bytes.
inline std::string wavHeader(const Sound& sound, std::size_t bytes) {
    const auto rate = static_cast<std::uint32_t>(sound.rate);
    const auto frame = static_cast<std::uint32_t>(sound.channels * sound.bits / 8);
    const auto size = static_cast<std::uint32_t>(bytes);
    std::string header = "RIFF";
    append(header, size + 36, 4);
    header += "WAVEfmt ";
    append(header, 16, 4);
    append(header, 1, 2);
    append(header, static_cast<std::uint32_t>(sound.channels), 2);
    append(header, rate, 4);
    append(header, rate * frame, 4);
    append(header, frame, 2);
    append(header, static_cast<std::uint32_t>(sound.bits), 2);
    header += "data";
    append(header, size, 4);
    return header;
}

inline std::string wav(const Sound& sound) {
    std::string bytes = wavHeader(sound, sound.samples.size() * 2);
    for (const std::int16_t sample : sound.samples)
        append(bytes, static_cast<std::uint16_t>(sample), 2);
    return bytes;
}

inline std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::uint32_t number(const std::string& bytes, std::size_t at, int count) {
    std::uint32_t value = 0;
    while (count-- > 0)
        value =
            value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(count)));
    return value;
}

// Reads a WAV file that the program wrote; one without format or samples has no channels.
inline Sound readWav(const fs::path& path) {
    const std::string bytes = readFile(path);
    Sound sound;
    for (std::size_t at = 12; at + 8 <= bytes.size(); at += 8 + number(bytes, at + 4, 4)) {
        const std::string id = bytes.substr(at, 4);
        if (id == "fmt ") {
            sound.channels = static_cast<int>(number(bytes, at + 10, 2));
            sound.rate = static_cast<int>(number(bytes, at + 12, 4));
            sound.bits = static_cast<int>(number(bytes, at + 22, 2));
        } else if (id == "data") {
            for (std::size_t i = at + 8; i < at + 8 + number(bytes, at + 4, 4); i += 2)
                sound.samples.push_back(static_cast<std::int16_t>(number(bytes, i, 2)));
        }
    }
    return sound;
}

// A sound whose channel c holds a sine of frequencies[c].
inline Sound sines(int rate, int frames, const std::vector<double>& frequencies, double amplitude) {
    Sound sound{rate, static_cast<int>(frequencies.size()), 16, {}};
    for (int n = 0; n < frames; ++n) {
        for (const double frequency : frequencies)
            sound.samples.push_back(static_cast<std::int16_t>(
                std::lround(amplitude * std::sin(2 * std::numbers::pi * frequency * n / rate))));
    }
    return sound;
}

inline Sound noise(int rate, int frames, int channels) {
    Sound sound{rate, channels, 16, {}};
    vlqtest::Rng rng(vlqtest::seed());
    const auto count = static_cast<std::size_t>(frames * channels);
    sound.samples = vlqtest::uniformVector<std::int16_t>(count, -12000, 12000, rng);
    return sound;
}

// Amplitude of a frequency in one channel, past the first tenth of a second, where the filter
// fills.
inline double amplitude(const Sound& sound, int channel, double frequency) {
    double re = 0, im = 0;
    const int frames = static_cast<int>(sound.samples.size()) / sound.channels,
              skipped = sound.rate / 10;
    for (int n = skipped; n < frames; ++n) {
        const double turn = 2 * std::numbers::pi * frequency * n / sound.rate;
        const double sample = sound.samples[static_cast<std::size_t>(n * sound.channels + channel)];
        re += sample * std::cos(turn);
        im += sample * std::sin(turn);
    }
    return 2 * std::hypot(re, im) / (frames - skipped);
}

struct Outcome {
    int code = -1;  // exit code, or minus the signal
    std::string out, err;
    long peakBytes = 0;  // resident memory; not below this program's own at the time of the start
};

// The tests of one program. Its files lie in a folder of their own for each test, its results in
// "out".
class ExampleTest : public testing::Test {
protected:
    explicit ExampleTest(std::string path) : program(std::move(path)) {}
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "vlqs_example_XXXXXX").string();
        ASSERT_NE(nullptr, mkdtemp(pattern.data()));
        folder = pattern;
        fs::create_directory(folder / "out");
    }
    void TearDown() override { fs::remove_all(folder); }

    fs::path write(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return folder / name;
    }

    // Starts the program; with `standardOutput` that descriptor is its standard output.
    pid_t start(const std::vector<std::string>& arguments, int standardOutput = -1) const {
        std::vector<std::string> words{program};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> pointers;
        for (std::string& word : words) pointers.push_back(word.data());
        pointers.push_back(nullptr);
        const std::string out = folder / "stdout", err = folder / "stderr";

        const pid_t child = fork();
        if (child != 0) return child;
        const auto create = [](const std::string& path) {
            return open(path.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
        };
        dup2(standardOutput >= 0 ? standardOutput : create(out), STDOUT_FILENO);
        dup2(create(err), STDERR_FILENO);
        execv(program.c_str(), pointers.data());
        _exit(127);
    }

    Outcome wait(pid_t child) const {
        int status = 0;
        rusage usage{};
        EXPECT_EQ(child, wait4(child, &status, 0, &usage));
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
                readFile(folder / "stdout"), readFile(folder / "stderr"), usage.ru_maxrss * 1024};
    }

    fs::path sound() const { return folder / "out" / "sound.wav"; }

    std::vector<std::string> left() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder / "out"))
            names.push_back(entry.path().filename());
        return names;
    }

    // A refusal: a failing exit code, one sentence that names `named`, and no files.
    void expectRefusal(const Outcome& outcome, const std::string& named,
                       const std::string& reason) const {
        EXPECT_EQ(EXIT_FAILURE, outcome.code);
        EXPECT_NE(std::string::npos, outcome.err.find(named)) << outcome.err;
        EXPECT_NE(std::string::npos, outcome.err.find(reason)) << outcome.err;
        ASSERT_GE(outcome.err.size(), 2u);
        EXPECT_EQ(outcome.err.size() - 1, outcome.err.find('\n'))
            << "not one line: " << outcome.err;
        EXPECT_EQ(".\n", outcome.err.substr(outcome.err.size() - 2));
        EXPECT_EQ(std::vector<std::string>{}, left());
    }

    std::string program;
    fs::path folder;
};

}  // namespace vlqtest
