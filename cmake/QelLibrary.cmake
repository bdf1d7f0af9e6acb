# The sources of rooms, their private/ folders included, that belong to the platform that is built
# for. What names files is taken as it is.
function(qel_folder_sources result)
  set(sources)
  foreach(folder IN LISTS ARGN)
    if(folder MATCHES "\\.cpp$")
      set(found ${PROJECT_SOURCE_DIR}/${folder})
    else()
      file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp
                                        ${PROJECT_SOURCE_DIR}/${folder}/private/*.cpp)
    endif()
    list(APPEND sources ${found})
  endforeach()
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "_win32\\.cpp$")
  endif()
  set(${result} ${sources} PARENT_SCOPE)
endfunction()

# qel_add_library(NAME BUILD_DEFINITION macro PORTABLE rooms... WINDOWED rooms...
#                 WINDOW_FREE files... HEADERS files... LIBRARIES targets...
#                 SYSTEM_LIBRARIES names... NATIVE_LIBRARIES names...)
#
# Adds the shared library NAME with all sources of its rooms; elsewhere than on Windows only the
# WINDOW_FREE files of the WINDOWED ones. Where there are no sources there is no target. The form
# files (*.dfm) in the WINDOWED folders become its resources; a form class of the library gives
# LoadForm its module.
# SYSTEM_LIBRARIES are Windows's, NATIVE_LIBRARIES those that stand in for them elsewhere.
# HEADERS stand beside the rooms and are installed with the rooms' public ones.
# BUILD_DEFINITION is what the library's api.h asks for to know whether it exports or imports.
function(qel_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "BUILD_DEFINITION"
                        "PORTABLE;WINDOWED;WINDOW_FREE;HEADERS;LIBRARIES;SYSTEM_LIBRARIES;NATIVE_LIBRARIES")
  set(folders ${arg_PORTABLE})
  if(WIN32)
    list(APPEND folders ${arg_WINDOWED})
  else()
    list(APPEND folders ${arg_WINDOW_FREE})
  endif()
  qel_folder_sources(sources ${folders})
  if(NOT sources)
    return()
  endif()

  add_library(${name} SHARED ${sources})
  add_library(QEL::${name} ALIAS ${name})
  set_target_properties(${name} PROPERTIES QEL_FOLDERS "${folders}" QEL_HEADERS "${arg_HEADERS}")
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_compile_definitions(${name} PRIVATE ${arg_BUILD_DEFINITION})
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:include>)
  target_link_libraries(${name} PUBLIC ${arg_LIBRARIES})
  if(WIN32)
    set_target_properties(${name} PROPERTIES PREFIX "")
    target_link_libraries(${name} PRIVATE ${arg_SYSTEM_LIBRARIES})
    list(TRANSFORM arg_WINDOWED APPEND /*.dfm OUTPUT_VARIABLE forms)
    file(GLOB forms CONFIGURE_DEPENDS ${forms})
    list(TRANSFORM arg_WINDOWED APPEND /icons OUTPUT_VARIABLE icons)
    qel_icon_resources(icons ${icons})
    if(forms OR icons)
      qel_target_resources(${name} FORMS ${forms} RESOURCES ${icons})
    endif()
  else()
    target_link_libraries(${name} PRIVATE ${arg_NATIVE_LIBRARIES})
  endif()
  if(MINGW)
    # A fault in a handler is raised as an exception, which its code must be compiled for.
    target_compile_options(${name} PUBLIC -fnon-call-exceptions)
    # Only what is marked is exported, even while nothing is marked yet.
    target_link_options(${name} PRIVATE -Wl,--exclude-all-symbols)
  endif()
  qel_reuse_precompiled(precompiled ${name})
endfunction()
