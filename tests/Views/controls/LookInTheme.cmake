# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# cmake -D VIEWS=… -P LookInTheme.cmake: fails when a view holds a colour or a size of its own. Colours belong to
# Theme.qml, sizes (pixels and milliseconds) to it and the files beside it that are named below. These numbers
# aren't sizes:
#   - 0, and what is below 1
#   - factors: what is divided by, 2 beside a `*`, and the 1 that a share is taken from
#   - counts: what an `int` property holds
#   - 1 and 2 where neither a length nor a duration is set

cmake_minimum_required(VERSION 3.25)

set(themes Theme TypeStyles TextStyle Motion ControlMeasures SheetMeasures ManageMeasures PickerMeasures PickerPlaces)
set(lengths "x|y|line|property real [a-zA-Z]+|[a-zA-Z]*([wW]idth|[hH]eight|[sS]ize|[sS]pacing|[rR]adius|[iI]nset")
string(APPEND lengths "|[pP]adding|[mM]argins?|[gG]ap|[sS]lide|[dD]uration|[iI]nterval|[dD]elay)")

file(GLOB_RECURSE views ${VIEWS}/*.qml)
if(NOT "${VIEWS}/controls/Theme.qml" IN_LIST views)
  message(FATAL_ERROR "no views in ${VIEWS}")
endif()
foreach(view IN LISTS views)
  get_filename_component(name ${view} NAME_WE)
  file(READ ${view} text)
  # Brackets and semicolons would hold lines together, or part them, in a list.
  string(REGEX REPLACE "[][;]" "," text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  foreach(line IN LISTS lines)
    if(NOT name STREQUAL "Theme" AND line MATCHES "\"#[0-9a-fA-F]+\"|olor: *\"[a-z]+\"")
      message(SEND_ERROR "${view} has a colour of its own: ${line}")
    endif()
    if(name IN_LIST themes OR line MATCHES "property int ")
      continue()
    endif()
    string(REGEX REPLACE "\"[^\"]*\"|//.*" "" code " ${line}")
    string(REGEX MATCH "[ .{](${lengths}): .*" length "${code}")
    foreach(what IN ITEMS code length)
      string(REGEX REPLACE "[a-zA-Z_][a-zA-Z0-9_]*" "name" ${what} "${${what}}")
      string(REGEX REPLACE "/ [0-9]+|2 \\*|\\* 2|1 -|[ (]0\\.[0-9]+" "" ${what} "${${what}}")
    endforeach()
    if(code MATCHES "[3-9]|[0-9][0-9]|[0-9]\\." OR length MATCHES "[1-9]")
      message(SEND_ERROR "${view} has a size of its own: ${line}")
    endif()
  endforeach()
endforeach()
