// A benchmark is a table of rows: our call and the peer that a user would pick instead, timed
// in one process on the same data, and the ratio of the two.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace vlqbench {

struct Row {
    std::string work;  // what is done, e.g. "copy 32f"
    long size;         // elements a call
    double perCall;    // what one call counts as: elements give ns an element, 1 gives ns a call
    std::string peer;  // name of the peer
    double bar;        // ours / peer that we mean to reach; 0: none is stated
    std::function<void()> ours;
    std::function<void()> theirs;
};

void add(Row row);

// The two-letter tag of the build under test.
const char* buildTag();

// Keeps the compiler from dropping or moving writes of a plain loop that is a peer.
inline void clobber() { asm volatile("" ::: "memory"); }

// Runs all rows and prints one line for each; with VLQS_BENCH_OUT set, appends them to that file
// as tab-separated values.
int run(int argc, char** argv);

}  // namespace vlqbench
