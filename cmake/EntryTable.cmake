# Writes the entry table from src/frame/names.txt: one slot and one stub for each exported name.
#
# A line of the list is `name` or `name = body`; the latter is a name that shares another's body.
# The list stands in ordinal order, so a name's line is its ordinal among the names built so far.
set(VLQS_NAMES ${CMAKE_CURRENT_SOURCE_DIR}/src/frame/names.txt)
set(VLQS_ENTRY_TABLE ${CMAKE_CURRENT_BINARY_DIR}/generated/entry_table.cpp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${VLQS_NAMES})

function(vlqs_write_entry_table)
  file(STRINGS ${VLQS_NAMES} lines)
  set(slots "")
  set(stubs "")
  set(index 0)
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^(vlqs[A-Za-z0-9_]+)( = (vlqs[A-Za-z0-9_]+))?$")
      message(FATAL_ERROR "${VLQS_NAMES}: cannot read \"${line}\"")
    endif()
    set(name ${CMAKE_MATCH_1})
    set(body ${CMAKE_MATCH_3})
    if(NOT body)
      set(body ${name})
    endif()
    string(APPEND slots "    reinterpret_cast<Slot>(&vlq::${body}),\n")
    string(APPEND stubs "VLQS_STUB(${name}, ${index})\n")
    math(EXPR index "${index} + 1")
  endforeach()
  file(CONFIGURE OUTPUT ${VLQS_ENTRY_TABLE} CONTENT [=[
// Written by cmake/EntryTable.cmake from src/frame/names.txt.
#include "vlqs.h"

using Slot = void (*)();

// Writable, so that a tool may redirect an export; nothing in the library writes it.
extern "C" {
extern Slot vlqSlots[] __attribute__((visibility("hidden")));
[[gnu::used]] Slot vlqSlots[] = {
@slots@};
}

#define VLQS_STUB(name, index)                        \
    asm(".text\n"                                     \
        ".p2align 4, 0xcc\n"                          \
        ".globl " #name "\n"                          \
        ".type " #name ", @function\n" #name ":\n"    \
        "    jmp *vlqSlots + 8*" #index "(%rip)\n"    \
        ".size " #name ", . - " #name "\n"            \
        ".p2align 4, 0xcc\n");

@stubs@]=] @ONLY)
endfunction()
vlqs_write_entry_table()
