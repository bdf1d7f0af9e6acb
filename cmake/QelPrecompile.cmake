# The headers that nearly every source needs are parsed once: the C++ library's, for tests also
# googletest's, and for those with windows all of the class library's. The product takes none of
# ours so, and its sources name each that they need.
if(MINGW)
  option(QEL_PRECOMPILE "Parse the C++ library's headers once for all sources" ON)
endif()

set(QEL_PRECOMPILED <algorithm> <array> <cmath> <cstring> <functional> <map> <memory> <optional>
    <string> <string_view> <utility> <vector>)

# qel_precompiled(OWNER [DEFINITIONS macros...] [LIBRARIES targets...] [FOLDERS folders...]
#                 [HEADERS headers...])
#
# Adds OWNER, which compiles the headers; the macros and the options must be those of the targets
# that take them. What is compiled against qelhost has its options, but can't wait for it here.
function(qel_precompiled owner)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEFINITIONS;LIBRARIES;FOLDERS;HEADERS")
  if(NOT QEL_PRECOMPILE)
    return()
  endif()
  set(source ${PROJECT_BINARY_DIR}/${owner}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Compiles the headers that others take from it.\n")
  add_library(${owner} OBJECT EXCLUDE_FROM_ALL ${source})
  target_compile_options(${owner} PRIVATE -fnon-call-exceptions)
  target_compile_definitions(${owner} PRIVATE ${arg_DEFINITIONS})
  target_include_directories(${owner} PRIVATE ${arg_FOLDERS})
  target_link_libraries(${owner} PRIVATE ${arg_LIBRARIES})
  target_precompile_headers(${owner} PRIVATE ${QEL_PRECOMPILED} ${arg_HEADERS})
endfunction()

# Gives the targets the headers that OWNER has compiled. g++ 12 sees overruns in std::string's short
# texts that are none, and where the header is precompiled it forgets that it is the system's.
function(qel_reuse_precompiled owner)
  if(TARGET ${owner})
    foreach(target IN LISTS ARGN)
      target_precompile_headers(${target} REUSE_FROM ${owner})
      target_compile_options(${target} PRIVATE
        -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
    endforeach()
  endif()
endfunction()
