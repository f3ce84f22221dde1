// The life cycle of a state: built in the caller's memory or allocated, and released by one of the
// four patterns. Checks of a family's own parameters come before, in its public functions.
//
// A State is a struct whose first field is `tag`. One that InitAlloc can make has a field `owned`,
// 1 when the library allocated the block. kAlignment is the boundary that the header is put on in
// memory of any alignment; the size query counts it in.
//
//     struct VlqsExampleState {
//         static constexpr std::size_t kAlignment = 16;
//         Vlq32u tag;
//         RelPtr<Vlq32f> table;
//         Vlq32s owned;
//     };
#pragma once

#include "frame/state/layout.h"
#include "frame/state/tag.h"
#include "vlqs/frame.h"

namespace vlq {

// ---- Init ---------------------------------------------------------------------------------------

// Builds a state inside memory of `bytes` bytes. build(state, cursor) carves the arrays and fills
// everything in but the tag; only when it succeeds does the state come alive.
template <class State, class Build>
VlqStatus initState(State** outState, Vlq32u tag, void* memory, Vlq64s bytes, Build build) {
    if (!fitsState(bytes)) return vlqStsNoMemory;
    Cursor cursor(memory, bytes);
    State* state = cursor.takeHeader<State>(State::kAlignment);
    const VlqStatus status = build(*state, cursor);
    if (status != vlqStsOk) return status;
    state->tag = tag;
    *outState = state;
    return vlqStsOk;
}

// ---- InitAlloc ----------------------------------------------------------------------------------

// Allocates a block for the state, and one that lives as long as the call where scratchBytes is
// above 0, and has init(memory, scratch) build the state there and store its address.
template <class State, class Init>
VlqStatus initAllocState(State** outState, Vlq64s bytes, Vlq64s scratchBytes, Init init) {
    if (!fitsState(bytes) || !fitsState(scratchBytes)) return vlqStsNoMemory;
    Vlq8u* const memory = vlqsMalloc_8u(static_cast<Vlq32s>(bytes));
    if (!memory) return vlqStsNoMemory;
    Vlq8u* scratch = nullptr;
    if (scratchBytes > 0) {
        scratch = vlqsMalloc_8u(static_cast<Vlq32s>(scratchBytes));
        if (!scratch) {
            vlqsFree(memory);
            return vlqStsNoMemory;
        }
    }
    const VlqStatus status = init(memory, scratch);
    if (scratch) vlqsFree(scratch);
    if (status == vlqStsOk)
        (*outState)->owned = 1;
    else
        vlqsFree(memory);
    return status;
}

// ---- Free ---------------------------------------------------------------------------------------
// A release(state) frees what the state holds in blocks of its own.

// Clears the tag, so that a second Free finds no state; frees an owned block.
template <Vlq32u... accepted, class State>
VlqStatus freeAndClear(State* state) {
    if (!state) return vlqStsNullPtr;
    if (!isOneOf<accepted...>(state->tag)) return vlqStsBadSpec;
    state->tag = 0;
    if (state->owned == 1) vlqsFree(state);
    return vlqStsOk;
}

// Frees an owned block and what it holds; a state in the caller's memory stays as it is.
template <Vlq32u... accepted, class State, class Release>
VlqStatus freeIfOwned(State* state, Release release) {
    if (!state) return vlqStsNullPtr;
    if (!isOneOf<accepted...>(state->tag)) return vlqStsBadSpec;
    if (state->owned != 1) return vlqStsOk;
    release(*state);
    vlqsFree(state);
    return vlqStsOk;
}
template <Vlq32u... accepted, class State>
VlqStatus freeIfOwned(State* state) {
    return freeIfOwned<accepted...>(state, [](State&) {});
}

// For states that exist only as allocated blocks.
template <Vlq32u... accepted, class State, class Release>
VlqStatus freeAlways(State* state, Release release) {
    if (!state) return vlqStsNullPtr;
    if (!isOneOf<accepted...>(state->tag)) return vlqStsBadSpec;
    release(*state);
    vlqsFree(state);
    return vlqStsOk;
}
template <Vlq32u... accepted, class State>
VlqStatus freeAlways(State* state) {
    return freeAlways<accepted...>(state, [](State&) {});
}

// The same for states of any tag; null is fine.
template <class State, class Release>
VlqStatus freeUnchecked(State* state, Release release) {
    if (!state) return vlqStsOk;
    release(*state);
    vlqsFree(state);
    return vlqStsOk;
}

}  // namespace vlq
