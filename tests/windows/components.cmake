# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# The shared components: a gallery to look at, and the tests of those that behave.

find_package(Qt6 6.4 REQUIRED COMPONENTS Quick QuickTest)

add_executable(component-gallery ${CMAKE_CURRENT_LIST_DIR}/ComponentGallery.cpp)
target_link_libraries(component-gallery PRIVATE selvane-views)
target_compile_definitions(component-gallery PRIVATE SELVANE_GALLERY="${CMAKE_CURRENT_LIST_DIR}/Gallery.qml")

add_executable(component-tests ${CMAKE_CURRENT_LIST_DIR}/ComponentTests.cpp)
target_link_libraries(component-tests PRIVATE selvane-views Qt6::QuickTest)
target_compile_definitions(component-tests PRIVATE QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_LIST_DIR}")
add_test(NAME component-tests COMMAND component-tests)
set_tests_properties(component-tests PROPERTIES TIMEOUT 60)

# A colour that isn't in Theme.qml would be missed when the palette changes.
add_test(NAME colours-only-in-theme
  COMMAND ${CMAKE_COMMAND} -D VIEWS=${CMAKE_SOURCE_DIR}/main/Views -P ${CMAKE_CURRENT_LIST_DIR}/ColoursInTheme.cmake)
