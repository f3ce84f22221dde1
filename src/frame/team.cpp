// Starts and joins the threads of a team.
//
// There is no pool. A thread that outlived its call would have to survive a fork, an unloading of
// the library and a change of the caller's floating-point mode, and would either spin or be woken.
// A new thread inherits the floating-point mode and the scheduling of its creator, and is gone when
// the call returns.
#include "frame/team.h"

#include <pthread.h>
#include <signal.h>

#include <cfenv>
#include <cstddef>

namespace {

// The kernels keep up to some 100 KiB of buffers on the stack.
constexpr std::size_t kStackBytes = std::size_t{1} << 19;

struct Member {
    pthread_t id;
    void (*work)(const void*, Vlq32s);
    const void* context;
    Vlq32s thread;
    int raised;  // floating-point exceptions
};

void* runMember(void* address) {
    auto& member = *static_cast<Member*>(address);
    member.work(member.context, member.thread);
    member.raised = std::fetestexcept(FE_ALL_EXCEPT);
    return nullptr;
}

// Signals of the process are for the program's own threads; those that an instruction raises can
// only be handled where they arise.
void blockSignals(sigset_t* previous) {
    sigset_t blocked;
    sigfillset(&blocked);
    for (const int synchronous : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGSYS})
        sigdelset(&blocked, synchronous);
    pthread_sigmask(SIG_SETMASK, &blocked, previous);
}

// Starts members 1 and up until all have a thread or the system refuses one. Returns how many of
// the team then run, the calling thread included.
Vlq32s start(Member* members, Vlq32s threads) {
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0) return 1;
    pthread_attr_setstacksize(&attributes, kStackBytes);
    sigset_t previous;
    blockSignals(&previous);  // a thread inherits the mask of its creator
    Vlq32s running = 1;
    while (running < threads &&
           pthread_create(&members[running].id, &attributes, runMember, &members[running]) == 0) {
        ++running;
    }
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    pthread_attr_destroy(&attributes);
    return running;
}

}  // namespace

void vlq::forkTeam(Vlq32s threads, void (*work)(const void*, Vlq32s), const void* context) {
    // The join is a cancellation point, and the threads must not outlive what they work on.
    int cancellation;
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &cancellation);

    Member members[kLargestTeam];
    const Vlq32s wanted = std::min(threads, kLargestTeam);
    for (Vlq32s thread = 1; thread < wanted; ++thread)
        members[thread] = {{}, work, context, thread, 0};
    const Vlq32s running = start(members, wanted);

    work(context, 0);
    for (Vlq32s thread = running; thread < threads; ++thread) work(context, thread);

    int raised = 0;
    for (Vlq32s thread = 1; thread < running; ++thread) {
        pthread_join(members[thread].id, nullptr);
        raised |= members[thread].raised;
    }
    std::feraiseexcept(raised & ~std::fetestexcept(FE_ALL_EXCEPT));
    pthread_setcancelstate(cancellation, nullptr);
}
