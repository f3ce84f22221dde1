// Runs the G.711 transcoder as a user does, on sounds made here.
#include "examples/example_test.h"
#include "limit/compand_ref.h"

namespace {

using namespace vlqtest;

class TranscodeG711 : public ExampleTest {
protected:
    TranscodeG711() : ExampleTest(TRANSCODE_G711) {}

    // Returns the bytes of the file that the program writes.
    std::string transcoded(const std::string& format, const std::string& bytes) const {
        fs::remove(sound());
        const Outcome outcome =
            wait(start({format, write("given.wav", bytes).string(), sound().string()}));
        EXPECT_EQ(EXIT_SUCCESS, outcome.code) << outcome.err;
        EXPECT_EQ("", outcome.err);
        return readFile(sound());
    }
    // The bytes of its data chunk.
    static std::string data(const std::string& bytes) {
        for (std::size_t at = 12; at + 8 <= bytes.size(); at += 8 + number(bytes, at + 4, 4))
            if (bytes.substr(at, 4) == "data")
                return bytes.substr(at + 8, number(bytes, at + 4, 4));
        return {};
    }
};

// Signal and error of a sound that went through a law, in dB.
double errorRatio(const Sound& before, const Sound& after) {
    double signal = 0, error = 0;
    for (std::size_t i = 0; i < before.samples.size(); ++i) {
        const double x = before.samples[i], e = after.samples.at(i) - x;
        signal += x * x;
        error += e * e;
    }
    return 10 * std::log10(signal / error);
}

TEST_F(TranscodeG711, KeepsTheErrorBelowTheSignalAtEveryLevel) {
    for (const std::string law : {"a", "mu"}) {
        for (const double dB : {0.0, -10.0, -20.0, -30.0, -40.0}) {
            const Sound before = sines(8000, 8000, {1003}, 32767 * std::pow(10, dB / 20));
            transcoded("linear", transcoded(law, wav(before)));
            const Sound after = readWav(sound());
            EXPECT_EQ(8000, after.rate);
            ASSERT_EQ(before.samples.size(), after.samples.size());
            EXPECT_GT(errorRatio(before, after), 33) << law << ' ' << dB;
            EXPECT_LT(errorRatio(before, after), 43) << law << ' ' << dB;
        }
    }
}

TEST_F(TranscodeG711, WritesTheCodesOfTheStandard) {
    const Sound given = noise(8000, 10001, 2);
    const std::string bytes = wav(given);
    const std::string a = data(transcoded("a", bytes)), mu = data(transcoded("mu", bytes));
    ASSERT_EQ(given.samples.size(), a.size());
    ASSERT_EQ(given.samples.size(), mu.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(aLawCodeRef(given.samples[i]), static_cast<Vlq8u>(a[i])) << i;
        ASSERT_EQ(muLawCodeRef(given.samples[i]), static_cast<Vlq8u>(mu[i])) << i;
    }
}

// From law to law by the tables, and a file in its own format byte for byte.
TEST_F(TranscodeG711, GoesFromLawToLaw) {
    const std::string mu = transcoded("mu", wav(noise(8000, 5000, 1)));
    const std::string codes = data(mu), a = data(transcoded("a", mu));
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const int code = static_cast<Vlq8u>(codes[i]);
        const int pair = ((code & 0x80) | (kMuLawToALaw[(code ^ 0xFF) & 0x7F] - 1)) ^ 0x55;
        ASSERT_EQ(pair, static_cast<Vlq8u>(a[i])) << i;
    }
    EXPECT_EQ(codes, data(transcoded("mu", mu)));
}

TEST_F(TranscodeG711, RefusesWhatItCannotReadOrWrite) {
    const auto run = [&](const std::string& format, const fs::path& input) {
        return wait(start({format, input.string(), sound().string()}));
    };
    const fs::path whole = write("given.wav", wav(noise(8000, 5000, 1)));
    expectRefusal(run("b", whole), "b", "is not a format");
    expectRefusal(run("a", folder / "missing.wav"), "missing.wav", "does not exist");
    const Sound deep{8000, 1, 24, {}};
    expectRefusal(run("a", write("deep.wav", wavHeader(deep, 3000) + std::string(3000, 'x'))),
                  "deep.wav", "24 bit");
    const Outcome usage = wait(start({"a", whole.string()}));
    EXPECT_EQ(EXIT_FAILURE, usage.code);
    EXPECT_EQ(0u, usage.err.find("Usage: transcode_g711 a|mu|linear INPUT.wav OUTPUT.wav\n"));
}

}  // namespace
