# Installs the build in BUILD_DIR below WORK_DIR, builds APPLICATION_DIR against what was installed
# with the installed toolchain file of the name TOOLCHAIN, and runs it. The ZIP must hold the same
# files.
set(installed ${WORK_DIR}/installed)
set(built ${WORK_DIR}/application)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${WORK_DIR} RESULT_VARIABLE status
                  OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command}\nended with ${status}:\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(list_files result folder)
  file(GLOB_RECURSE files RELATIVE ${folder} ${folder}/*)
  list(SORT files)
  set(${result} "${files}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${installed})

run(${CMAKE_CPACK_COMMAND} -G ZIP --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/zip)
file(GLOB zip ${WORK_DIR}/zip/*.zip)
cmake_path(GET zip STEM LAST_ONLY top)
run(${CMAKE_COMMAND} -E tar xf ${zip})
list_files(expected ${installed})
list_files(packed ${WORK_DIR}/${top})
if(NOT packed STREQUAL expected)
  message(FATAL_ERROR "${zip} holds\n${packed}\nand the installation\n${expected}")
endif()

set(others ${expected})
list(FILTER others INCLUDE REGEX "^include/")
list(FILTER others EXCLUDE REGEX "^include/(vcl|qel)/([a-z]+/[A-Za-z0-9_]+|vcl|qel)\\.h$")
set(hidden ${expected})
list(FILTER hidden INCLUDE REGEX "/private/|^include/qel/design/")
if(others OR hidden)
  message(FATAL_ERROR "Installed though not public: ${others} ${hidden}")
endif()

if(TOOLCHAIN)
  set(TOOLCHAIN ${installed}/lib/cmake/QEL/${TOOLCHAIN})
endif()
run(${CMAKE_COMMAND} -S ${APPLICATION_DIR} -B ${built} -G Ninja
    -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -D CMAKE_PREFIX_PATH=${installed}
    -D CMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${built})
run(${EMULATOR} ${built}/application.exe)
foreach(said "MainForm shows \"Made from a form file: Grüße\"" "The button says \"&Hello\""
             "core/api.h is the application's, data/strings.h the application's" "Names are ours")
  string(FIND "${output}" "${said}" at)
  if(at LESS 0)
    message(FATAL_ERROR "The application was to write\n${said}\nand wrote\n${output}")
  endif()
endforeach()
include(${CMAKE_CURRENT_LIST_DIR}/tutorial.cmake)
