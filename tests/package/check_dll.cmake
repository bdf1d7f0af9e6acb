# Checks that DLL is an executable of FORMAT that exports EXPORT under just that name.
execute_process(COMMAND ${OBJDUMP} -p ${DLL} OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)

if(NOT dump MATCHES "file format ([^\n]+)\n" OR NOT CMAKE_MATCH_1 STREQUAL FORMAT)
  message(FATAL_ERROR "${DLL} is \"${CMAKE_MATCH_1}\", not \"${FORMAT}\"")
endif()
if(NOT dump MATCHES "\\[Ordinal/Name Pointer\\] Table(.*)")
  message(FATAL_ERROR "${DLL} exports nothing")
endif()
# Each line of the table ends with the exported name.
if(NOT CMAKE_MATCH_1 MATCHES "\\[ *[0-9]+\\][^\n]* ${EXPORT}\r?\n")
  message(FATAL_ERROR "${DLL} does not export ${EXPORT}")
endif()
