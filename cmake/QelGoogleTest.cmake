# GoogleTest, built from the sources that Debian's package googletest installs.
set(QEL_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "The sources of GoogleTest")
option(QEL_TESTS "Build the tests" ON)

if(QEL_TESTS)
  if(NOT EXISTS ${QEL_GOOGLETEST_DIR}/CMakeLists.txt)
    message(FATAL_ERROR "No GoogleTest in ${QEL_GOOGLETEST_DIR}: install the package googletest, "
                        "set QEL_GOOGLETEST_DIR, or set QEL_TESTS to OFF.")
  endif()
  set(INSTALL_GTEST OFF)
  add_subdirectory(${QEL_GOOGLETEST_DIR} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()
