// Reads the effort of a run from the environment.
#include "harness/effort.h"

#include <cstdlib>
#include <string_view>

// Present when the sanitizer's runtime is loaded.
extern "C" [[gnu::weak]] void __asan_init();

namespace vlqtest {
namespace {

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value && std::string_view(value) == "1";
}

}  // namespace

Effort effort() {
    static const Effort chosen = isSet("VLQS_QUICK")  ? Effort::quick
                                 : isSet("VLQS_FULL") ? Effort::full
                                                      : Effort::usual;
    return chosen;
}

bool sanitized() { return &__asan_init != nullptr; }

}  // namespace vlqtest
