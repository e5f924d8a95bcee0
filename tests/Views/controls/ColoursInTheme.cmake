# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# cmake -D VIEWS=… -P ColoursInTheme.cmake: fails when a view other than Theme.qml holds a colour of its own.

cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE views ${VIEWS}/*.qml)
if(NOT "${VIEWS}/controls/Theme.qml" IN_LIST views)
  message(FATAL_ERROR "no views in ${VIEWS}")
endif()
list(REMOVE_ITEM views ${VIEWS}/controls/Theme.qml)
foreach(view IN LISTS views)
  file(STRINGS ${view} found REGEX "\"#[0-9a-fA-F]+\"|color: *\"[a-z]+\"")
  if(found)
    message(SEND_ERROR "${view} has a colour of its own: ${found}")
  endif()
endforeach()
