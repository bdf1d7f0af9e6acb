# How our own sources are compiled.
if(MSVC)
  add_compile_options(/W4 /utf-8 /permissive-)
else()
  # A change of the sign alone is no reason for a cast; clang's -Wconversion would report it.
  add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                      -Wold-style-cast -Wswitch-enum)
endif()
if(QEL_WERROR)
  set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()

if(MINGW AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  # Doubles are rounded as on every other target, not kept in 80 bits. The system calls back on a
  # stack that is aligned to 4 bytes only, hence the realignment.
  add_compile_options(-msse2 -mfpmath=sse -mstackrealign)
endif()
