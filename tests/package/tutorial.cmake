# The tutorial's application, from its form file to the running program; included with the package
# installed in `installed`. The designer finds nothing to change in the unit, and the window comes
# back where it was left.
set(tutorial ${WORK_DIR}/tutorial)
set(designer ${EMULATOR} ${BUILD_DIR}/bin/designer.exe --settings ${tutorial}/designer.ini
    --package ${BUILD_DIR}/bin/qel.dll --unit ${tutorial}/mainform.dfm)
file(COPY ${TUTORIAL_DIR}/ DESTINATION ${tutorial})
# The program's settings in a folder of this run, instead of the system's.
file(READ ${tutorial}/mainform.dfm form)
string(REPLACE "'firststeps.ini'" "'./firststeps.ini'" form "${form}")
file(WRITE ${tutorial}/mainform.dfm "${form}")
run(${designer})

# The finished unit is the one of the form; what lets a program without a user end is added.
file(READ ${TUTORIAL_DIR}/mainform.cpp finished)
file(READ ${tutorial}/mainform.cpp unit)
if(NOT unit STREQUAL finished OR NOT unit MATCHES "SetPercentage")
  message(FATAL_ERROR "The designer was to leave this as it is:\n${finished}\nand made of it\n${unit}")
endif()
string(REPLACE "LoadForm(); }" [[LoadForm(); OnActivate = [this](vcl::TObject*) {
  if (Left() == 40) SetLeft(321);
  More->Perform(WM_LBUTTONDOWN);
  More->Perform(WM_LBUTTONUP);
  std::printf("Left %d, %d percent\n", Left(), Progress->Percentage());
  Close();
}; }]] unit
       "${unit}")
string(PREPEND unit "#include <cstdio>\n#include \"vcl/rtl/win32.h\"\n")
file(WRITE ${tutorial}/mainform.cpp "${unit}")

run(${CMAKE_COMMAND} -S ${tutorial} -B ${tutorial}/build -G Ninja
    -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -D CMAKE_PREFIX_PATH=${installed}
    -D CMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${tutorial}/build)
run(${EMULATOR} ${tutorial}/build/firststeps.exe)
run(${EMULATOR} ${tutorial}/build/firststeps.exe)
if(NOT output MATCHES "Left 321, 10 percent")
  message(FATAL_ERROR "The window was to come back at 321, and the program wrote\n${output}")
endif()
