# The compiler's run-time DLLs. Every module shares them, or exceptions could not pass from one
# module to another, so they lie beside the programs and are part of the package.
if(MINGW)
  set(QEL_RUNTIME_DLLS)
  foreach(name libstdc++-6.dll libgcc_s_dw2-1.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE ${path})
      continue()  # Each architecture has one of the two libgcc.
    endif()
    set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
    if(NOT EXISTS ${copy} OR ${path} IS_NEWER_THAN ${copy})
      file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
      execute_process(COMMAND ${CMAKE_STRIP} --strip-unneeded -o ${copy} ${path}
                      COMMAND_ERROR_IS_FATAL ANY)
    endif()
    list(APPEND QEL_RUNTIME_DLLS ${copy})
  endforeach()
endif()
