// Redirects the entry table to thunks that look at the vector registers after each call.
#include "harness/vector_state.h"

#include <cpuid.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "vlqs.h"

// Each slot of the library's entry table is redirected to a thunk, which calls the body with the
// caller's own stack: it keeps the return address aside, in a variable of the thread. The body
// finds the upper halves clear. XGETBV with ecx = 1 then tells which of them are in use: bit 2 is
// for those of the 256-bit registers, bit 6 for those of the 512-bit ones.
#define VLQTEST_THUNKS 4096
#define VLQTEST_TEXT_(x) #x
#define VLQTEST_TEXT(x) VLQTEST_TEXT_(x)
asm(R"(
    .text
    .p2align 4
    .globl vlqtestThunks
vlqtestThunks:
    .set vlqtestCount, 0
    .rept )" VLQTEST_TEXT(VLQTEST_THUNKS) R"(
    .p2align 4
    movl $vlqtestCount, %r11d
    jmp 1f
    .set vlqtestCount, vlqtestCount + 1
    .endr
1:
    popq %r10
    movq %r10, %fs:vlqtestReturn@tpoff
    movq %r11, %fs:vlqtestIndex@tpoff
    vzeroupper
    leaq vlqtestBodies(%rip), %r10
    callq *(%r10,%r11,8)
    pushq %fs:vlqtestReturn@tpoff
    pushq %rax
    pushq %rdx
    movl $1, %ecx
    xgetbv
    testl $0x44, %eax
    jz 2f
    movq %fs:vlqtestIndex@tpoff, %r11
    leaq vlqtestInUse(%rip), %r10
    movb $1, (%r10,%r11)
2:
    popq %rdx
    popq %rax
    ret

    .section .tbss, "awT", @nobits
    .p2align 3
vlqtestReturn: .zero 8
vlqtestIndex: .zero 8
    .text
)");

using Body = void (*)();
extern "C" {
extern unsigned char vlqtestThunks[];
[[gnu::used]] Body vlqtestBodies[VLQTEST_THUNKS];
[[gnu::used]] unsigned char vlqtestInUse[VLQTEST_THUNKS];
}

namespace {

constexpr int kStubBytes = 16;

// The slot of the stub at this address, or null if that is no stub.
Body* slotOf(const unsigned char* stub) {
    if (stub[0] != 0xFF || stub[1] != 0x25) return nullptr;
    std::int32_t displacement;
    std::memcpy(&displacement, stub + 2, sizeof displacement);
    return const_cast<Body*>(reinterpret_cast<const Body*>(stub + 6 + displacement));
}

// All stubs are in one row, as are their slots.
const unsigned char* firstStub = nullptr;
int stubs = 0;

void findStubs(const unsigned char* any) {
    firstStub = any;
    while (slotOf(firstStub - kStubBytes) == slotOf(firstStub) - 1) firstStub -= kStubBytes;
    while (slotOf(firstStub + stubs * kStubBytes) == slotOf(firstStub) + stubs) ++stubs;
}

// Names of one body share a thunk, as they share the body.
void redirect() {
    Body* slots = slotOf(firstStub);
    for (int i = 0; i < stubs; ++i) {
        int first = 0;
        while (first < i && vlqtestBodies[first] != slots[i]) ++first;
        vlqtestBodies[i] = slots[i];
        slots[i] = reinterpret_cast<Body>(vlqtestThunks + first * 16);
    }
}

class VectorState : public testing::Environment {
    void TearDown() override {
        std::string names;
        for (int i = 0; i < stubs; ++i) {
            Dl_info info;
            if (vlqtestInUse[i] && dladdr(firstStub + i * kStubBytes, &info) && info.dli_sname)
                names += std::string(" ") + info.dli_sname;
        }
        EXPECT_EQ("", names) << "these leave the upper halves of vector registers in use";
    }
};

bool processorTellsWhatIsInUse() {
    unsigned a, b, c, d;
    return __get_cpuid_count(0xD, 1, &a, &b, &c, &d) != 0 && (a & 4) != 0;
}

}  // namespace

void vlqtest::watchVectorState() {
    const std::string_view tag = vlqsGetLibVersion()->targetTag;
    if (tag == "s2" || !processorTellsWhatIsInUse()) return;
    void* library = dlopen("libvlqs.so.7", RTLD_NOW | RTLD_NOLOAD);
    const void* stub = library ? dlsym(library, "vlqsGetLibVersion") : nullptr;
    if (!stub) return;
    findStubs(static_cast<const unsigned char*>(stub));
    if (stubs > VLQTEST_THUNKS) return;
    redirect();
    testing::AddGlobalTestEnvironment(new VectorState);
}
