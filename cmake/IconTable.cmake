# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# cmake -D LIST=… -D ICONS=… -D OUTPUT=… -P IconTable.cmake
#
# Writes the C++ table of the icons named in LIST, with the path data of their files below ICONS, sorted by
# name and weight.

file(STRINGS ${LIST} lines REGEX "^[a-z]")
set(weights light regular bold fill)

# A space sorts before every character of a name.
set(keys)
foreach(line IN LISTS lines)
  separate_arguments(line)
  list(GET line 0 weight)
  list(GET line 1 name)
  list(FIND weights ${weight} order)
  list(APPEND keys "${name} ${order}")
endforeach()
list(SORT keys)

set(entries)
foreach(key IN LISTS keys)
  separate_arguments(key)
  list(GET key 0 name)
  list(GET key 1 order)
  list(GET weights ${order} weight)
  file(READ ${ICONS}/${weight}/${name}.svg svg)
  # One path fills every icon; a file of another kind would be drawn in part only.
  string(REGEX MATCHALL "<[a-z]+ " elements "${svg}")
  if(NOT elements STREQUAL "<svg ;<path ")
    message(FATAL_ERROR "${weight}/${name}.svg isn't made of one path")
  endif()
  string(REGEX MATCH "<path d=\"([^\"]*)\"" path "${svg}")
  string(APPEND entries "    {\"${name}\", IconWeight::${weight}, \"${CMAKE_MATCH_1}\"},\n")
endforeach()

file(WRITE ${OUTPUT} "// Generated from resources/icons.txt.

#pragma once

#include <string_view>

#include \"artwork/Icons.h\"

namespace selvane {

struct IconEntry {
    std::string_view name;
    IconWeight weight;
    std::string_view data;
};

constexpr IconEntry kIconTable[] = {
${entries}};

} // namespace selvane
")
