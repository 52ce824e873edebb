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
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Libraries and programs stand in two folders, as they do when installed, so that
# run-time libraries are found the same way in both places.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
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
endif()
if(BASEFRAME_SANITIZE)
  target_compile_options(baseframe_options INTERFACE
    -fsanitize=${BASEFRAME_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(baseframe_options INTERFACE -fsanitize=${BASEFRAME_SANITIZE})
endif()

# A target of this project: the options above, and the Qt headers precompiled once.
function(baseframe_target target)
  target_link_libraries(${target} PRIVATE baseframe_options)
  if(BASEFRAME_PCH)
    get_target_property(libraries ${target} LINK_LIBRARIES)
    if("Qt6::Widgets" IN_LIST libraries OR "Component_TRV" IN_LIST libraries
       OR "BaseFrame_PKG" IN_LIST libraries OR "ReferenceHost" IN_LIST libraries)
      target_precompile_headers(${target} PRIVATE <QtWidgets>)
    else()
      target_precompile_headers(${target} PRIVATE <QtCore>)
    endif()
  endif()
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
