// Teams of threads: the frame itself, and what a team leaves of its process and its caller.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "frame/team.cpp"  // the library does not export it
#include "harness/core_double.h"
#include "harness/effort.h"
#include "harness/random.h"
#include "vlqs.h"

namespace {

std::atomic<int> created{0};          // threads asked for
std::atomic<int> grantable{1 << 30};  // how many more of them the system grants
std::atomic<bool> signalsBlocked{true};

}  // namespace

// In the place of the system's: counts, and refuses when told to.
extern "C" int pthread_create(pthread_t* id, const pthread_attr_t* attributes,
                              void* (*start)(void*), void* argument) {
    ++created;
    if (grantable-- <= 0) return EAGAIN;
    sigset_t mask;
    pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    if (sigismember(&mask, SIGTERM) != 1 || sigismember(&mask, SIGUSR1) != 1 ||
        sigismember(&mask, SIGSEGV) != 0 || sigismember(&mask, SIGFPE) != 0) {
        signalsBlocked = false;
    }
    static const auto real =
        reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    return real(id, attributes, start, argument);
}

namespace {

using vlqtest::Core;

// ---- the frame ----------------------------------------------------------------------------------

TEST(TeamSize, FollowsTheWork) {
    for (const Vlq32s allowed : {1, 2, 7}) {
        EXPECT_EQ(1, vlq::teamSize(allowed, 0));
        EXPECT_EQ(1, vlq::teamSize(allowed, 1.9 * vlq::kNanosecondsPerThread));
        EXPECT_EQ(std::min(2, allowed), vlq::teamSize(allowed, 2 * vlq::kNanosecondsPerThread));
        EXPECT_EQ(std::min(5, allowed), vlq::teamSize(allowed, 5.5 * vlq::kNanosecondsPerThread));
        EXPECT_EQ(allowed, vlq::teamSize(allowed, 1e18));
    }
    EXPECT_EQ(vlq::kLargestTeam, vlq::teamSize(std::numeric_limits<Vlq32s>::max(), 1e18));
}

void expectEachShareOnce(Vlq32s threads) {
    for (const Vlq32s total : {0, 1, 5, 64, 1000}) {
        std::vector<std::atomic<int>> times(static_cast<std::size_t>(total));
        vlq::shareEvenly(threads, total, [&](Vlq32s first, Vlq32s count) {
            EXPECT_GT(count, 0);
            for (Vlq32s i = first; i < first + count; ++i) ++times[static_cast<std::size_t>(i)];
        });
        for (const auto& count : times) EXPECT_EQ(1, count) << threads << " threads, " << total;

        std::vector<std::atomic<int>> blocks(static_cast<std::size_t>((total + 2) / 3));
        std::vector<VlqStatus> status(static_cast<std::size_t>(threads), 1);
        const VlqStatus lowest = vlq::shareBlocks(
            threads, total, 3, status.data(), [&](Vlq64s index, Vlq32s thread) -> VlqStatus {
                EXPECT_EQ(index % threads, thread);
                ++blocks[static_cast<std::size_t>(index)];
                return static_cast<VlqStatus>(index == 1 ? -7 : index == 3 ? -9 : 0);
            });
        for (const auto& count : blocks) EXPECT_EQ(1, count) << threads << " threads, " << total;
        EXPECT_EQ(blocks.size() > 3 ? -9 : blocks.size() > 1 ? -7 : 0, lowest);
    }
}

TEST(Team, RunsEachShareOnce) {
    for (const Vlq32s threads : {1, 2, 3, 16, vlq::kLargestTeam, vlq::kLargestTeam + 5})
        expectEachShareOnce(threads);
}

// ---- filters on a team --------------------------------------------------------------------------

// Long enough for a team on any machine: direct and by transforms.
constexpr int kSamples = 1 << 21;
constexpr int kTapCounts[] = {20, 300};

class Teams : public testing::Test {
protected:
    void SetUp() override {
        Core::reset();
        created = 0;
        grantable = 1 << 30;
        signalsBlocked = true;
    }
    void TearDown() override { Core::reset(); }
};

std::vector<float> noise(int count, unsigned seed) {
    vlqtest::Rng rng(seed);
    return vlqtest::uniformVector<float>(static_cast<std::size_t>(count), -1, 1, rng);
}

const std::vector<float>& samples() {
    static const auto all = noise(kSamples, 1);
    return all;
}

// The outputs of one block on up to so many threads; empty if a call fails.
std::vector<float> filtered(const std::vector<float>& src, int tapsLen, int threads) {
    Core::setThreads(threads);
    const auto taps = noise(tapsLen, 5);
    VlqsFIRState_32f* state = nullptr;
    std::vector<float> dst(src.size());
    const bool good =
        vlqsFIRInitAlloc_32f(&state, taps.data(), tapsLen, nullptr) == vlqStsOk &&
        vlqsFIR_32f(src.data(), dst.data(), static_cast<int>(src.size()), state) == vlqStsOk &&
        vlqsFIRFree_32f(state) == vlqStsOk;
    Core::setThreads(1);
    return good ? dst : std::vector<float>{};
}
bool sameBits(const std::vector<float>& a, const std::vector<float>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0;
}

TEST_F(Teams, StartOnlyForMoreThanOneThreadAndLongWork) {
    if (vlqtest::sanitized()) GTEST_SKIP() << "a library with sanitizers starts every thread";
    const auto& src = samples();
    const std::vector<float> shortBlock(src.begin(), src.begin() + 1601);
    for (const int taps : kTapCounts) {
        ASSERT_FALSE(filtered(src, taps, 1).empty());
        EXPECT_EQ(0, created);
        ASSERT_FALSE(filtered(shortBlock, taps, 4).empty());
        EXPECT_EQ(0, created) << "a thread for 1601 samples";
        ASSERT_FALSE(filtered(src, taps, 2).empty());
        EXPECT_EQ(1, created.exchange(0));
        ASSERT_FALSE(filtered(src, taps, 3).empty());
        EXPECT_EQ(2, created.exchange(0));
    }
}

TEST_F(Teams, RunOnTheThreadsThatTheSystemGrants) {
    const auto& src = samples();
    for (const int taps : kTapCounts) {
        const auto want = filtered(src, taps, 1);
        for (const int granted : {0, 1, 2}) {
            grantable = granted;
            EXPECT_TRUE(sameBits(want, filtered(src, taps, 4))) << granted << " granted";
        }
    }
    for (const int granted : {0, 1, 3}) {
        grantable = granted;
        expectEachShareOnce(5);
    }
}

TEST_F(Teams, LeaveSignalsToTheProgram) {
    const auto& src = samples();
    sigset_t some, after;
    sigemptyset(&some);
    sigaddset(&some, SIGUSR2);
    ASSERT_EQ(0, pthread_sigmask(SIG_SETMASK, &some, nullptr));
    ASSERT_FALSE(filtered(src, 20, 3).empty());
    ASSERT_EQ(0, pthread_sigmask(SIG_SETMASK, nullptr, &after));
    EXPECT_EQ(2, created);
    EXPECT_TRUE(signalsBlocked);
    EXPECT_EQ(1, sigismember(&after, SIGUSR2));
    EXPECT_EQ(0, sigismember(&after, SIGUSR1));
    sigemptyset(&some);
    pthread_sigmask(SIG_SETMASK, &some, nullptr);
}

// No memory for another stack.
TEST_F(Teams, RunWithoutMemoryForThreads) {
    if (vlqtest::sanitized()) GTEST_SKIP() << "the sanitizer needs memory of its own";
    const auto& src = samples();
    const auto want = filtered(src, 20, 1);
    Core::setThreads(4);
    const auto taps = noise(20, 5);
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, vlqsFIRInitAlloc_32f(&state, taps.data(), 20, nullptr));
    std::vector<float> dst(src.size());
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const rlimit none = {0, 0};
        setrlimit(RLIMIT_AS, &none);
        const VlqStatus status = vlqsFIR_32f(src.data(), dst.data(), kSamples, state);
        _exit(status == vlqStsOk && sameBits(want, dst) ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status);
    EXPECT_EQ(vlqStsOk, vlqsFIRFree_32f(state));
}

TEST_F(Teams, AreGoneWhenTheCallReturns) {
    const auto tasks = [] {
        namespace fs = std::filesystem;
        return std::distance(fs::directory_iterator("/proc/self/task"), fs::directory_iterator());
    };
    const auto before = tasks();
    const auto& src = samples();
    for (const int taps : kTapCounts) {
        ASSERT_FALSE(filtered(src, taps, 4).empty());
        EXPECT_EQ(before, tasks());
    }
}

TEST_F(Teams, WorkInTheChildOfAFork) {
    const auto& src = samples();
    const auto want = filtered(src, 300, 1);
    ASSERT_TRUE(sameBits(want, filtered(src, 300, 3)));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        alarm(60);
        _exit(sameBits(want, filtered(src, 300, 3)) ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status);
    EXPECT_TRUE(sameBits(want, filtered(src, 300, 3)));
}

bool isMapped(const std::string& file) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.find(file) != std::string::npos) return true;
    return false;
}

// A copy of the library, since the library itself is there for the whole life of this program.
TEST_F(Teams, LetTheLibraryBeUnloaded) {
    namespace fs = std::filesystem;
    void* linked = dlopen("libvlqs.so.7", RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(nullptr, linked);
    Dl_info info;
    ASSERT_NE(0, dladdr(dlsym(linked, "vlqsFIR_32f"), &info));
    const std::string copy = testing::TempDir() + "vlqs-" + std::to_string(getpid()) + ".so";
    fs::copy_file(info.dli_fname, copy, fs::copy_options::overwrite_existing);
    void* handle = dlopen(copy.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(nullptr, handle) << dlerror();
    ASSERT_TRUE(isMapped(copy));

    const auto init =
        reinterpret_cast<decltype(&vlqsFIRInitAlloc_32f)>(dlsym(handle, "vlqsFIRInitAlloc_32f"));
    const auto run = reinterpret_cast<decltype(&vlqsFIR_32f)>(dlsym(handle, "vlqsFIR_32f"));
    const auto release =
        reinterpret_cast<decltype(&vlqsFIRFree_32f)>(dlsym(handle, "vlqsFIRFree_32f"));
    Core::setThreads(4);
    const auto& src = samples();
    const auto taps = noise(20, 5);
    std::vector<float> dst(src.size());
    VlqsFIRState_32f* state = nullptr;
    ASSERT_EQ(vlqStsOk, init(&state, taps.data(), 20, nullptr));
    EXPECT_EQ(vlqStsOk, run(src.data(), dst.data(), kSamples, state));
    EXPECT_EQ(vlqStsOk, release(state));
    EXPECT_EQ(0, dlclose(handle));
    EXPECT_FALSE(isMapped(copy));
    fs::remove(copy);
    EXPECT_TRUE(sameBits(dst, filtered(src, 20, 4)));
}

// Rounding and the treatment of subnormals are the caller's on every thread.
TEST_F(Teams, KeepTheFloatingPointMode) {
    constexpr unsigned kFlushToZero = 0x8000, kDenormalsAreZero = 0x40, kFlags = 0x3F;
    auto src = samples();
    for (float& x : src) x = std::ldexp(x, -126);  // results on both sides of the subnormals
    for (const int taps : kTapCounts) {
        const auto usual = filtered(src, taps, 1);
        for (const int rounding : {FE_UPWARD, FE_TOWARDZERO}) {
            std::fenv_t before;
            std::fegetenv(&before);
            std::fesetround(rounding);
            const unsigned mode =
                (__builtin_ia32_stmxcsr() & ~kFlags) | kFlushToZero | kDenormalsAreZero;
            __builtin_ia32_ldmxcsr(mode);
            const auto alone = filtered(src, taps, 1);
            const auto team = filtered(src, taps, 4);
            const unsigned after = __builtin_ia32_stmxcsr() & ~kFlags;
            const int roundingAfter = std::fegetround();  // of the x87 unit
            std::fesetenv(&before);
            EXPECT_EQ(mode, after);
            EXPECT_EQ(rounding, roundingAfter);
            EXPECT_FALSE(sameBits(usual, alone)) << "the mode makes no difference here";
            EXPECT_TRUE(sameBits(alone, team));
        }
    }
}

// An exception of a thread's share is the caller's, as if it had done the work itself.
TEST_F(Teams, PassOnFloatingPointExceptions) {
    auto src = samples();
    const float huge = std::numeric_limits<float>::max();
    src[kSamples - 1000] = src[kSamples - 1001] = src[kSamples - 999] = huge;
    for (float& x : src) x *= 4;
    for (const int threads : {1, 2}) {
        for (const bool overflows : {false, true}) {
            auto finite = src;
            for (float& x : finite)
                if (!overflows && std::isinf(x)) x = 0;
            for (float& x : finite)
                if (std::isinf(x)) x = huge;
            std::feclearexcept(FE_ALL_EXCEPT);
            ASSERT_FALSE(filtered(finite, 20, threads).empty());
            EXPECT_EQ(overflows, std::fetestexcept(FE_OVERFLOW) != 0) << threads << " threads";
        }
    }
}

// A cancellation waits until the call is complete.
TEST_F(Teams, AreNotCutShortByACancellation) {
    static std::vector<float> src, want, got;
    src = samples();
    want = filtered(src, 20, 1);
    got.clear();
    pthread_t thread;
    ASSERT_EQ(0, pthread_create(
                     &thread, nullptr,
                     [](void*) -> void* {
                         pthread_cancel(pthread_self());
                         got = filtered(src, 20, 3);
                         pthread_testcancel();
                         return nullptr;
                     },
                     nullptr));
    void* result = nullptr;
    ASSERT_EQ(0, pthread_join(thread, &result));
    EXPECT_EQ(PTHREAD_CANCELED, result);
    EXPECT_TRUE(sameBits(want, got));
}

TEST_F(Teams, ServeTwentyCallersAtOnce) {
    const auto src = noise(1 << 20, 1), taps = noise(257, 5);
    const auto want = filtered(src, 257, 1);
    Core::setThreads(2);
    std::atomic<int> wrong{0};
    std::vector<std::thread> callers;
    for (int i = 0; i < 20; ++i) {
        callers.emplace_back([&] {
            VlqsFIRState_32f* state = nullptr;
            std::vector<float> dst(src.size());
            if (vlqsFIRInitAlloc_32f(&state, taps.data(), 257, nullptr) != vlqStsOk) ++wrong;
            for (int call = 0; call < 5; ++call) {
                const std::vector<float> past(257);
                vlqsFIRSetDlyLine_32f(state, past.data());
                if (vlqsFIR_32f(src.data(), dst.data(), 1 << 20, state) != vlqStsOk) ++wrong;
                if (!sameBits(want, dst)) ++wrong;
            }
            vlqsFIRFree_32f(state);
        });
    }
    for (std::thread& caller : callers) caller.join();
    EXPECT_EQ(0, wrong);
}

}  // namespace
