# vlqs_add_library(target TAG s2 SIMD_BYTES 16 ARCH x86-64 DIR subdir)
# One build of the one source for one instruction set. All builds carry the same file name and
# soname; DIR is where the build lies below the library directory, installed and in the build tree.
find_package(Threads REQUIRED)
file(GLOB_RECURSE VLQS_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/src/*.cpp)

function(vlqs_add_library target)
  cmake_parse_arguments(ARG "" "TAG;SIMD_BYTES;ARCH;DIR" "" ${ARGN})
  add_library(${target} SHARED ${VLQS_SOURCES} ${VLQS_ENTRY_TABLE})
  target_include_directories(${target}
    PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    PRIVATE ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(${target} PRIVATE
    VLQS_BUILDING VLQ_SIMD_BYTES=${ARG_SIMD_BYTES} VLQ_TARGET_TAG="${ARG_TAG}")
  # No contraction and no fast mathematics: a result is what the source says. A fused
  # multiply-add is written where it is meant.
  target_compile_options(${target} PRIVATE
    -march=${ARG_ARCH} -fvisibility=hidden -fvisibility-inlines-hidden
    -ffp-contract=off -fno-math-errno -fno-exceptions)
  target_link_libraries(${target} PUBLIC vlqcore PRIVATE vlqs_flags Threads::Threads)
  target_link_options(${target} PRIVATE
    -Wl,-z,text -Wl,--enable-new-dtags
    -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/vlqs.map)
  if(NOT VLQS_SANITIZE)
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME vlqs
    # The core library lies beside the baseline build, two folders above the tuned ones.
    INSTALL_RPATH "$ORIGIN;$ORIGIN/../.."
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/${ARG_TAG}
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/vlqs.map)
  install(TARGETS ${target} EXPORT vlqsTargets LIBRARY
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/${ARG_DIR}
    NAMELINK_COMPONENT Development)
endfunction()
