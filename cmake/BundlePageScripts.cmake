# SPDX-License-Identifier: GPL-3.0-or-later
# Bundles the modules of a folder into one script. Each module comes after those it imports, and the whole script is
# wrapped in one function so that no name leaks. The import and export statements are simple enough to be matched line
# by line:
#
#     import {closest, isText} from './nodes.js';
#     export const selectionType = () => ...
#
# The build fails if a module imports something that doesn't exist, if modules import each other in a cycle, or if a
# module of the folder is never imported.
#
# zephira_page_names(HEADER TYPE NAME OUT) writes a module that exports the values of a C++ enumeration, or the constants
# of a C++ struct, as NAME.
# As a script:  cmake -DENTRY=main.js -DSCRIPTS=<files> -DOUT=<file> -P BundlePageScripts.cmake
cmake_minimum_required(VERSION 3.25)

function(zephira_page_names header type name out)
  file(READ ${header} text)
  if(NOT text MATCHES "(enum class ${type} : int|struct ${type}) {([^}]*)}")
    message(FATAL_ERROR "${header} declares no enumeration or struct ${type}")
  endif()
  string(REGEX MATCHALL "[A-Za-z]+ = [0-9]+" values "${CMAKE_MATCH_2}")
  list(TRANSFORM values REPLACE " = " ": ")
  list(JOIN values ",\n    " members)
  file(CONFIGURE OUTPUT ${out} @ONLY CONTENT "export const ${name} = Object.freeze({\n    ${members},\n});\n")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
endfunction()

if(NOT CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  return()
endif()

# Adds a module to the bundle after the modules it imports. `way` is the chain of imports that led to it.
function(take module way)
  if(module IN_LIST way)
    list(REMOVE_AT way 0)
    list(JOIN way " > " circle)
    message(FATAL_ERROR "the page's scripts import each other in a cycle: ${circle} > ${module}")
  endif()
  get_property(taken GLOBAL PROPERTY taken)
  if(module IN_LIST taken)
    return()
  endif()
  get_property(file GLOBAL PROPERTY "file of ${module}")
  if(NOT file)
    list(GET way -1 user)
    message(FATAL_ERROR "${user} imports from ${module}, which doesn't exist")
  endif()
  file(READ "${file}" text)
  string(REGEX MATCHALL "import {[^}]*} from '[^']*'" imports "${text}")
  foreach(import IN LISTS imports)
    string(REGEX REPLACE ".* from './([^']*)'" "\\1" source "${import}")
    take(${source} "${way};${module}")
    string(REGEX REPLACE "import {([^}]*)}.*" "\\1" names "${import}")
    string(REGEX MATCHALL "[A-Za-z]+" names "${names}")
    get_property(given GLOBAL PROPERTY "names of ${source}")
    foreach(name IN LISTS names)
      if(NOT name IN_LIST given)
        message(FATAL_ERROR "${module} imports ${name}, which ${source} doesn't export")
      endif()
    endforeach()
  endforeach()
  string(REGEX MATCHALL "\nexport [a-z]+ [A-Za-z]+" exports "\n${text}")
  list(TRANSFORM exports REPLACE ".* " "")
  string(REGEX REPLACE "import {[^}]*} from '[^']*';\n" "" text "${text}")
  string(REGEX REPLACE "\nexport " "\n" text "\n${text}")
  set_property(GLOBAL PROPERTY "names of ${module}" "${exports}")
  set_property(GLOBAL APPEND PROPERTY taken ${module})
  set_property(GLOBAL APPEND_STRING PROPERTY bundle "${text}")
endfunction()

set(modules)
string(REPLACE "|" ";" SCRIPTS "${SCRIPTS}")
foreach(script IN LISTS SCRIPTS)
  get_filename_component(module ${script} NAME)
  set_property(GLOBAL PROPERTY "file of ${module}" ${script})
  list(APPEND modules ${module})
endforeach()
take(${ENTRY} "the build")
get_property(taken GLOBAL PROPERTY taken)
list(REMOVE_ITEM modules ${taken})
if(modules)
  message(FATAL_ERROR "no script of the page imports ${modules}")
endif()
get_property(bundle GLOBAL PROPERTY bundle)
file(WRITE ${OUT} "(() => {\n'use strict';\n${bundle}})();\n")
