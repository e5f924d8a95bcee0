# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# cmake -D LIST=… -D ICONS=… -D OUTPUT=… -P IconTable.cmake
#
# Writes the C++ table of the icons named in LIST, sorted by name and weight, with the path data
# from their files below ICONS.

file(STRINGS ${LIST} lines REGEX "^[a-z]")
set(weights light regular bold fill)

# A space sorts before every character that a name can have.
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
  # Every icon must be one filled path; anything else would be drawn only in part.
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
