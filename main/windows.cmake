# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# The windows and the drawing: a module that the executable loads when it needs them. All of Qt is here.

set(SELVANE_ASSETS ${CMAKE_SOURCE_DIR}/build/assets CACHE PATH "Fonts and icons, as script/assets leaves them")
set(icon_list ${CMAKE_SOURCE_DIR}/resources/icons.txt)
if(NOT EXISTS ${SELVANE_ASSETS}/.state)
  message(FATAL_ERROR "The windows need their fonts and icons: run script/assets first")
endif()

# ---- Icons: one table of path data, compiled in

set(icon_table ${CMAKE_BINARY_DIR}/generated/artwork/IconTable.h)
add_custom_command(
  OUTPUT ${icon_table}
  COMMAND ${CMAKE_COMMAND} -D LIST=${icon_list} -D ICONS=${SELVANE_ASSETS}/icons -D OUTPUT=${icon_table}
          -P ${CMAKE_SOURCE_DIR}/cmake/IconTable.cmake
  DEPENDS ${icon_list} ${SELVANE_ASSETS}/.state ${CMAKE_SOURCE_DIR}/cmake/IconTable.cmake
  VERBATIM
)

# ---- Fonts: files beside the module, read when the windows start

set(font_folder ${CMAKE_BINARY_DIR}/Fonts)
add_custom_command(
  OUTPUT ${font_folder}/.state
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${SELVANE_ASSETS}/Fonts ${font_folder}
  COMMAND ${CMAKE_COMMAND} -E copy ${SELVANE_ASSETS}/.state ${font_folder}/.state
  DEPENDS ${SELVANE_ASSETS}/.state
  VERBATIM
)
add_custom_target(selvane-fonts DEPENDS ${font_folder}/.state)

# ---- What depends on the system

if(APPLE)
  set(system_views
    Views/macos/AccessibilitySettings.mm
    Views/macos/MenuBar.mm
    Views/macos/NotificationWatch.mm
    Views/macos/PanelSaveDialog.mm
    Views/macos/SystemShell.mm
    artwork/macos/SystemSymbol.mm
  )
  set(system_libraries "-framework AppKit" "-framework UniformTypeIdentifiers")
  # The updater, where its framework is there; SELVANE_SPARKLE_FOLDER helps to find it.
  set(SELVANE_SPARKLE_FOLDER "" CACHE PATH "The folder of Sparkle.framework, for an application that updates itself")
  find_library(SPARKLE_FRAMEWORK Sparkle HINTS ${SELVANE_SPARKLE_FOLDER})
  if(SPARKLE_FRAMEWORK)
    list(APPEND system_views Views/macos/SparkleUpdater.mm)
    list(APPEND system_libraries ${SPARKLE_FRAMEWORK})
  else()
    message(STATUS "Without Sparkle.framework the application doesn't update itself")
    list(APPEND system_views Views/NoUpdater.cpp)
  endif()
else()
  find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
  set(system_views
    Views/NoUpdater.cpp
    Views/PortalSaveDialog.cpp
    Views/PortalSaveDialog.h
    Views/linux/PortalSettings.cpp
    Views/linux/PortalSettings.h
    Views/linux/ProcessWatch.cpp
    Views/linux/SystemShell.cpp
    artwork/NoSystemSymbol.cpp
  )
  set(system_libraries Qt6::DBus)
endif()

# ---- Everything that is seen, and what it shows: to be linked by the module and by its tests

add_library(selvane-views STATIC
  artwork/AppIcon.cpp
  artwork/Brand.cpp
  artwork/Brand.h
  artwork/DMGBackground.cpp
  artwork/IconRenderer.cpp
  artwork/Icons.cpp
  artwork/PngFile.cpp
  artwork/Shapes.cpp
  artwork/SvgPath.cpp
  Views/LauncherApp.cpp
  Views/LauncherApp.h
  Views/ApplicationWatch.h
  Views/SaveDialog.h
  Views/SingleInstance.cpp
  Views/SingleInstance.h
  Views/SystemBridge.cpp
  Views/SystemBridge.h
  ${system_views}
  ${icon_table}
)
target_link_libraries(selvane-views PUBLIC
  selvane-core Qt6::Core Qt6::Gui Qt6::Qml Qt6::Quick Qt6::Concurrent Qt6::Network ${system_libraries})
target_include_directories(selvane-views PRIVATE ${CMAKE_BINARY_DIR}/generated)
# Registers types by the names of their headers alone.
target_include_directories(selvane-views PRIVATE Views artwork)
target_compile_definitions(selvane-views PRIVATE SELVANE_VERSION="${PROJECT_VERSION}")
set_target_properties(selvane-views PROPERTIES AUTOMOC ON POSITION_INDEPENDENT_CODE ON)
add_dependencies(selvane-views selvane-fonts)

set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)
set_source_files_properties(Views/Theme.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)

set(drawn_types
  Views/BrandMark.cpp Views/BrandMark.h
  Views/FocusVisibility.cpp Views/FocusVisibility.h
  Views/Foliage.cpp Views/Foliage.h
  Views/Kelvo8Logo.cpp Views/Kelvo8Logo.h
  Views/LeafShape.cpp Views/LeafShape.h
  Views/PaintedShape.cpp Views/PaintedShape.h
  Views/PathIcon.cpp Views/PathIcon.h
  Views/RoundedFrame.cpp Views/RoundedFrame.h
  Views/SystemAppearance.cpp Views/SystemAppearance.h
)
# What the views show and do, which needs no view to be tested.
set(models
  AppModel.cpp AppModel.h AppModelFlows.cpp
  DesktopBridge.h
  Preferences.h
  Views/BackupForm.cpp Views/BackupForm.h
  Views/ChoiceListModel.cpp Views/ChoiceListModel.h
  Views/ComponentModel.cpp Views/ComponentModel.h
  Views/ImportForm.cpp Views/ImportForm.h
  Views/ItemListModel.cpp Views/ItemListModel.h
  Views/NewProfileForm.cpp Views/NewProfileForm.h
  Views/PickerModel.cpp Views/PickerModel.h
  Views/ProfileChoices.cpp Views/ProfileChoices.h
  Views/ProfileDetailModel.cpp Views/ProfileDetailModel.h
  Views/ProfileListModel.cpp Views/ProfileListModel.h
  Views/SessionImportForm.cpp Views/SessionImportForm.h
  Views/Updates.cpp Views/Updates.h
)
set(views
  Views/AccountChoice.qml
  Views/AccountSection.qml
  Views/AddProfileTile.qml
  Views/AlertDialog.qml
  Views/ArchiveSheet.qml
  Views/BackupSheet.qml
  Views/Badge.qml
  Views/BrandBackground.qml
  Views/BrandLockup.qml
  Views/BusyOverlay.qml
  Views/Card.qml
  Views/CheckBoxRow.qml
  Views/Checklist.qml
  Views/ChecklistWell.qml
  Views/ChoiceLinks.qml
  Views/CollectionSection.qml
  Views/ComponentChoiceRow.qml
  Views/ComponentChoices.qml
  Views/ContextMenu.qml
  Views/DetailToolBar.qml
  Views/DetailToolButton.qml
  Views/DialogButtons.qml
  Views/Disclosure.qml
  Views/DropDown.qml
  Views/DropDownMenu.qml
  Views/EmptyDetail.qml
  Views/EmptySeat.qml
  Views/Eyebrow.qml
  Views/FieldGroup.qml
  Views/FieldInput.qml
  Views/FileSection.qml
  Views/FocusRing.qml
  Views/FolderPath.qml
  Views/GhostButton.qml
  Views/GlyphButton.qml
  Views/HeaderField.qml
  Views/IconNote.qml
  Views/ImportSheet.qml
  Views/ItemList.qml
  Views/ItemMenu.qml
  Views/ItemRow.qml
  Views/KeyCap.qml
  Views/LaunchButton.qml
  Views/LauncherFeedback.qml
  Views/ListWell.qml
  Views/ManageMeasures.qml
  Views/ManageSheets.qml
  Views/ManageView.qml
  Views/ManageWindow.qml
  Views/MenuCommands.qml
  Views/MenuDivider.qml
  Views/MenuEntry.qml
  Views/ModalLayer.qml
  Views/NewProfileSheet.qml
  Views/PickerHint.qml
  Views/PickerMeasures.qml
  Views/PickerPlaces.qml
  Views/PickerOverlays.qml
  Views/PickerWindow.qml
  Views/Popover.qml
  Views/Pressable.qml
  Views/ProfileDetail.qml
  Views/ProfileDropDown.qml
  Views/ProfileGlyph.qml
  Views/ProfileHeader.qml
  Views/ProfileList.qml
  Views/ProfileMarks.qml
  Views/ProfileMenu.qml
  Views/ProfilePicker.qml
  Views/ProfileRow.qml
  Views/ProfileTile.qml
  Views/RadioRow.qml
  Views/RowMark.qml
  Views/ScrollPane.qml
  Views/SectionHeader.qml
  Views/SectionTitle.qml
  Views/SessionImportSheet.qml
  Views/SessionsSection.qml
  Views/Sheet.qml
  Views/SidebarFooter.qml
  Views/StripFade.qml
  Views/StyledText.qml
  Views/SwitchRow.qml
  Views/SymbolCell.qml
  Views/SymbolGrid.qml
  Views/SymbolPopover.qml
  Views/TextInputField.qml
  Views/TextLink.qml
  Views/TextStyle.qml
  Views/Theme.qml
  Views/ThinScrollBar.qml
  Views/TileGear.qml
  Views/TileLabel.qml
  Views/TileMenu.qml
  Views/TileStrip.qml
  Views/Toast.qml
  Views/ToggleSwitch.qml
  Views/ToolTipBubble.qml
)
foreach(file IN LISTS views)
  get_filename_component(alias ${file} NAME)
  set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
endforeach()

# Compiling the views ahead of time makes them start faster and a build much slower.
set(compiling)
if(CMAKE_BUILD_TYPE STREQUAL Debug)
  set(compiling NO_CACHEGEN)
endif()
qt_add_qml_module(selvane-views
  URI Selvane
  VERSION 1.0
  NO_PLUGIN
  ${compiling}
  DEPENDENCIES QtQuick
  # Where the engine of Qt 6.4 looks without being told.
  RESOURCE_PREFIX /qt-project.org/imports
  SOURCES ${drawn_types} ${models}
  QML_FILES ${views}
)

# What Qt generates isn't held to this project's warnings.
get_target_property(sources selvane-views SOURCES)
list(FILTER sources INCLUDE REGEX "/\\.rcc/|_qmltyperegistrations\\.cpp$")
set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)

# ---- The module that the executable loads

add_library(selvane-windows MODULE Views/Entry.cpp)
target_link_libraries(selvane-windows PRIVATE selvane-views)
# Whatever else the module would offer to others makes it slower to load.
if(APPLE)
  foreach(entry run_windows render_icon render_dmg_background)
    target_link_options(selvane-windows PRIVATE -Wl,-exported_symbol,_selvane_${entry})
  endforeach()
  # Sparkle lies beside the module in the bundle.
  set_target_properties(selvane-windows PROPERTIES BUILD_RPATH @loader_path)
else()
  target_link_options(selvane-windows PRIVATE -Wl,--exclude-libs,ALL)
endif()
