# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# The shared components: a gallery to look at, and the tests of those that behave.

find_package(Qt6 6.4 REQUIRED COMPONENTS Quick QuickTest)

add_executable(component-gallery ${CMAKE_CURRENT_LIST_DIR}/ComponentGallery.cpp)
target_link_libraries(component-gallery PRIVATE selvane-options Qt6::Quick)
target_compile_definitions(component-gallery PRIVATE
  SELVANE_WINDOWS_MODULE="$<TARGET_FILE:selvane-windows>"
  SELVANE_GALLERY="${CMAKE_CURRENT_LIST_DIR}/Gallery.qml")
add_dependencies(component-gallery selvane-windows)

add_executable(component-tests ${CMAKE_CURRENT_LIST_DIR}/ComponentTests.cpp)
target_link_libraries(component-tests PRIVATE selvane-options Qt6::Quick Qt6::QuickTest)
target_compile_definitions(component-tests PRIVATE
  SELVANE_WINDOWS_MODULE="$<TARGET_FILE:selvane-windows>"
  QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_LIST_DIR}")
add_dependencies(component-tests selvane-windows)
add_test(NAME component-tests COMMAND component-tests)
set_tests_properties(component-tests PROPERTIES TIMEOUT 60)

# A colour that isn't in Theme.qml would be missed when the palette changes.
add_test(NAME colours-only-in-theme
  COMMAND ${CMAKE_COMMAND} -D VIEWS=${CMAKE_SOURCE_DIR}/main/Views -P ${CMAKE_CURRENT_LIST_DIR}/ColoursInTheme.cmake)
