# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What every target of ours is built with.
add_library(varlo_options INTERFACE)
target_compile_features(varlo_options INTERFACE cxx_std_20)
target_compile_options(varlo_options INTERFACE
  -Wall -Wextra -Wpedantic $<$<BOOL:${VARLO_WARNINGS_AS_ERRORS}>:-Werror> -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)
target_compile_definitions(varlo_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400 _FILE_OFFSET_BITS=64
  VARLO_VERSION="${PROJECT_VERSION}")
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
  # What Qt would rather have instead is not in 6.4 yet, which Debian 12 has.
  target_compile_definitions(varlo_options INTERFACE QT_WARN_DEPRECATED_UP_TO=0x060400)
endif()
if(CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # With the whole program before it, GCC 12 takes the size of QHash's table for one that may be negative.
  target_link_options(varlo_options INTERFACE -Wno-alloc-size-larger-than)
endif()
if(VARLO_SANITIZE)
  target_compile_options(varlo_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(varlo_options INTERFACE -fsanitize=address,undefined)
endif()

# varlo_library(history SOURCES RenameLog.h RenameLog.cpp USES renaming settings [LINKS Qt6::Network])
# One folder of src/ as the static library Varlo::history. USES names our own libraries, LINKS everybody else's.
function(varlo_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES;LINKS")
  add_library(varlo_${name} STATIC ${arg_SOURCES})
  add_library(Varlo::${name} ALIAS varlo_${name})
  target_include_directories(varlo_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  list(TRANSFORM arg_USES PREPEND Varlo::)
  target_link_libraries(varlo_${name} PUBLIC varlo_options Qt6::Core ${arg_USES} ${arg_LINKS})
endfunction()

# varlo_module(varlo-model-client SOURCES modelClientModule.cpp [USES ...] [LINKS ...])
# A part of Varlo that is loaded at run time, by loadModule().
set(VARLO_MODULE_FOLDER ${PROJECT_BINARY_DIR}/modules)
function(varlo_module name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES;LINKS")
  add_library(${name} MODULE ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES PREFIX "" CXX_VISIBILITY_PRESET hidden
    LIBRARY_OUTPUT_DIRECTORY ${VARLO_MODULE_FOLDER})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src)
  list(TRANSFORM arg_USES PREPEND Varlo::)
  target_link_libraries(${name} PRIVATE varlo_options Qt6::Core ${arg_USES} ${arg_LINKS})
  install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/varlo)
endfunction()

# varlo_helper(varlo-extractor SOURCES main.cpp [USES ...] [LINKS ...])
# A program that Varlo starts by itself, found by OwnFolders.
set(VARLO_HELPER_FOLDER ${PROJECT_BINARY_DIR}/libexec)
function(varlo_helper name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${VARLO_HELPER_FOLDER})
  list(TRANSFORM arg_USES PREPEND Varlo::)
  target_link_libraries(${name} PRIVATE varlo_options Qt6::Core ${arg_USES} ${arg_LINKS})
  install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/varlo)
endfunction()

# varlo_test(history/tst_RenameLog.cpp USES history fakes [LINKS ...] [COMMAND wrapper...] [PROPERTIES ...])
# A Qt Test program of its own, run below a fresh home and a fresh set of XDG folders.
function(varlo_test source)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "USES;LINKS;COMMAND;PROPERTIES;EXTRA_SOURCES")
  get_filename_component(name ${source} NAME_WE)
  add_executable(${name} ${source} ${arg_EXTRA_SOURCES})
  list(TRANSFORM arg_USES PREPEND Varlo::)
  target_link_libraries(${name} PRIVATE varlo_options Qt6::Core Qt6::Test ${arg_USES} ${arg_LINKS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE VARLO_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    VARLO_BINARY_DIR="${PROJECT_BINARY_DIR}")
  add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/in-clean-home ${arg_COMMAND} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ${arg_PROPERTIES})
endfunction()
