// Calls that have all their memory from the caller neither allocate nor enter the operating system.
#include <gtest/gtest.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "harness/core_double.h"
#include "harness/signatures.h"
#include "vlqs.h"

namespace {

using namespace vlqtest;

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}
bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

const Signature* find(std::string_view name) {
    for (const Signature& s : signatures())
        if (s.name == name) return &s;
    return nullptr;
}

long long valueOf(std::string_view name) {
    static const std::map<std::string_view, long long> values = {
        {"len", 1000},           {"numIters", 300},   {"tapsLen", 5},
        {"upFactor", 2},         {"downFactor", 3},   {"order", 7},
        {"flag", vlqNormInvByN}, {"scaleFactor", 3},  {"val", 3},
        {"channels", 2},         {"frames", 500},     {"rndMode", 1},
        {"srcBitOffset", 1},     {"dstBitOffset", 1}, {"vDiv", 2}};
    const auto found = values.find(name);
    return found == values.end() ? 0 : found->second;
}

// One call with valid arguments, in memory that lives as long as this object.
class Call {
public:
    // taps: of the filter that a state is built for.
    Call(const Signature& s, long long taps = 5) : signature_(s), taps_(taps) {
        for (const Parameter& p : s.parameters) {
            arguments_.values.push_back(valueOf(p.name));
            arguments_.pointers.push_back(p.isPointer() ? pointerFor(p) : nullptr);
        }
    }
    void setValue(std::string_view name, long long value) {
        for (std::size_t i = 0; i < signature_.parameters.size(); ++i)
            if (signature_.parameters[i].name == name) arguments_.values[i] = value;
    }
    void* pointer(std::string_view name) {
        for (std::size_t i = 0; i < signature_.parameters.size(); ++i)
            if (signature_.parameters[i].name == name) return arguments_.pointers[i];
        return nullptr;
    }
    VlqStatus run() { return signature_.call(arguments_); }
    std::string_view name() const { return signature_.name; }

private:
    static constexpr std::size_t kDataBytes = 1 << 17;  // 1000 of the largest elements, and factors
    static constexpr std::size_t kStateBytes = 1 << 19;  // of which few are ever touched

    // Samples of all calls, one vector for each place among the parameters.
    static void* data(std::size_t place) {
        static std::map<std::size_t, std::vector<unsigned char>> vectors;
        return vectors.try_emplace(place, kDataBytes, 1).first->second.data();
    }
    void* cleared(std::size_t bytes) {
        memory_.emplace_back(std::calloc(bytes, 1), std::free);
        return memory_.back().get();
    }
    void* pointerFor(const Parameter& p) {
        const std::size_t place = arguments_.pointers.size();
        if (contains(p.name, "Index") || contains(p.name, "BitOffset")) return cleared(64);
        if (p.name == "buffer" || p.name == "specMem" || p.name == "initBuf")
            return cleared(kStateBytes);
        if (contains(p.type, "**")) return cleared(64);
        if (contains(p.name, "Rows")) {
            void* rows[] = {data(10), data(11)};
            return std::memcpy(cleared(64), rows, sizeof rows);
        }
        return contains(p.type, "Vlqs") ? built(p.type) : data(place);
    }
    // A spec or state in memory of the caller.
    void* built(std::string_view type) {
        const bool isSpec = contains(type, "FFTSpec");
        const std::string kind(
            type.substr(type.find(isSpec ? "Spec" : "State") + (isSpec ? 4 : 5)));
        const std::string suffix = kind.substr(0, kind.find_first_of("* "));
        const std::string family = isSpec                                     ? "vlqsFFTInit"
                                   : startsWith(signature_.name, "vlqsFIRMR") ? "vlqsFIRMRInit"
                                                                              : "vlqsFIRInit";
        const Signature* init = find(family + suffix);
        if (!init) return nullptr;
        nested_.emplace_back(*init);
        nested_.back().setValue("tapsLen", taps_);
        if (nested_.back().run() != vlqStsOk) return nullptr;
        void* made;
        std::memcpy(&made, nested_.back().pointer(isSpec ? "outSpec" : "outState"), sizeof made);
        return made;
    }

    const Signature& signature_;
    long long taps_;
    Arguments arguments_;
    std::deque<std::shared_ptr<void>> memory_;
    std::deque<Call> nested_;
};

// Filters without a state of the caller's build one for long blocks, or copy the samples that their
// outputs would overtake.
bool allocatesByContract(const Signature& s) {
    static const std::set<std::string_view> buildAState = {
        "vlqsFIR_Direct_32f_I",    "vlqsFIR_Direct_32fc_I",     "vlqsFIR_Direct_64f_I",
        "vlqsFIR_Direct_64fc_I",   "vlqsFIR64f_Direct_32f",     "vlqsFIR64f_Direct_32f_I",
        "vlqsFIR64fc_Direct_32fc", "vlqsFIR64fc_Direct_32fc_I", "vlqsFIR_Direct_16s_Sfs",
        "vlqsFIR_Direct_16s_ISfs"};
    const bool changesRateInPlace =
        startsWith(s.name, "vlqsFIRMR") && contains(s.name, "_Direct") && contains(s.name, "_I");
    return contains(s.name, "Alloc") || changesRateInPlace || buildAState.count(s.name) != 0;
}

// Every function, with states of short filters and of those that go through transforms.
std::deque<Call> everyCall() {
    std::deque<Call> calls;
    for (const Signature& s : signatures()) {
        if (allocatesByContract(s)) continue;
        calls.emplace_back(s);
        if (startsWith(s.name, "vlqsFIR") && !contains(s.name, "_Direct"))
            calls.emplace_back(s, 90);
    }
    return calls;
}

TEST(RealTime, NothingIsAllocated) {
    for (Call& call : everyCall()) {
        const int before = Core::allocations();
        EXPECT_GE(call.run(), vlqStsOk) << call.name();
        EXPECT_EQ(before, Core::allocations()) << call.name() << " allocates";
    }
}

// So long that the paths for what no cache holds run too.
struct LongVectors {
    static constexpr int kLen = 1 << 23;
    std::vector<Vlq32f> a = std::vector<Vlq32f>(kLen, 1), b = a;
    void run() {
        vlqsZero_32f(a.data(), kLen);
        vlqsSet_32f(1, a.data(), kLen);
        vlqsCopy_32f(a.data(), b.data(), kLen);
        vlqsMove_32f(a.data(), a.data() + 1, kLen - 1);
        vlqsAdd_32f(a.data(), a.data(), b.data(), kLen);
        vlqsAnd_32u(reinterpret_cast<Vlq32u*>(a.data()), reinterpret_cast<Vlq32u*>(b.data()),
                    reinterpret_cast<Vlq32u*>(b.data()), kLen);
    }
};

TEST(RealTime, NoSystemCallIsMade) {
    auto calls = everyCall();
    LongVectors longVectors;
    auto* reached = static_cast<int*>(
        mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(MAP_FAILED, static_cast<void*>(reached));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // From here on any system call but read, write and exit kills the process.
        if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_STRICT) != 0) _exit(77);
        for (Call& call : calls) {
            call.run();
            ++*reached;
        }
        longVectors.run();
        syscall(SYS_exit, 0);
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    const auto count = static_cast<std::size_t>(*reached);
    munmap(reached, sizeof(int));
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77) GTEST_SKIP() << "no seccomp here";
    EXPECT_EQ(0, status) << "in "
                         << (count < calls.size() ? calls[count].name() : "the long vectors");
}

}  // namespace
