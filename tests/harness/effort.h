// How thorough a run is, and whether sanitizers watch it: both are chosen where the program is
// started, so that one build of a test serves them all.
#pragma once

namespace vlqtest {

// The environment variable VLQS_QUICK=1 asks for the smallest sweep, for a developer's loop;
// VLQS_FULL=1 for the complete random sets.
enum class Effort { quick, usual, full };
Effort effort();

// One of three, by the effort of this run: numbers of rounds, steps, longest lengths.
template <class T>
T byEffort(T quick, T usual, T full) {
    switch (effort()) {
        case Effort::quick: return quick;
        case Effort::full: return full;
        default: return usual;
    }
}

// Whether the address sanitizer is in this process: it makes a call many times slower.
bool sanitized();

}  // namespace vlqtest
