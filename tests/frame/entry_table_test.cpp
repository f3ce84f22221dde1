// The module's boundary: exported names, stubs, slots, and what is writable behind them.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "harness/effort.h"
#include "vlqs.h"

namespace {

struct Export {
    std::string name;
    std::string body;
};

std::vector<Export> nameList() {
    std::ifstream file(VLQS_NAMES_FILE);
    std::vector<Export> exports;
    for (std::string line; std::getline(file, line);) {
        const auto equals = line.find(" = ");
        if (equals == std::string::npos)
            exports.push_back({line, line});
        else
            exports.push_back({line.substr(0, equals), line.substr(equals + 3)});
    }
    return exports;
}

std::string libraryPath() {
    Dl_info info;
    if (dladdr(reinterpret_cast<const void*>(&vlqsGetLibVersion), &info) == 0) return {};
    // A function's address taken in a program may be a PLT entry of the program itself.
    void* handle = dlopen("libvlqs.so.7", RTLD_NOW | RTLD_NOLOAD);
    void* symbol = handle ? dlsym(handle, "vlqsGetLibVersion") : nullptr;
    if (!symbol || dladdr(symbol, &info) == 0) return {};
    return info.dli_fname;
}

std::vector<std::string> linesOf(const std::string& tool,
                                 const std::string& library = libraryPath()) {
    std::vector<std::string> lines;
    std::FILE* pipe = popen((tool + " '" + library + "'").c_str(), "r");
    if (!pipe) return lines;
    char buffer[1024];
    while (std::fgets(buffer, sizeof buffer, pipe)) {
        lines.emplace_back(buffer);
        while (!lines.back().empty() && lines.back().back() == '\n') lines.back().pop_back();
    }
    pclose(pipe);
    return lines;
}

struct Stub {
    const unsigned char* code;
    const std::uintptr_t* slot;
};

Stub stubOf(const std::string& name) {
    void* handle = dlopen("libvlqs.so.7", RTLD_NOW | RTLD_NOLOAD);
    const auto* code =
        static_cast<const unsigned char*>(handle ? dlsym(handle, name.c_str()) : nullptr);
    if (!code || code[0] != 0xFF || code[1] != 0x25) return {code, nullptr};
    std::int32_t displacement;
    std::memcpy(&displacement, code + 2, 4);
    return {code, reinterpret_cast<const std::uintptr_t*>(code + 6 + displacement)};
}

TEST(EntryTable, NamesStandInOrdinalOrder) {
    const auto exports = nameList();
    ASSERT_FALSE(exports.empty());
    for (std::size_t i = 1; i < exports.size(); ++i)
        EXPECT_LT(exports[i - 1].name, exports[i].name);
}

// Lines `name@@version` of the functions that a library exports.
std::set<std::string> exportedBy(const std::string& library) {
    std::set<std::string> symbols;
    for (const std::string& line : linesOf("nm -D --defined-only", library)) {
        std::istringstream fields(line);
        std::string address, type, symbol;
        fields >> address >> type >> symbol;
        if (type != "A") symbols.insert(symbol);  // A: the version itself
    }
    return symbols;
}
std::set<std::string> linesOfFile(const std::string& path) {
    std::ifstream file(path);
    std::set<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.insert(line);
    return lines;
}

TEST(EntryTable, NothingElseIsExported) {
    std::set<std::string> want;
    for (const Export& e : nameList()) want.insert(e.name + "@@VLQS_7");
    EXPECT_EQ(want, exportedBy(libraryPath()));
}

// What programs were linked with stays: a symbol leaves these files only with a new major version.
// New names join them with a release.
TEST(EntryTable, SymbolsOfTheSymbolsFilesAreExported) {
    const auto source = std::filesystem::path(VLQS_NAMES_FILE).parent_path().parent_path();
    const std::string folder = source.parent_path() / "cmake/";
    const auto expectExported = [&](const char* file, const std::set<std::string>& exported) {
        const auto symbols = linesOfFile(folder + file);
        EXPECT_FALSE(symbols.empty()) << file;
        for (const std::string& symbol : symbols) EXPECT_EQ(1u, exported.count(symbol)) << symbol;
    };
    expectExported("vlqs.symbols", exportedBy(libraryPath()));
    Dl_info info;
    void* core = dlopen("libvlqcore.so.7", RTLD_NOW);
    ASSERT_NE(nullptr, core);
    ASSERT_NE(0, dladdr(dlsym(core, "vlqGetStatusString"), &info));
    expectExported("vlqcore.symbols", exportedBy(info.dli_fname));
}

// A sanitizer brings run-time libraries of its own.
TEST(EntryTable, NeedsNoLibraryOfCpp) {
    if (vlqtest::sanitized()) GTEST_SKIP();
    std::set<std::string> needed;
    for (const std::string& line : linesOf("readelf -d")) {
        const auto name = line.find("Shared library: [");
        if (name != std::string::npos)
            needed.insert(line.substr(name + 17, line.find(']') - name - 17));
        if (line.find("(FLAGS_1)") != std::string::npos)
            needed.insert(line.substr(line.find("Flags:")));
    }
    EXPECT_EQ((std::set<std::string>{"libvlqcore.so.7", "libm.so.6", "libc.so.6", "Flags: NOW"}),
              needed);
}

// The function that a line of a disassembly names between < and >, without an offset into it.
std::string functionIn(const std::string& line) {
    const auto open = line.find('<'), close = line.find('>');
    return open < close ? line.substr(open + 1, close - open - 1) : "";
}

// A body that ends in a jump is in no backtrace of what it jumps to.
TEST(EntryTable, TransformsAreInTheBacktraceOfTheirKernels) {
    std::string body;
    std::set<std::string> seen, jumping;
    for (const std::string& line : linesOf("objdump -d --no-show-raw-insn")) {
        if (line.empty()) continue;
        if (line.back() == ':') body = functionIn(line);
        const bool isTransform = body.find("vlqsFFTFwd") != std::string::npos ||
                                 body.find("vlqsFFTInv") != std::string::npos;
        if (!isTransform || body.rfind("_ZN3vlq", 0) != 0) continue;
        seen.insert(body);
        const std::string target = functionIn(line);
        const bool leaves = line.find("\tjmp ") != std::string::npos && !target.empty() &&
                            target.rfind(body, 0) != 0;
        if (leaves) jumping.insert(body);
    }
    EXPECT_GT(seen.size(), 80u);
    EXPECT_EQ(std::set<std::string>{}, jumping);
}

TEST(EntryTable, EachStubJumpsThroughItsOwnSlot) {
    const auto exports = nameList();
    const Stub first = stubOf(exports[0].name);
    ASSERT_NE(nullptr, first.slot);
    for (std::size_t i = 0; i < exports.size(); ++i) {
        const Stub stub = stubOf(exports[i].name);
        ASSERT_NE(nullptr, stub.slot) << exports[i].name << " is not one indirect jump";
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(stub.code) % 16) << exports[i].name;
        EXPECT_EQ(first.code + 16 * i, stub.code) << exports[i].name;
        EXPECT_EQ(first.slot + i, stub.slot) << exports[i].name;
    }
}

TEST(EntryTable, AliasesShareOneBodyAndNothingElseDoes) {
    std::map<std::uintptr_t, std::set<std::string>> rows;
    std::map<std::string, std::set<std::string>> want;
    for (const Export& e : nameList()) {
        rows[*stubOf(e.name).slot].insert(e.name);
        want[e.body].insert(e.name);
    }
    std::set<std::set<std::string>> gotRows, wantRows;
    for (const auto& row : rows) gotRows.insert(row.second);
    for (const auto& row : want) wantRows.insert(row.second);
    EXPECT_EQ(wantRows, gotRows);
}

// Names that share a body, as the manual of the interface has them. Elements of one size are moved
// by one body, records of one shape are sized by one. Fills by value are the exception: floats and
// integers arrive in different registers.
TEST(EntryTable, AliasRows) {
    const std::vector<std::vector<std::string>> rows = {
        {"Copy_16sc", "Copy_32f", "Copy_32s"},
        {"Copy_32fc", "Copy_32sc", "Copy_64f", "Copy_64s"},
        {"Copy_64fc", "Copy_64sc"},
        {"Move_16sc", "Move_32f", "Move_32s"},
        {"Move_32fc", "Move_32sc", "Move_64f", "Move_64s"},
        {"Move_64fc", "Move_64sc"},
        {"Zero_16sc", "Zero_32f", "Zero_32s"},
        {"Zero_32fc", "Zero_32sc", "Zero_64f", "Zero_64s"},
        {"Zero_64fc", "Zero_64sc"},
        {"SampleUp_16sc", "SampleUp_32f"},
        {"SampleUp_32fc", "SampleUp_64f"},
        {"Malloc_8s", "Malloc_8u"},
        {"Malloc_16s", "Malloc_16u", "Malloc_8sc"},
        {"Malloc_16sc", "Malloc_32f", "Malloc_32s", "Malloc_32u"},
        {"Malloc_32fc", "Malloc_32sc", "Malloc_64f", "Malloc_64s"},
        {"Malloc_64fc", "Malloc_64sc"},
        {"FFTGetSize_C_32s", "FFTGetSize_C_32sc"},
        {"FIRGetStateSize32f_16s", "FIRGetStateSize_32f", "FIRStreamGetStateSize_32f"},
        {"FIRGetStateSize32fc_16sc", "FIRGetStateSize_32fc"},
        {"FIRGetStateSize64f_16s", "FIRGetStateSize64f_32f", "FIRGetStateSize64f_32s",
         "FIRGetStateSize_64f"},
        {"FIRGetStateSize64fc_16sc", "FIRGetStateSize64fc_32fc", "FIRGetStateSize64fc_32sc",
         "FIRGetStateSize_64fc"},
        {"FIRMRGetStateSize32fc_16sc", "FIRMRGetStateSize_32fc"},
        {"FIRMRGetStateSize64fc_16sc", "FIRMRGetStateSize64fc_32fc", "FIRMRGetStateSize64fc_32sc",
         "FIRMRGetStateSize_64fc"},
        {"FIRLMSFree32f_16s", "FIRLMSFree_32f"},
        {"FIRLMSMRFree32s_16s", "FIRLMSMRFree32sc_16sc"},
        {"FIRLMSMRGetTapsPointer32s_16s", "FIRLMSMRGetTapsPointer32sc_16sc"},
        {"FIROne64f_32s_Sfs", "FIROne_32s_Sfs"},
        {"IIRGetStateSize32s_16s", "IIRGetStateSize32s_16s32f"},
        {"IIRGetStateSize32s_BiQuad_16s", "IIRGetStateSize32s_BiQuad_16s32f"},
        {"IIRGetStateSize32sc_16sc", "IIRGetStateSize32sc_16sc32fc"},
        {"IIRGetStateSize32sc_BiQuad_16sc", "IIRGetStateSize32sc_BiQuad_16sc32fc"},
        {"IIRSetTaps32sc_16sc32fc", "IIRSetTaps_32fc"},
    };
    std::map<std::string, std::set<std::string>> bodies;
    for (const Export& e : nameList()) bodies[e.body].insert(e.name);
    std::set<std::set<std::string>> got, want;
    for (const auto& body : bodies) {
        if (body.second.size() > 1) got.insert(body.second);
    }
    std::set<std::string> built;
    for (const Export& e : nameList()) built.insert(e.name);
    for (const auto& row : rows) {
        std::set<std::string> names;
        for (const std::string& name : row) {
            if (built.count("vlqs" + name)) names.insert("vlqs" + name);
        }
        if (names.size() > 1) want.insert(names);
    }
    EXPECT_EQ(want, got);
}

TEST(EntryTable, NothingIsWritableButTheSlotsAndTheLoadFlag) {
    if (vlqtest::sanitized()) GTEST_SKIP() << "a sanitizer keeps its own state in the module";
    std::set<std::string> writable;
    for (const std::string& line : linesOf("objdump -t")) {
        std::istringstream fields(line);
        std::string address, word;
        fields >> address;
        // The section stands after one or more one-letter flags; size and name follow.
        while (fields >> word && word[0] != '.' && word[0] != '*') {}
        if (word != ".data" && word != ".bss" && word != ".tdata" && word != ".tbss") continue;
        std::string size, name;
        fields >> size >> name;
        if (name == ".hidden") fields >> name;
        writable.insert(name);
    }
    // What compiler and linker put into every module.
    for (const char* runtime : {"__dso_handle", "__TMC_END__", "completed.0", "completed.1",
                                "_edata", "__bss_start", "_end", ".data", ".bss"}) {
        writable.erase(runtime);
    }
    ASSERT_EQ(1u, writable.erase("vlqSlots")) << "the slot table must be writable data";
    for (const std::string& name : writable)
        EXPECT_NE(std::string::npos, name.find("fastMachine")) << name;
}

}  // namespace
