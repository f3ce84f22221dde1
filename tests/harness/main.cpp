// The main function of every test program.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "harness/core_double.h"
#include "harness/random.h"
#include "harness/vector_state.h"
#include "vlqs.h"

namespace {
std::uint64_t runSeed = 20120723;
}
std::uint64_t vlqtest::seed() { return runSeed; }

namespace {

// Every test starts with a core as it is at first, and frees what it allocates.
class LeakCheck : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override {
        vlqtest::Core::reset();
        outstanding_ = vlqtest::Core::outstanding();
    }
    void OnTestEnd(const ::testing::TestInfo&) override {
        EXPECT_EQ(outstanding_, vlqtest::Core::outstanding()) << "blocks at the test's end";
    }
    int outstanding_ = 0;
};

}  // namespace

// Usage: <program> [gtest flags] [--seed N]. The build under test is the one that the dynamic
// linker finds; LD_LIBRARY_PATH chooses it.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::string_view(argv[i]) == "--seed")
            runSeed = std::strtoull(argv[i + 1], nullptr, 10);
    }
    std::printf("%s, seed %llu\n", vlqsGetLibVersion()->libraryName,
                static_cast<unsigned long long>(runSeed));
    ::testing::UnitTest::GetInstance()->listeners().Append(new LeakCheck);
    vlqtest::watchVectorState();
    return RUN_ALL_TESTS();
}
