# vlqs_add_library(target level [DIR subdir])
# One build of the one source for one instruction set. Shared builds carry the same file name and
# soname; DIR is where the build is below the library directory, installed and in the build tree.
find_package(Threads REQUIRED)
file(GLOB_RECURSE VLQS_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/src/*.cpp)

# A transform keeps its public name in a backtrace: its body does not end in a jump to a kernel.
file(GLOB VLQS_TRANSFORMS CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/src/fourier/fft_*.cpp)
set_source_files_properties(${VLQS_TRANSFORMS} PROPERTIES COMPILE_OPTIONS -fno-optimize-sibling-calls)

set(VLQS_simd_bytes_s2 16)
set(VLQS_simd_bytes_v3 32)
set(VLQS_simd_bytes_v4 64)
set(VLQS_arch_s2 x86-64)
set(VLQS_arch_v3 x86-64-v3)
set(VLQS_arch_v4 x86-64-v4)

# What the core library and all builds of vlqs have in common: what leaves them is written in a
# version script, all symbols are bound at load, and neither needs a run-time library of C++.
function(vlqs_set_up_library target version_script)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vlqs_flags>)
  target_link_options(${target} PRIVATE
    -Wl,-z,text -Wl,-z,now -Wl,--enable-new-dtags -Wl,--version-script=${version_script})
  if(NOT VLQS_SANITIZE)
    target_link_options(${target} PRIVATE -Wl,-z,defs -static-libgcc)
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE C)
  endif()
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${version_script})
endfunction()

function(vlqs_add_library target level)
  cmake_parse_arguments(ARG "" "DIR" "" ${ARGN})
  add_library(${target} ${VLQS_LINKAGE} ${VLQS_SOURCES} ${VLQS_ENTRY_TABLE})
  vlqs_set_up_library(${target} ${PROJECT_SOURCE_DIR}/cmake/vlqs.map)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(${target} PRIVATE
    VLQS_BUILDING VLQ_SIMD_BYTES=${VLQS_simd_bytes_${level}} VLQ_TARGET_TAG="${level}")
  # No contraction and no fast mathematics: a result is what the source says. A fused
  # multiply-add is written where it is meant.
  target_compile_options(${target} PRIVATE
    -march=${VLQS_arch_${level}} -fvisibility=hidden -fvisibility-inlines-hidden
    -ffp-contract=off -fno-math-errno -fno-exceptions)
  # A function with a wide vector among its arguments returns with the upper halves of the registers
  # in use, and leaves it to its caller to clear them, which GCC's callers do not. This pass makes
  # such arguments out of references.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT level STREQUAL "s2")
    target_compile_options(${target} PRIVATE -fno-ipa-sra)
  endif()
  target_link_libraries(${target} PUBLIC vlqcore PRIVATE m Threads::Threads)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME vlqs
    # The core library is beside the baseline build, two folders above the tuned ones.
    INSTALL_RPATH "$ORIGIN;$ORIGIN/../.."
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/${level}
    ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/${level})
  # The tuned builds are for the dynamic loader; programs link with the baseline.
  if(ARG_DIR)
    install(TARGETS ${target} LIBRARY
      DESTINATION ${CMAKE_INSTALL_LIBDIR}/${ARG_DIR} NAMELINK_SKIP)
  else()
    install(TARGETS ${target} EXPORT vlqsTargets
      LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  endif()
endfunction()
