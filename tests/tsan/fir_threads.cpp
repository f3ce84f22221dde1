// The threaded paths of FIR filters under the thread sanitizer: direct and transformed, both types,
// teams of several sizes, two callers at once. Results are those of one thread.
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

#include "vlqs.h"
#include "vlqs/core.h"

namespace {

std::vector<float> noise(std::size_t count) {
    std::vector<float> values(count);
    unsigned state = 1;
    for (float& v : values) {
        state = state * 1664525u + 1013904223u;
        v = static_cast<float>(state >> 8) * 0x1p-24f;
    }
    return values;
}

// All outputs of a few calls.
std::vector<float> floats(int taps, int len) {
    const auto h = noise(static_cast<std::size_t>(taps)), x = noise(static_cast<std::size_t>(len));
    std::vector<float> y(x.size()), all;
    VlqsFIRState_32f* state = nullptr;
    if (vlqsFIRInitAlloc_32f(&state, h.data(), taps, nullptr) != vlqStsOk) return {};
    for (int call = 0; call < 2; ++call) {
        if (vlqsFIR_32f(x.data(), y.data(), len, state) != vlqStsOk) return {};
        all.insert(all.end(), y.begin(), y.end());
        if (vlqsFIR_32f_I(y.data(), len, state) != vlqStsOk) return {};
        all.insert(all.end(), y.begin(), y.end());
    }
    vlqsFIRFree_32f(state);
    return all;
}

std::vector<float> shorts(int taps, int len) {
    const auto h = noise(static_cast<std::size_t>(taps));
    std::vector<Vlq16s> x, y(static_cast<std::size_t>(len));
    for (const float v : noise(static_cast<std::size_t>(len))) x.push_back(static_cast<Vlq16s>(v * 1000));
    std::vector<float> all;
    VlqsFIRState32f_16s* state = nullptr;
    if (vlqsFIRInitAlloc32f_16s(&state, h.data(), taps, nullptr) != vlqStsOk) return {};
    for (int call = 0; call < 2; ++call) {
        if (vlqsFIR32f_16s_Sfs(x.data(), y.data(), len, state, 3) != vlqStsOk) return {};
        all.insert(all.end(), y.begin(), y.end());
        if (vlqsFIR32f_16s_ISfs(y.data(), len, state, 3) != vlqStsOk) return {};
        all.insert(all.end(), y.begin(), y.end());
    }
    vlqsFIRFree32f_16s(state);
    return all;
}

bool sameBits(const std::vector<float>& a, const std::vector<float>& b) {
    return !a.empty() && a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0;
}

}  // namespace

int main() {
    for (const int taps : {20, 64, 300}) {
        for (const int len : {1601, 2048, 9000}) {
            vlqSetNumThreads(1);
            const auto wantFloats = floats(taps, len), wantShorts = shorts(taps, len);
            for (const int threads : {2, 3, 4}) {
                vlqSetNumThreads(threads);
                bool right = sameBits(wantFloats, floats(taps, len)) && sameBits(wantShorts, shorts(taps, len));
                bool rightBeside = false;
                std::thread other([&] { rightBeside = sameBits(wantFloats, floats(taps, len)); });
                right = right && sameBits(wantShorts, shorts(taps, len));
                other.join();
                if (!right || !rightBeside) {
                    std::printf("%d taps, %d samples, %d threads: results differ\n", taps, len, threads);
                    return 1;
                }
            }
        }
    }
    return 0;
}
