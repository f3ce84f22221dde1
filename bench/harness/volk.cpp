// Writes VOLK's own configuration file, in which each kernel has its implementation by name: no
// call costs more than it does for a user of VOLK.
#include "harness/volk.h"

#include <volk/volk.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

#include "harness/bench.h"

namespace vlqbench {
namespace {

struct Kernel {
    const char* name;
    volk_func_desc_t (*describe)();
};
constexpr Kernel kKernels[] = {
    {"volk_16i_s32f_convert_32f", volk_16i_s32f_convert_32f_get_func_desc},
    {"volk_16u_byteswap", volk_16u_byteswap_get_func_desc},
    {"volk_32f_convert_64f", volk_32f_convert_64f_get_func_desc},
    {"volk_32f_s32f_convert_16i", volk_32f_s32f_convert_16i_get_func_desc},
    {"volk_32f_s32f_convert_32i", volk_32f_s32f_convert_32i_get_func_desc},
    {"volk_32f_s32f_convert_8i", volk_32f_s32f_convert_8i_get_func_desc},
    {"volk_32f_x2_add_32f", volk_32f_x2_add_32f_get_func_desc},
    {"volk_32f_x2_divide_32f", volk_32f_x2_divide_32f_get_func_desc},
    {"volk_32f_x2_multiply_32f", volk_32f_x2_multiply_32f_get_func_desc},
    {"volk_32fc_x2_multiply_32fc", volk_32fc_x2_multiply_32fc_get_func_desc},
    {"volk_32i_s32f_convert_32f", volk_32i_s32f_convert_32f_get_func_desc},
    {"volk_32i_x2_and_32i", volk_32i_x2_and_32i_get_func_desc},
    {"volk_32i_x2_or_32i", volk_32i_x2_or_32i_get_func_desc},
    {"volk_32u_byteswap", volk_32u_byteswap_get_func_desc},
    {"volk_64f_convert_32f", volk_64f_convert_32f_get_func_desc},
    {"volk_64u_byteswap", volk_64u_byteswap_get_func_desc},
    {"volk_8i_s32f_convert_32f", volk_8i_s32f_convert_32f_get_func_desc},
};

// Best first. VOLK has `generic` compiled for any x86-64.
constexpr const char* kSets[] = {"avx2_fma", "avx2", "avx_fma", "avx", "sse4_2", "sse4_1",
                                 "ssse3",    "sse3", "sse2",    "sse", "generic"};
std::span<const char* const> setsOfBuild() {
    const std::span<const char* const> all(kSets);
    return std::string_view(buildTag()) == "s2" ? all.last(3) : all;
}

std::string bestOf(const volk_func_desc_t& kernel, const std::string& prefix) {
    for (const std::string set : setsOfBuild()) {
        for (std::size_t i = 0; i < kernel.n_impls; ++i) {
            const std::string_view name = kernel.impl_names[i];
            if (name == prefix + set || name == set) return kernel.impl_names[i];
        }
    }
    return "generic";
}

}  // namespace

void limitVolkToBuild() {
    // With 64-byte vectors anything goes.
    if (std::string_view(buildTag()) == "v4") return;
    char folder[] = "/tmp/volk-XXXXXX";
    if (!mkdtemp(folder)) return;
    const auto path = std::filesystem::path(folder) / "volk" / "volk_config";
    std::filesystem::create_directory(path.parent_path());
    {
        std::ofstream file(path);
        for (const Kernel& kernel : kKernels) {
            const volk_func_desc_t description = kernel.describe();
            const std::string unaligned = bestOf(description, "u_");
            std::string aligned = bestOf(description, "a_");
            if (aligned == "generic") aligned = unaligned;
            file << kernel.name << ' ' << aligned << ' ' << unaligned << '\n';
        }
    }
    setenv("VOLK_CONFIGPATH", folder, 1);
    // VOLK reads the file at the first choice that it makes.
    float one = 1, sum = 0;
    volk_32f_x2_add_32f(&sum, &one, &one, 1);
    std::filesystem::remove_all(folder);
}

}  // namespace vlqbench
