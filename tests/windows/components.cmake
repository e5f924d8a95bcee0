# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# The views: a gallery of the shared components to look at, and the tests of what behaves.

find_package(Qt6 6.4 REQUIRED COMPONENTS Quick QuickTest)

add_executable(component-gallery ${CMAKE_CURRENT_LIST_DIR}/ComponentGallery.cpp)
target_link_libraries(component-gallery PRIVATE selvane-views)
target_compile_definitions(component-gallery PRIVATE SELVANE_GALLERY="${CMAKE_CURRENT_LIST_DIR}/Gallery.qml")

add_executable(component-tests
  ${CMAKE_CURRENT_LIST_DIR}/ComponentTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TestHome.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TestHome.h
)
set_target_properties(component-tests PROPERTIES AUTOMOC ON)
target_link_libraries(component-tests PRIVATE selvane-views test-support Qt6::QuickTest)
target_compile_definitions(component-tests PRIVATE QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_LIST_DIR}")
add_test(NAME component-tests COMMAND component-tests)
set_tests_properties(component-tests PROPERTIES TIMEOUT 240)

add_executable(window-pictures
  ${CMAKE_CURRENT_LIST_DIR}/PictureHome.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WindowPictures.cpp
)
target_link_libraries(window-pictures PRIVATE selvane-views test-support)
add_test(NAME window-pictures COMMAND window-pictures ${CMAKE_CURRENT_BINARY_DIR}/pictures)
set_tests_properties(window-pictures PROPERTIES TIMEOUT 120)

# A colour that isn't in Theme.qml would be missed when the palette changes.
add_test(NAME colours-only-in-theme
  COMMAND ${CMAKE_COMMAND} -D VIEWS=${CMAKE_SOURCE_DIR}/main/Views -P ${CMAKE_CURRENT_LIST_DIR}/ColoursInTheme.cmake)
