# How applications are built. This file is installed: find_package(QEL) brings the same functions.
#
# qel_add_application(NAME SOURCES files... [FORMS files.dfm...] [RESOURCES NAME=file...]
#                     [ICON file.ico] [LIBRARIES targets...] [DESCRIPTION text] [CONSOLE])
#
# Adds the executable NAME, linked with the component package (or with what LIBRARIES names
# instead), with its manifest and its resources. CONSOLE makes a console program of it. DESCRIPTION
# is the line that ./run help shows.
#
# qel_icon_resources(RESULT folders...)
#
# The bitmaps of folders as RESOURCES takes them; a designer shows them for the classes that they are
# named after.
#
# qel_target_resources(TARGET [MANIFEST] [FORMS ...] [RESOURCES ...] [ICON ...])
#
# Embeds the same into any executable or DLL. A form file becomes an RCDATA resource named after
# its class; what RESOURCES names becomes a BITMAP, CURSOR or ICON by the file's ending, else RCDATA.
set(QEL_MANIFEST ${CMAKE_CURRENT_LIST_DIR}/application.manifest)

# The class that a form file in text form declares in its first line.
function(qel_form_class result form)
  file(STRINGS ${form} first LIMIT_COUNT 1)
  if(NOT first MATCHES "^(object|inherited|inline)[ \t]+[A-Za-z_0-9]+[ \t]*:[ \t]*([A-Za-z_0-9]+)")
    message(FATAL_ERROR "${form}: a form file begins with \"object Name: TClassName\", not with "
                        "\"${first}\"")
  endif()
  set(${result} ${CMAKE_MATCH_2} PARENT_SCOPE)
endfunction()

function(qel_resource_type result file)
  cmake_path(GET file EXTENSION LAST_ONLY extension)
  string(TOLOWER "${extension}" extension)
  set(types .bmp BITMAP .cur CURSOR .ico ICON)
  list(FIND types "${extension}" at)
  if(extension STREQUAL "" OR at LESS 0)
    set(${result} RCDATA PARENT_SCOPE)
  else()
    math(EXPR at "${at} + 1")
    list(GET types ${at} type)
    set(${result} ${type} PARENT_SCOPE)
  endif()
endfunction()

function(qel_icon_resources result)
  set(resources)
  foreach(folder IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
    file(GLOB files CONFIGURE_DEPENDS ${folder}/*.bmp)
    foreach(file IN LISTS files)
      cmake_path(GET file STEM name)
      list(APPEND resources ${name}=${file})
    endforeach()
  endforeach()
  set(${result} ${resources} PARENT_SCOPE)
endfunction()

function(qel_target_resources target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "MANIFEST" "ICON" "FORMS;RESOURCES")
  set(lines)
  set(files)

  macro(add_resource name type file)
    set(path ${file})
    cmake_path(ABSOLUTE_PATH path BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
    if(NOT EXISTS ${path})
      message(FATAL_ERROR "${target}: there is no resource file ${path}")
    endif()
    list(APPEND files ${path})
    string(APPEND lines "${name} ${type} \"${path}\"\n")
  endmacro()

  if(arg_MANIFEST)
    add_resource(1 24 ${QEL_MANIFEST})
  endif()
  if(arg_ICON)
    add_resource(MAINICON ICON ${arg_ICON})
  endif()
  foreach(form IN LISTS arg_FORMS)
    cmake_path(ABSOLUTE_PATH form BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
    # The resource's name is in the file, so it is looked at again whenever the file changes.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${form})
    qel_form_class(class ${form})
    string(TOUPPER ${class} class)
    add_resource(${class} RCDATA ${form})
  endforeach()
  foreach(resource IN LISTS arg_RESOURCES)
    if(NOT resource MATCHES "^([^=]+)=(.+)$")
      message(FATAL_ERROR "${target}: RESOURCES takes NAME=file, not \"${resource}\"")
    endif()
    string(TOUPPER ${CMAKE_MATCH_1} name)
    set(file ${CMAKE_MATCH_2})
    qel_resource_type(type ${file})
    add_resource(${name} ${type} ${file})
  endforeach()

  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.rc)
  file(CONFIGURE OUTPUT ${script} CONTENT "${lines}" @ONLY)
  set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${files}")
  target_sources(${target} PRIVATE ${script})
endfunction()

function(qel_add_application name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "CONSOLE" "ICON;DESCRIPTION"
                        "SOURCES;FORMS;RESOURCES;LIBRARIES")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "qel_add_application(${name}): unknown \"${arg_UNPARSED_ARGUMENTS}\"")
  endif()
  if(NOT arg_SOURCES)
    message(FATAL_ERROR "qel_add_application(${name}): no SOURCES")
  endif()
  if(NOT arg_LIBRARIES)
    set(arg_LIBRARIES QEL::qel)
  endif()

  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
  qel_target_resources(${name} MANIFEST ICON ${arg_ICON}
                       FORMS ${arg_FORMS} RESOURCES ${arg_RESOURCES})
  if(NOT arg_CONSOLE)
    set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
    if(MSVC)
      # Programs begin in main, whether they have a console or not.
      target_link_options(${name} PRIVATE /ENTRY:mainCRTStartup)
    endif()
  endif()
  if(QEL_BIN_DIR)
    qel_copy_libraries(${name})
  endif()
  set_property(GLOBAL APPEND PROPERTY QEL_APPLICATIONS ${name})
endfunction()

# Outside the package's own build, where everything shares one folder, an application gets its
# DLLs copied beside it.
function(qel_copy_libraries target)
  file(GLOB libraries ${QEL_BIN_DIR}/*.dll)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${libraries} $<TARGET_FILE_DIR:${target}>
    COMMENT "Copying DLLs beside ${target}"
    VERBATIM)
endfunction()
