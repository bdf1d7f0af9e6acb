# What an installation holds, and the ZIP of it.
include(CMakePackageConfigHelpers)
set(package_dir lib/cmake/QEL)

foreach(library qelhost qel)
  if(TARGET ${library})
    install(TARGETS ${library} EXPORT QELTargets RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
    # Public is what lies in a room itself, not in its private/ folder. What a designer is told lies
    # in the package and has no callers.
    get_target_property(folders ${library} QEL_FOLDERS)
    list(REMOVE_ITEM folders qel/design)
    get_target_property(headers ${library} QEL_HEADERS)
    foreach(folder IN LISTS folders)
      file(GLOB found CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} ${folder}/*.h)
      list(APPEND headers ${found})
    endforeach()
    foreach(header IN LISTS headers)
      cmake_path(GET header PARENT_PATH folder)
      install(FILES ${header} DESTINATION include/${folder})
    endforeach()
  endif()
endforeach()

get_property(applications GLOBAL PROPERTY QEL_APPLICATIONS)
if(applications)
  install(TARGETS ${applications} RUNTIME DESTINATION bin)
endif()
install(FILES ${QEL_RUNTIME_DLLS} DESTINATION bin)
install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/sentences.txt DESTINATION bin)
install(FILES README.md DESTINATION .)
install(DIRECTORY docs DESTINATION .)

install(EXPORT QELTargets NAMESPACE QEL:: DESTINATION ${package_dir})
configure_package_config_file(cmake/QELConfig.cmake.in ${PROJECT_BINARY_DIR}/QELConfig.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QELConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QELConfig.cmake ${PROJECT_BINARY_DIR}/QELConfigVersion.cmake
              cmake/QelApplication.cmake cmake/application.manifest
              cmake/toolchain-i686.cmake cmake/toolchain-x86_64.cmake
        DESTINATION ${package_dir})

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME qel-${PROJECT_VERSION}-${QEL_WINDOWS})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
