# One strict set for all code of the project, and the sanitizers when asked for.
add_library(vlqs_flags INTERFACE)
target_compile_options(vlqs_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wcast-qual -Wundef -Wformat=2
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wextra-semi>
  $<$<COMPILE_LANGUAGE:C>:-Wstrict-prototypes>
  $<$<BOOL:${VLQS_WERROR}>:-Werror>)
if(VLQS_SANITIZE)
  target_compile_options(vlqs_flags INTERFACE
    -fsanitize=${VLQS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  target_link_options(vlqs_flags INTERFACE -fsanitize=${VLQS_SANITIZE})
  # Blocks of any length go to a team, see src/frame/team.h.
  target_compile_definitions(vlqs_flags INTERFACE VLQS_EAGER_TEAMS)
endif()
