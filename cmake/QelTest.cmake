# How a test's executable is started where it can't just be run.
if(WIN32 AND CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
  set(CMAKE_CROSSCOMPILING_EMULATOR
      ${PROJECT_SOURCE_DIR}/tools/wine-run ${QEL_WINDOWS} ${PROJECT_BINARY_DIR}/wineprefix)
endif()
cmake_path(GET PROJECT_BINARY_DIR FILENAME QEL_BUILD_NAME)
# Tests run once after they are compiled: what optimizing them fully costs never comes back.
function(qel_compile_fast target)
  if(MINGW AND TARGET ${target})
    target_compile_options(${target} PRIVATE -O1)
  endif()
endfunction()

if(QEL_TESTS)
  qel_precompiled(precompiled_tests DEFINITIONS _GLIBCXX_ASSERTIONS LIBRARIES GTest::gmock
                  HEADERS <gmock/gmock.h> <gtest/gtest.h>)
  qel_compile_fast(precompiled_tests)
  # The tests that use the screen take the class library as one header, too (testinput.h).
  qel_precompiled(precompiled_window_tests DEFINITIONS _GLIBCXX_ASSERTIONS
                  LIBRARIES GTest::gmock FOLDERS ${PROJECT_SOURCE_DIR}
                  HEADERS <gmock/gmock.h> <gtest/gtest.h> "vcl/vcl.h")
  qel_compile_fast(precompiled_window_tests)
endif()

# qel_add_test(AREA [NATIVE] [WINDOW] [TIMEOUT seconds] [LAUNCHER program] [LIBRARIES targets...]
#              [FORMS ...] [RESOURCES ...])
#
# Adds the test executable of tests/AREA, which is all sources in that folder; nothing while there
# are none. NATIVE areas have no window in them and run on every platform. WINDOW areas use the
# screen, the keyboard and the mouse and so run alone. A main of their own is main.cpp. LAUNCHER
# starts the executable that it is given, or ends with 77 when that can't be run here.
function(qel_add_test area)
  cmake_parse_arguments(PARSE_ARGV 1 arg "NATIVE;WINDOW" "TIMEOUT;LAUNCHER"
                        "LIBRARIES;FORMS;RESOURCES")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${area}/*.cpp)
  if(NOT sources OR NOT (WIN32 OR arg_NATIVE))
    return()
  endif()
  set(main GTest::gmock_main)
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${area}/main.cpp)
    set(main GTest::gmock)
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()

  set(target test_${area})
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_definitions(${target} PRIVATE _GLIBCXX_ASSERTIONS)
  target_link_libraries(${target} PRIVATE ${arg_LIBRARIES} ${main})
  if(arg_WINDOW)
    qel_reuse_precompiled(precompiled_window_tests ${target})
  else()
    qel_reuse_precompiled(precompiled_tests ${target})
  endif()
  qel_compile_fast(${target})
  if(WIN32)
    qel_target_resources(${target} MANIFEST FORMS ${arg_FORMS} RESOURCES ${arg_RESOURCES})
  endif()

  if(arg_LAUNCHER)
    add_test(NAME ${QEL_BUILD_NAME}/${area}
             COMMAND ${arg_LAUNCHER} ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${target}>)
  else()
    add_test(NAME ${QEL_BUILD_NAME}/${area} COMMAND ${target})
  endif()
  # What runs the program ends it first, so that it can say so and clean up.
  math(EXPR last_resort "${arg_TIMEOUT} + 60")
  set_tests_properties(${QEL_BUILD_NAME}/${area} PROPERTIES
    TIMEOUT ${last_resort}
    RUN_SERIAL "${arg_WINDOW}"
    ENVIRONMENT "WINE_RUN_TIMEOUT=${arg_TIMEOUT};UBSAN_OPTIONS=print_stacktrace=1")
  if(arg_LAUNCHER)
    set_tests_properties(${QEL_BUILD_NAME}/${area} PROPERTIES SKIP_RETURN_CODE 77)
  endif()
endfunction()
