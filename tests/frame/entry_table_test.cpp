// The module's boundary: exported names, stubs, slots, and what is writable behind them.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

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
        if (equals == std::string::npos) exports.push_back({line, line});
        else exports.push_back({line.substr(0, equals), line.substr(equals + 3)});
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

std::vector<std::string> linesOf(const std::string& tool) {
    std::vector<std::string> lines;
    std::FILE* pipe = popen((tool + " " + libraryPath()).c_str(), "r");
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
    const auto* code = static_cast<const unsigned char*>(handle ? dlsym(handle, name.c_str()) : nullptr);
    if (!code || code[0] != 0xFF || code[1] != 0x25) return {code, nullptr};
    std::int32_t displacement;
    std::memcpy(&displacement, code + 2, 4);
    return {code, reinterpret_cast<const std::uintptr_t*>(code + 6 + displacement)};
}

TEST(EntryTable, NamesStandInOrdinalOrder) {
    const auto exports = nameList();
    ASSERT_FALSE(exports.empty());
    for (std::size_t i = 1; i < exports.size(); ++i) EXPECT_LT(exports[i - 1].name, exports[i].name);
}

TEST(EntryTable, NothingElseIsExported) {
    std::set<std::string> want;
    for (const Export& e : nameList()) want.insert(e.name);
    std::set<std::string> got;
    for (const std::string& line : linesOf("nm -D --defined-only")) got.insert(line.substr(line.rfind(' ') + 1));
    EXPECT_EQ(want, got);
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

TEST(EntryTable, NothingIsWritableButTheSlotsAndTheLoadFlag) {
#if defined(VLQS_SANITIZED)
    GTEST_SKIP() << "a sanitizer keeps its own state in the module";
#endif
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
    for (const char* runtime : {"__dso_handle", "__TMC_END__", "completed.0", "completed.1", "_edata", "__bss_start",
                                "_end", ".data", ".bss"}) {
        writable.erase(runtime);
    }
    ASSERT_EQ(1u, writable.erase("vlqSlots")) << "the slot table must be writable data";
    for (const std::string& name : writable) EXPECT_NE(std::string::npos, name.find("fastMachine")) << name;
}

}  // namespace
