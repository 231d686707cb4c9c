# The files of view/, and the pictures compiled in.
set(VIEW_SOURCES
  view/ChoiceWidgets.cpp
  view/ControlWidgets.cpp
  view/Displays.cpp
  view/EditorText.cpp
  view/EmergencyRoads.cpp
  view/EventRelay.cpp
  view/FileColumns.cpp
  view/FileDialogs.cpp
  view/FocusKeeper.cpp
  view/Fonts.cpp
  view/FormWindow.cpp
  view/ImageButtonWidget.cpp
  view/KeyCodes.cpp
  view/Labels.cpp
  view/MenuBar.cpp
  view/MessageBoxes.cpp
  view/Monitors.cpp
  view/PanelWidgets.cpp
  view/PictureStore.cpp
  view/PictureWidget.cpp
  view/Pointers.cpp
  view/RunKeys.cpp
  view/SessionEnd.cpp
  view/TextBoxWidget.cpp
  view/TextColours.cpp
  view/TextWidgets.cpp
  view/Timers.cpp
  view/ToolkitTexts.cpp
  view/View.cpp
  view/ViewDesktop.cpp)
if(WIN32)
  list(APPEND VIEW_SOURCES view/CatalogueFolderWindows.cpp view/TypedNameWindows.cpp)
  # The toolkit's own texts, which no package of the system brings here.
  glidetrak_catalogue(VIEW_SOURCES ${QT_HOST_PATH}/share/qt6/translations/qtbase_es.qm)
else()
  list(APPEND VIEW_SOURCES view/CatalogueFolderUnix.cpp view/TypedNameUnix.cpp)
endif()
glidetrak_pictures(VIEW_SOURCES)
