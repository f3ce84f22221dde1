// The threaded paths of FIR filters under the thread sanitizer: every arithmetic and type of
// samples, with a record and without, direct and transformed, teams of several sizes, two callers
// at once. Results are those of one thread.
#include <atomic>
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

#include "vlqs.h"
#include "vlqs/core.h"

namespace {

std::atomic<Vlq32s> threadCount{1};
void setThreads(Vlq32s count) { threadCount = count; }

}  // namespace

// In the core library's place: more threads than there are processors.
Vlq32s ownGetNumThreads() { return threadCount; }

namespace {

// Values in [0, scale).
template <class T>
void fill(T* values, std::size_t count, float scale) {
    unsigned state = 1;
    for (std::size_t i = 0; i < count; ++i) {
        state = state * 1664525u + 1013904223u;
        values[i] = static_cast<T>(static_cast<float>(state >> 8) * 0x1p-24f * scale);
    }
}
template <class Value>
std::vector<Value> noise(int count, float scale) {
    std::vector<Value> values(static_cast<std::size_t>(count));
    if constexpr (requires(Value v) { v.re; })
        fill(&values.data()->re, 2 * values.size(), scale);
    else
        fill(values.data(), values.size(), scale);
    return values;
}
template <class Sample>
constexpr float kScale = sizeof(Sample) == 2 || std::is_same_v<Sample, Vlq16sc> ? 1000.0f : 1.0f;

using Bytes = std::vector<unsigned char>;
template <class Sample>
void append(Bytes& all, const std::vector<Sample>& y) {
    const auto* p = reinterpret_cast<const unsigned char*>(y.data());
    all.insert(all.end(), p, p + y.size() * sizeof(Sample));
}

// All outputs of a few calls, out of place and in place; nothing if one fails. scale stands for the
// scale factor of the forms that have one.
template <class State, class Tap, class Sample, class... Scale>
Bytes record(VlqStatus (*init)(State**, const Tap*, Vlq32s, const Sample*),
             VlqStatus (*release)(State*),
             VlqStatus (*block)(const Sample*, Sample*, Vlq32s, State*, Scale...),
             VlqStatus (*inPlace)(Sample*, Vlq32s, State*, Scale...), int taps, int len,
             Scale... scale) {
    const auto h = noise<Tap>(taps, 1);
    const auto x = noise<Sample>(len, kScale<Sample>);
    auto y = x;
    Bytes all;
    State* state = nullptr;
    if (init(&state, h.data(), taps, nullptr) != vlqStsOk) return {};
    for (int call = 0; call < 2; ++call) {
        if (block(x.data(), y.data(), len, state, scale...) != vlqStsOk) return {};
        append(all, y);
        y = x;
        if (inPlace(y.data(), len, state, scale...) != vlqStsOk) return {};
        append(all, y);
    }
    release(state);
    return all;
}
// The same without a record.
template <class Tap, class Sample>
Bytes external(VlqStatus (*block)(const Sample*, Sample*, Vlq32s, const Tap*, Vlq32s, Sample*,
                                  Vlq32s*),
               VlqStatus (*inPlace)(Sample*, Vlq32s, const Tap*, Vlq32s, Sample*, Vlq32s*),
               int taps, int len) {
    const auto h = noise<Tap>(taps, 1);
    const auto x = noise<Sample>(len, 1);
    auto y = x;
    std::vector<Sample> line(static_cast<std::size_t>(2 * taps));
    Vlq32s index = 0;
    Bytes all;
    if (block(x.data(), y.data(), len, h.data(), taps, line.data(), &index) != vlqStsOk) return {};
    append(all, y);
    if (inPlace(y.data(), len, h.data(), taps, line.data(), &index) != vlqStsOk) return {};
    append(all, y);
    append(all, line);
    return all;
}

struct Form {
    const char* name;
    Bytes (*run)(int taps, int len);
};
constexpr Vlq32s kShift = 3;
const Form kForms[] = {
    {"32f",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc_32f, vlqsFIRFree_32f, vlqsFIR_32f, vlqsFIR_32f_I, n, len);
     }},
    {"32fc",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc_32fc, vlqsFIRFree_32fc, vlqsFIR_32fc, vlqsFIR_32fc_I, n,
                       len);
     }},
    {"64f",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc_64f, vlqsFIRFree_64f, vlqsFIR_64f, vlqsFIR_64f_I, n, len);
     }},
    {"64fc",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc_64fc, vlqsFIRFree_64fc, vlqsFIR_64fc, vlqsFIR_64fc_I, n,
                       len);
     }},
    {"32f_16s",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc32f_16s, vlqsFIRFree32f_16s, vlqsFIR32f_16s_Sfs,
                       vlqsFIR32f_16s_ISfs, n, len, kShift);
     }},
    {"32fc_16sc",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc32fc_16sc, vlqsFIRFree32fc_16sc, vlqsFIR32fc_16sc_Sfs,
                       vlqsFIR32fc_16sc_ISfs, n, len, kShift);
     }},
    {"64f_32f",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc64f_32f, vlqsFIRFree64f_32f, vlqsFIR64f_32f,
                       vlqsFIR64f_32f_I, n, len);
     }},
    {"64f_32s",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc64f_32s, vlqsFIRFree64f_32s, vlqsFIR64f_32s_Sfs,
                       vlqsFIR64f_32s_ISfs, n, len, -kShift);
     }},
    {"64f_16s",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc64f_16s, vlqsFIRFree64f_16s, vlqsFIR64f_16s_Sfs,
                       vlqsFIR64f_16s_ISfs, n, len, kShift);
     }},
    {"64fc_32fc",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc64fc_32fc, vlqsFIRFree64fc_32fc, vlqsFIR64fc_32fc,
                       vlqsFIR64fc_32fc_I, n, len);
     }},
    {"64fc_32sc",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc64fc_32sc, vlqsFIRFree64fc_32sc, vlqsFIR64fc_32sc_Sfs,
                       vlqsFIR64fc_32sc_ISfs, n, len, -kShift);
     }},
    {"64fc_16sc",
     [](int n, int len) {
         return record(vlqsFIRInitAlloc64fc_16sc, vlqsFIRFree64fc_16sc, vlqsFIR64fc_16sc_Sfs,
                       vlqsFIR64fc_16sc_ISfs, n, len, kShift);
     }},
    {"32f, no record",
     [](int n, int len) { return external(vlqsFIR_Direct_32f, vlqsFIR_Direct_32f_I, n, len); }},
    {"32fc, no record",
     [](int n, int len) { return external(vlqsFIR_Direct_32fc, vlqsFIR_Direct_32fc_I, n, len); }},
    {"64f, no record",
     [](int n, int len) { return external(vlqsFIR_Direct_64f, vlqsFIR_Direct_64f_I, n, len); }},
    {"64fc, no record",
     [](int n, int len) { return external(vlqsFIR_Direct_64fc, vlqsFIR_Direct_64fc_I, n, len); }},
    {"64f_32f, no record",
     [](int n, int len) {
         return external(vlqsFIR64f_Direct_32f, vlqsFIR64f_Direct_32f_I, n, len);
     }},
    {"64fc_32fc, no record",
     [](int n, int len) {
         return external(vlqsFIR64fc_Direct_32fc, vlqsFIR64fc_Direct_32fc_I, n, len);
     }},
};

// Direct and transformed; the shortest length that is shared out, one more, a few blocks.
constexpr int kTaps[] = {10, 64, 300};
constexpr int kLengths[] = {801, 1601, 9000};

bool sameAsAlone(const Form& form, int taps, int len) {
    setThreads(1);
    const Bytes want = form.run(taps, len);
    if (want.empty()) return false;
    for (const int threads : {2, 5}) {
        setThreads(threads);
        if (form.run(taps, len) != want) return false;
    }
    return true;
}
// Two callers, each with its own record and team.
bool sameBeside(const Form& first, const Form& second, int taps, int len) {
    setThreads(1);
    const Bytes wantFirst = first.run(taps, len), wantSecond = second.run(taps, len);
    setThreads(3);
    Bytes beside;
    std::thread other([&] { beside = second.run(taps, len); });
    const Bytes here = first.run(taps, len);
    other.join();
    return here == wantFirst && beside == wantSecond;
}

}  // namespace

int main() {
    const Form* before = &kForms[0];
    for (const Form& form : kForms) {
        for (const int taps : kTaps) {
            for (const int len : kLengths) {
                const bool alone = sameAsAlone(form, taps, len);
                if (!alone || !sameBeside(*before, form, taps, len)) {
                    std::printf("%s, %d taps, %d samples: results differ%s\n", form.name, taps, len,
                                alone ? " beside another caller" : "");
                    return 1;
                }
            }
        }
        before = &form;
    }
    return 0;
}
