# SPDX-License-Identifier: GPL-3.0-or-later
# Gets the packages that packaging/node names from the JavaScript registry, into the build tree, and says in
# ZEPHIRA_NODE_PACKAGES where they are: ${ZEPHIRA_NODE_PACKAGES}/emmet/… The lock there holds each package's checksum. It
# runs when the tree is configured, and again only after a change of the two files.
set(node_source ${CMAKE_SOURCE_DIR}/packaging/node)
set(node_folder ${CMAKE_BINARY_DIR}/node)
set(ZEPHIRA_NODE_PACKAGES ${node_folder}/node_modules)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${node_source}/package.json ${node_source}/package-lock.json)

file(SHA256 ${node_source}/package-lock.json node_wanted)
set(node_present "")
if(EXISTS ${node_folder}/complete)
  file(READ ${node_folder}/complete node_present)
endif()
if(NOT node_present STREQUAL node_wanted)
  find_program(NPM_COMMAND npm REQUIRED)
  file(REMOVE_RECURSE ${node_folder})
  file(COPY ${node_source}/package.json ${node_source}/package-lock.json ${node_source}/.npmrc DESTINATION ${node_folder})
  execute_process(COMMAND ${NPM_COMMAND} ci --loglevel=error
    WORKING_DIRECTORY ${node_folder} RESULT_VARIABLE failed OUTPUT_QUIET)
  if(failed)
    message(FATAL_ERROR "npm could not get the packages of packaging/node: ${failed}")
  endif()
  file(WRITE ${node_folder}/complete ${node_wanted})
endif()
