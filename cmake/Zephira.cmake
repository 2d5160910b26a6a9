# SPDX-License-Identifier: GPL-3.0-or-later
# The compile rules, and the functions that the folders use, mainly these three:
#   zephira_logic(NAME ...)   a library that links only Qt6::Core
#   zephira_forms(NAME ...)   forms and widgets, with their .ui files
#   zephira_tests(NAME ...)   one test program, one ctest entry per class

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Thin archives: a library names its object files and holds no second copy of them.
set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> qcT <TARGET> <LINK_FLAGS> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_APPEND "<CMAKE_AR> qT <TARGET> <LINK_FLAGS> <OBJECTS>")

# The compile rules of every target.
add_library(zephira_rules INTERFACE)
target_compile_features(zephira_rules INTERFACE cxx_std_20)
target_compile_options(zephira_rules INTERFACE
  -Wall -Wextra -Wconversion -Wold-style-cast -fstack-protector-strong
  $<$<BOOL:${ZEPHIRA_WERROR}>:-Werror>
  # The hardened libc needs the optimiser, and the sanitizers bring checks of their own.
  $<$<AND:$<NOT:$<CONFIG:Debug>>,$<NOT:$<BOOL:${ZEPHIRA_SANITIZE}>>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>)
target_compile_definitions(zephira_rules INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS
  QT_NO_KEYWORDS QT_NO_FOREACH
  ZEPHIRA_VERSION="${PROJECT_VERSION}")
target_include_directories(zephira_rules INTERFACE ${CMAKE_SOURCE_DIR}/src)
# Packed relocations take a twentieth of the space.
target_link_options(zephira_rules INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,--as-needed -Wl,-z,pack-relative-relocs)
if(ZEPHIRA_SANITIZE)
  # One test run covers both build trees; the prefix shows which of them a test comes from.
  set(ZEPHIRA_TEST_PREFIX asan.)
  # Compressed, what the objects hold for debuggers takes half the space.
  target_compile_options(zephira_rules INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
    -fno-sanitize-recover=undefined -gz)
  target_link_options(zephira_rules INTERFACE -fsanitize=address,undefined -Wl,--compress-debug-sections=zlib)
else()
  # A program holds only the functions that it uses, so that a start touches less of it.
  target_compile_options(zephira_rules INTERFACE -ffunction-sections -fdata-sections)
  target_link_options(zephira_rules INTERFACE -Wl,--gc-sections)
endif()
include(CheckPIESupported)
check_pie_supported()

# The whole tree shares two precompiled headers, one for targets that link only Qt6::Core and one for widgets, because
# each is larger than all object files together. The sanitizer tree does without the first, since its objects and programs
# are larger, and compiling takes little longer.
foreach(kind IN ITEMS Core Widgets)
  if(ZEPHIRA_SANITIZE AND kind STREQUAL "Core")
    continue()
  endif()
  string(TOLOWER ${kind} header)
  add_library(zephira_${header}_precompiled OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled.cpp)
  target_link_libraries(zephira_${header}_precompiled PUBLIC zephira_rules Qt6::${kind})
  # Included without its folder, so that the compiler cache works for any checkout.
  target_include_directories(zephira_${header}_precompiled PRIVATE ${CMAKE_SOURCE_DIR}/cmake)
  target_precompile_headers(zephira_${header}_precompiled PRIVATE <${header}.pch.h>)
endforeach()
# zephira_precompiled(TARGET core|widgets): compiles the target with one of them.
function(zephira_precompiled target header)
  if(TARGET zephira_${header}_precompiled)
    target_precompile_headers(${target} REUSE_FROM zephira_${header}_precompiled)
  endif()
endfunction()

# zephira_logic(NAME SOURCES ... [LINK ...]): text rules, parsers, writers, state machines. Links only Qt6::Core.
function(zephira_logic name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PUBLIC zephira_rules Qt6::Core ${ARG_LINK})
  zephira_precompiled(${name} core)
endfunction()

# zephira_forms(NAME SOURCES ... [UI ...] [LINK ...]): forms and widgets. The .ui files go through qt6_wrap_ui because
# AUTOUIC would rebuild every form of the target when a single source is touched.
function(zephira_forms name)
  cmake_parse_arguments(ARG "" "" "SOURCES;UI;LINK" ${ARGN})
  if(ARG_UI)
    qt6_wrap_ui(ui_headers ${ARG_UI})
  endif()
  add_library(${name} STATIC ${ARG_SOURCES} ${ui_headers})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(${name} PUBLIC zephira_rules Qt6::Widgets ${ARG_LINK})
  zephira_precompiled(${name} widgets)
endfunction()

# zephira_install(FOLDER TARGETS|FILES|DIRECTORY ...): installs into a folder of the program folder, "." for itself. There
# are two ways: the component "program" is the portable folder, the whole installation in one place. In the system's
# folders, programs and modules are below that of private programs, the data below that of shared ones, and each user gets
# a copy of it.
function(zephira_install folder kind)
  install(${kind} ${ARGN} DESTINATION ${folder} COMPONENT program EXCLUDE_FROM_ALL)
  set(system ${CMAKE_INSTALL_DATADIR})
  if(kind STREQUAL "TARGETS")
    set(system ${CMAKE_INSTALL_LIBEXECDIR})
  endif()
  install(${kind} ${ARGN} DESTINATION ${system}/zephira/${folder} COMPONENT system)
endfunction()

# zephira_tests(NAME SOURCES ... CLASSES ... [LINK ...] [FORMS | WEB] [LABELS ...]): one test program for a folder and
# kind. Each class listed under CLASSES is a QTest object registered with ZEPHIRA_TEST and becomes a ctest entry of its
# own. With FORMS the program has a QApplication on the offscreen platform, with WEB one that can load the web engine,
# otherwise a QCoreApplication.
function(zephira_tests name)
  cmake_parse_arguments(ARG "FORMS;WEB" "" "SOURCES;CLASSES;LINK;LABELS;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests ${CMAKE_CURRENT_BINARY_DIR})
  if(ARG_WEB)
    target_link_libraries(${name} PRIVATE zephira_test_web ${ARG_LINK})
    zephira_precompiled(${name} widgets)
  elseif(ARG_FORMS)
    target_link_libraries(${name} PRIVATE zephira_test_forms ${ARG_LINK})
    zephira_precompiled(${name} widgets)
  else()
    target_link_libraries(${name} PRIVATE zephira_test_logic ${ARG_LINK})
    zephira_precompiled(${name} core)
  endif()
  foreach(class IN LISTS ARG_CLASSES)
    set(test ${ZEPHIRA_TEST_PREFIX}${name}.${class})
    add_test(NAME ${test} COMMAND ${name} ${class})
    set_tests_properties(${test} PROPERTIES TIMEOUT 300 LABELS "${ARG_LABELS}"
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${ARG_ENVIRONMENT}")
  endforeach()
endfunction()

# zephira_test_path(SOURCE NAME PATH): defines NAME as the path of a build product, in a single source of a test. The
# paths differ between checkouts, and the compiler cache has to work for the program's other sources in all of them.
function(zephira_test_path source name path)
  set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS "${name}=\"${path}\"")
endfunction()

# zephira_display_test(NAME COMMAND ...): a test of the real program in a real window. It runs on its own display with a
# window manager. The sanitizer build leaves it out.
function(zephira_display_test name)
  cmake_parse_arguments(ARG "" "" "COMMAND" ${ARGN})
  if(NOT ZEPHIRA_SANITIZE)
    add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/support/with-display ${ARG_COMMAND})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS e2e ENVIRONMENT "LC_ALL=C.UTF-8")
  endif()
endfunction()
