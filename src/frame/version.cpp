// The version record.
#include <string_view>

#include "vlqs/frame.h"

namespace {

constexpr std::string_view kTag = VLQ_TARGET_TAG;

constexpr const char* kLibraryName = kTag == "v4"   ? "vlqSP AVX-512 (v4)"
                                     : kTag == "v3" ? "vlqSP AVX2 (v3)"
                                                    : "vlqSP SSE2 (s2)";

// The date is the revision's, not the build's: equal sources give equal libraries.
constexpr VlqLibraryVersion kVersion = {
    7, 1, 0, 36264, {kTag[0], kTag[1], 0, 0}, kLibraryName, "7.1.0 (r36264)", "Jul 23 2012",
};

}  // namespace

const VlqLibraryVersion* vlq::vlqsGetLibVersion() { return &kVersion; }
