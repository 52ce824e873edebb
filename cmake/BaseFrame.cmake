# What every target of the project is built with, and how a room becomes a library.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
# Forms bind their handlers themselves: nothing is to be sought by its name when one is made.
set(CMAKE_AUTOUIC_OPTIONS --no-autoconnection)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The target all_verify_interface_header_sets compiles every public header alone.
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)
# Libraries and programs stand in two folders, as they do when installed, so that
# run-time libraries are found the same way in both places.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# Programs find the libraries of the build whose folder they stand in.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
# Installed programs find the libraries beside them wherever the whole is put.
file(RELATIVE_PATH library_folder "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${library_folder}")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# Links a test program in a fifth of the time of the usual linker.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  include(CheckLinkerFlag)
  check_linker_flag(CXX -fuse-ld=gold BASEFRAME_LINKER_GOLD)
  if(BASEFRAME_LINKER_GOLD)
    add_link_options(-fuse-ld=gold)
  endif()
endif()

add_library(baseframe_options INTERFACE)
target_compile_definitions(baseframe_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
  QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MSVC)
  target_compile_options(baseframe_options INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(baseframe_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wconversion -Wno-sign-conversion -Wformat=2 -Werror)
  if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # Sources that are compiled together are included, which makes what is private to one of them look shared.
    target_compile_options(baseframe_options INTERFACE -Wno-subobject-linkage)
  endif()
  # Programs too, so that they share the libraries' precompiled headers.
  target_compile_options(baseframe_options INTERFACE -fPIC)
endif()
if(BASEFRAME_SANITIZE)
  target_compile_options(baseframe_options INTERFACE
    -fsanitize=${BASEFRAME_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # A library calls its own copy of what a program instantiates too: that of a program may not be instrumented.
  target_link_options(baseframe_options INTERFACE -fsanitize=${BASEFRAME_SANITIZE} -Wl,-Bsymbolic-functions)
endif()

# baseframe_precompiled_headers(NAME HEADERS ... LIBRARIES ...): headers that many targets include, precompiled once.
function(baseframe_precompiled_headers name)
  cmake_parse_arguments(PCH "" "" "HEADERS;LIBRARIES" ${ARGN})
  file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled.cpp" CONTENT "// Carries the precompiled headers.\n")
  set(target baseframe_precompiled_${name})
  add_library(${target} STATIC "${CMAKE_BINARY_DIR}/precompiled.cpp")
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  target_link_libraries(${target} PRIVATE baseframe_options ${PCH_LIBRARIES})
  target_precompile_headers(${target} PRIVATE ${PCH_HEADERS})
endfunction()

# baseframe_target(TARGET [KIND]): a target of this project: the options above and the precompiled headers of its kind,
# those without windows or those with.
function(baseframe_target target)
  target_link_libraries(${target} PRIVATE baseframe_options)
  if(NOT BASEFRAME_PCH)
    return()
  endif()
  get_target_property(libraries ${target} LINK_LIBRARIES)
  set(part Core)
  foreach(library IN LISTS libraries)
    if(library MATCHES "^(Qt6::Widgets|Component_TRV|BaseFrame_PKG|ReferenceHost|TestSupport|HostTestSupport|WorkbenchParts|WorkbenchForms)$")
      set(part Widgets)
    endif()
  endforeach()
  target_precompile_headers(${target} REUSE_FROM baseframe_precompiled_${ARGV1}${part})
endfunction()

# baseframe_library(TARGET MACRO): the shared library of the room in the current folder.
# MACRO_LIBRARY is defined while the library itself is built; the room's own folder is the
# only include directory it offers to the rooms below.
function(baseframe_library target macro)
  add_library(${target} SHARED)
  target_compile_definitions(${target} PRIVATE ${macro}_LIBRARY)
  target_include_directories(${target} PUBLIC
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/BaseFrame_PKG>")
endfunction()
