// G.711 companding: every code, every 16-bit sample, floats about each rounding boundary.
#include "limit/compand_ref.h"

#include <sndfile.h>

#include <cmath>

#include "harness/sweep.h"
#include "vlqs/limit.h"

namespace {

using namespace vlqtest;

struct Law {
    const char* name;
    VlqStatus (*decode)(const Vlq8u*, Vlq16s*, Vlq32s);
    VlqStatus (*decodeFloat)(const Vlq8u*, Vlq32f*, Vlq32s);
    VlqStatus (*encode)(const Vlq16s*, Vlq8u*, Vlq32s);
    VlqStatus (*encodeFloat)(const Vlq32f*, Vlq8u*, Vlq32s);
    VlqStatus (*toOther)(const Vlq8u*, Vlq8u*, Vlq32s);
    Vlq16s (*sample)(Vlq8u);
    Vlq8u (*code)(Vlq16s);
    int sndfileFormat;
};
const Law laws[] = {
    {"A-law", vlqsALawToLin_8u16s, vlqsALawToLin_8u32f, vlqsLinToALaw_16s8u, vlqsLinToALaw_32f8u,
     vlqsALawToMuLaw_8u, aLawSampleRef, aLawCodeRef, SF_FORMAT_ALAW},
    {"mu-law", vlqsMuLawToLin_8u16s, vlqsMuLawToLin_8u32f, vlqsLinToMuLaw_16s8u,
     vlqsLinToMuLaw_32f8u, vlqsMuLawToALaw_8u, muLawSampleRef, muLawCodeRef, SF_FORMAT_ULAW},
};

std::vector<Vlq8u> allCodes() {
    std::vector<Vlq8u> codes(256);
    for (std::size_t i = 0; i < codes.size(); ++i) codes[i] = static_cast<Vlq8u>(i);
    return codes;
}
std::vector<Vlq16s> allSamples() {
    std::vector<Vlq16s> samples(65536);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<Vlq16s>(static_cast<int>(i) - 32768);
    return samples;
}

// To the nearest, half away from zero.
Vlq16s roundedRef(Vlq32f x) {
    const long double scaled = 32768.0L * static_cast<long double>(x);
    if (!(scaled < 32767)) return 32767;
    if (scaled < -32768) return -32768;
    return static_cast<Vlq16s>(std::round(scaled));
}

TEST(Compand, EveryCode) {
    const auto codes = allCodes();
    for (const Law& law : laws) {
        SCOPED_TRACE(law.name);
        std::vector<Vlq16s> samples(256);
        std::vector<Vlq32f> floats(256);
        ASSERT_EQ(vlqStsOk, law.decode(codes.data(), samples.data(), 256));
        ASSERT_EQ(vlqStsOk, law.decodeFloat(codes.data(), floats.data(), 256));
        for (std::size_t i = 0; i < 256; ++i) {
            EXPECT_EQ(law.sample(codes[i]), samples[i]) << i;
            EXPECT_EQ(static_cast<Vlq32f>(samples[i]) / 32768.0f, floats[i]) << i;
        }
    }
}

TEST(Compand, KnownValues) {
    const Vlq8u codes[] = {0xD5, 0x55, 0x00, 0x80};
    Vlq16s samples[4];
    ASSERT_EQ(vlqStsOk, vlqsALawToLin_8u16s(codes, samples, 4));
    EXPECT_EQ(8, samples[0]);
    EXPECT_EQ(-8, samples[1]);
    EXPECT_EQ(-5504, samples[2]);
    EXPECT_EQ(5504, samples[3]);
    const Vlq16s ends[] = {32767, -32768, 0, -1};
    Vlq8u code[4];
    ASSERT_EQ(vlqStsOk, vlqsLinToMuLaw_16s8u(ends, code, 4));
    EXPECT_EQ(0x80, code[0]);
    EXPECT_EQ(0x00, code[1]);
    EXPECT_EQ(0xFF, code[2]);
    EXPECT_EQ(0x7F, code[3]);
    const Vlq32f loud[] = {2.0f, -2.0f, INFINITY, -INFINITY, NAN, 0.0f, -0.0f};
    Vlq8u coded[7];
    ASSERT_EQ(vlqStsOk, vlqsLinToALaw_32f8u(loud, coded, 7));
    EXPECT_EQ(aLawCodeRef(32767), coded[0]);
    EXPECT_EQ(aLawCodeRef(-32768), coded[1]);
    EXPECT_EQ(aLawCodeRef(32767), coded[2]);
    EXPECT_EQ(aLawCodeRef(-32768), coded[3]);
    EXPECT_EQ(aLawCodeRef(32767), coded[4]);
    EXPECT_EQ(0xD5, coded[5]);
    EXPECT_EQ(0xD5, coded[6]);
}

// A decoded code is coded as itself, but for the negative zero of mu-law.
TEST(Compand, RoundTrip) {
    const auto codes = allCodes();
    for (const Law& law : laws) {
        std::vector<Vlq16s> samples(256);
        std::vector<Vlq32f> floats(256);
        std::vector<Vlq8u> back(256), backFromFloat(256);
        law.decode(codes.data(), samples.data(), 256);
        law.decodeFloat(codes.data(), floats.data(), 256);
        law.encode(samples.data(), back.data(), 256);
        law.encodeFloat(floats.data(), backFromFloat.data(), 256);
        for (std::size_t i = 0; i < 256; ++i) {
            const bool isNegativeZero = samples[i] == 0 && codes[i] == 0x7F;
            EXPECT_EQ(isNegativeZero ? 0xFF : codes[i], back[i]) << law.name << ' ' << i;
            EXPECT_EQ(back[i], backFromFloat[i]) << law.name << ' ' << i;
        }
    }
}

TEST(Compand, EverySample) {
    const auto samples = allSamples();
    for (const Law& law : laws) {
        std::vector<Vlq8u> codes(samples.size());
        ASSERT_EQ(vlqStsOk, law.encode(samples.data(), codes.data(), 65536));
        for (std::size_t i = 0; i < samples.size(); ++i)
            ASSERT_EQ(law.code(samples[i]), codes[i]) << law.name << ' ' << samples[i];
    }
}

// Floats about each half between two samples, and random ones.
TEST(Compand, Floats) {
    std::vector<Vlq32f> x;
    for (int i = -33000; i <= 33000; ++i) {
        const auto half = (static_cast<Vlq32f>(i) + 0.5f) / 32768;
        x.insert(x.end(), {std::nextafter(half, -2.0f), half, std::nextafter(half, 2.0f)});
    }
    Rng rng(seed());
    for (int i = 0; i < 100000; ++i) x.push_back(extremeValue<Vlq32f>(rng) / 32768);
    for (const Law& law : laws) {
        std::vector<Vlq8u> codes(x.size());
        ASSERT_EQ(vlqStsOk, law.encodeFloat(x.data(), codes.data(), static_cast<int>(x.size())));
        for (std::size_t i = 0; i < x.size(); ++i)
            ASSERT_EQ(law.code(roundedRef(x[i])), codes[i]) << law.name << ' ' << x[i];
    }
}

TEST(Compand, FromOneLawToTheOther) {
    const auto codes = allCodes();
    std::vector<Vlq8u> toMu(256), toA(256);
    ASSERT_EQ(vlqStsOk, vlqsALawToMuLaw_8u(codes.data(), toMu.data(), 256));
    ASSERT_EQ(vlqStsOk, vlqsMuLawToALaw_8u(codes.data(), toA.data(), 256));
    int differences = 0;
    for (std::size_t i = 0; i < 256; ++i) {
        const int a = codes[i] ^ 0x55, mu = codes[i] ^ 0xFF;
        const int sign = codes[i] & 0x80;
        EXPECT_EQ((sign | 0x7F) - kALawToMuLaw[a & 0x7F], toMu[i]) << i;
        EXPECT_EQ((sign | (kMuLawToALaw[mu & 0x7F] - 1)) ^ 0x55, toA[i]) << i;
        differences += toMu[i] != muLawCodeRef(aLawSampleRef(codes[i]));
        differences += toA[i] != aLawCodeRef(muLawSampleRef(codes[i]));
    }
    // The tables are not the same as decoding and coding again.
    EXPECT_GT(differences, 20);
    EXPECT_LT(differences, 100);
    // In place.
    auto inPlace = codes;
    ASSERT_EQ(vlqStsOk, vlqsALawToMuLaw_8u(inPlace.data(), inPlace.data(), 256));
    EXPECT_EQ(toMu, inPlace);
}

TEST(Compand, LengthsAndAlignments) {
    for (const Law& law : laws) {
        sweep(1, {5003}, [&](Case& c) {
            const auto n = static_cast<std::size_t>(c.len);
            const auto codes = extremeVector<Vlq8u>(n, c.rng);
            const auto samples = extremeVector<Vlq16s>(n, c.rng);
            const Buffer<Vlq8u> src8(codes, c.place[1]);
            const Buffer<Vlq16s> src16(samples, c.place[2]);
            std::vector<Vlq16s> want16(n);
            std::vector<Vlq32f> want32(n), floats(n);
            std::vector<Vlq8u> want8(n);
            for (std::size_t i = 0; i < n; ++i) {
                want16[i] = law.sample(codes[i]);
                want32[i] = static_cast<Vlq32f>(want16[i]) / 32768;
                want8[i] = law.code(samples[i]);
                floats[i] = static_cast<Vlq32f>(samples[i]) / 32768;
            }
            const Buffer<Vlq32f> srcFloat(floats, c.place[3]);
            Buffer<Vlq16s> dst16(n, c.place[0]);
            Buffer<Vlq32f> dst32(n, c.place[0]);
            Buffer<Vlq8u> dst8(n, c.place[0]);
            ASSERT_EQ(vlqStsOk, law.decode(src8.data(), dst16.data(), c.len));
            ASSERT_TRUE(same(dst16, want16));
            ASSERT_EQ(vlqStsOk, law.decodeFloat(src8.data(), dst32.data(), c.len));
            ASSERT_TRUE(same(dst32, want32));
            ASSERT_EQ(vlqStsOk, law.encode(src16.data(), dst8.data(), c.len));
            ASSERT_TRUE(same(dst8, want8));
            dst8.assign(codes);
            ASSERT_EQ(vlqStsOk, law.encodeFloat(srcFloat.data(), dst8.data(), c.len));
            ASSERT_TRUE(same(dst8, want8));
            ASSERT_EQ(vlqStsOk, law.toOther(src8.data(), dst8.data(), c.len));
            ASSERT_TRUE(dst8.marginsIntact());
        });
    }
}

TEST(Compand, Statuses) {
    Vlq8u codes[2] = {1, 2};
    Vlq16s samples[2] = {3, 4};
    Vlq32f floats[2] = {5, 6};
    for (const Law& law : laws) {
        EXPECT_EQ(vlqStsNullPtr, law.decode(nullptr, samples, 0));
        EXPECT_EQ(vlqStsNullPtr, law.decode(codes, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, law.decode(codes, samples, 0));
        EXPECT_EQ(vlqStsNullPtr, law.decodeFloat(nullptr, floats, 0));
        EXPECT_EQ(vlqStsNullPtr, law.decodeFloat(codes, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, law.decodeFloat(codes, floats, -1));
        EXPECT_EQ(vlqStsNullPtr, law.encode(nullptr, codes, 0));
        EXPECT_EQ(vlqStsNullPtr, law.encode(samples, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, law.encode(samples, codes, 0));
        EXPECT_EQ(vlqStsNullPtr, law.encodeFloat(nullptr, codes, 0));
        EXPECT_EQ(vlqStsNullPtr, law.encodeFloat(floats, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, law.encodeFloat(floats, codes, 0));
        EXPECT_EQ(vlqStsNullPtr, law.toOther(nullptr, codes, 0));
        EXPECT_EQ(vlqStsNullPtr, law.toOther(codes, nullptr, 0));
        EXPECT_EQ(vlqStsBadSize, law.toOther(codes, codes, 0));
    }
    EXPECT_EQ(1, codes[0]);
    EXPECT_EQ(3, samples[0]);
    EXPECT_EQ(5, floats[0]);
}

// An independent coder. It has a code for every sample, too, but takes the magnitude of a negative
// sample as it is (a shift towards zero) where the contract takes the one's complement: so samples
// at the boundary of an interval, and only they, may get the next code.
TEST(Compand, AgreesWithLibsndfile) {
    const auto samples = allSamples();
    for (const Law& law : laws) {
        SCOPED_TRACE(law.name);
        const std::string path = ::testing::TempDir() + "vlqs_compand.raw";
        SF_INFO info{};
        info.samplerate = 8000;
        info.channels = 1;
        info.format = SF_FORMAT_RAW | law.sndfileFormat;
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        ASSERT_NE(nullptr, file);
        ASSERT_EQ(65536, sf_write_short(file, samples.data(), 65536));
        sf_close(file);
        std::vector<Vlq8u> theirs(65536), ours(65536);
        std::FILE* raw = std::fopen(path.c_str(), "rb");
        ASSERT_NE(nullptr, raw);
        ASSERT_EQ(65536u, std::fread(theirs.data(), 1, 65536, raw));
        std::fclose(raw);
        law.encode(samples.data(), ours.data(), 65536);
        for (std::size_t i = 0; i < 65536; ++i) {
            if (ours[i] == theirs[i]) continue;
            // Explained: the sample above in magnitude has our code, or the one below has theirs.
            ASSERT_LT(samples[i], 0) << i;
            const bool atBoundary =
                theirs[i] == law.code(static_cast<Vlq16s>(std::max(samples[i] - 1, -32768))) ||
                theirs[i] == law.code(static_cast<Vlq16s>(samples[i] + 1));
            ASSERT_TRUE(atBoundary) << samples[i] << ' ' << int(ours[i]) << ' ' << int(theirs[i]);
        }
        const auto codes = allCodes();
        raw = std::fopen(path.c_str(), "wb");
        std::fwrite(codes.data(), 1, 256, raw);
        std::fclose(raw);
        info = {};
        info.samplerate = 8000;
        info.channels = 1;
        info.format = SF_FORMAT_RAW | law.sndfileFormat;
        file = sf_open(path.c_str(), SFM_READ, &info);
        ASSERT_NE(nullptr, file);
        std::vector<Vlq16s> decoded(256), oursDecoded(256);
        ASSERT_EQ(256, sf_read_short(file, decoded.data(), 256));
        sf_close(file);
        std::remove(path.c_str());
        law.decode(codes.data(), oursDecoded.data(), 256);
        EXPECT_EQ(decoded, oursDecoded);
    }
}

}  // namespace
