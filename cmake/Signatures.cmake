# Reads the public headers, and writes the signature table: for each
# exported function that returns a status its name, its parameters, and a way to call it.
function(vlqs_write_signatures output)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/vlqs/*.h)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${headers})
  set(table "")
  set(parameter_lists "")
  foreach(header IN LISTS headers)
    file(READ ${header} text)
    string(REPLACE ";" "" text "${text}")
    # A declaration that is too long for one line continues on the next ones.
    string(REGEX REPLACE "\n  +" " " text "${text}")
    string(REPLACE "( " "(" text "${text}")
    string(REGEX MATCHALL "\nVlqStatus vlqs[A-Za-z0-9_]+\\([^)]*\\)" declarations "${text}")
    foreach(declaration IN LISTS declarations)
      string(REGEX MATCH "VlqStatus (vlqs[A-Za-z0-9_]+)\\((.*)\\)$" _ "${declaration}")
      set(name ${CMAKE_MATCH_1})
      string(REPLACE ", " ";" parameters "${CMAKE_MATCH_2}")
      set(described "")
      set(passed "")
      set(index 0)
      foreach(parameter IN LISTS parameters)
        # `const Vlq32f* const rows[]` and the like: an array parameter is a pointer.
        string(REGEX MATCH "^(.*[ *])([A-Za-z0-9_]+)(\\[\\])?$" _ "${parameter}")
        string(STRIP "${CMAKE_MATCH_1}" type)
        set(parameter_name ${CMAKE_MATCH_2})
        if(CMAKE_MATCH_3)
          string(APPEND type " *")
        endif()
        string(APPEND described "{\"${type}\", \"${parameter_name}\"}, ")
        string(APPEND passed ", a.get<${type}>(${index})")
        math(EXPR index "${index} + 1")
      endforeach()
      string(REGEX REPLACE "^, " "" passed "${passed}")
      # Constants all of it: compilers choke on one initialiser that runs code for every function.
      string(APPEND parameter_lists "constexpr Parameter ${name}Parameters[] = {${described}};\n")
      string(APPEND table "    {\"${name}\", ${name}Parameters, [](Arguments& a) { return ${name}(${passed}); }},\n")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${output} CONTENT [=[
// Written by cmake/Signatures.cmake from the public headers.
#include "harness/signatures.h"

namespace {

using vlqtest::Arguments;
using vlqtest::Parameter;

@parameter_lists@
constexpr vlqtest::Signature table[] = {
@table@};

}  // namespace

std::span<const vlqtest::Signature> vlqtest::signatures() { return table; }
]=] @ONLY)
endfunction()
