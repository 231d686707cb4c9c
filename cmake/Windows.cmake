# What a Windows program carries in itself: icon, manifest, version.

enable_language(RC)

# glidetrak_icon(FILE): one icon of all sizes, drawn from the emblem.
function(glidetrak_icon FILE)
  set(EMBLEM ${PROJECT_SOURCE_DIR}/data/pictures/about-emblem.svg)
  set(PIXELS 16 20 24 32 40 48 64 128 256)
  set(IMAGES)
  set(DRAW)
  foreach(SIZE ${PIXELS})
    set(IMAGE ${CMAKE_CURRENT_BINARY_DIR}/icon-${SIZE}.png)
    list(APPEND DRAW COMMAND picture-recorder ${EMBLEM} ${IMAGE} ${SIZE})
    list(APPEND IMAGES ${IMAGE})
  endforeach()
  add_custom_command(OUTPUT ${FILE} ${DRAW} COMMAND icotool -c -o ${FILE} ${IMAGES}
                     DEPENDS picture-recorder ${EMBLEM} VERBATIM)
endfunction()

# glidetrak_windows_program(TARGET): the station's own window program.
function(glidetrak_windows_program TARGET)
  set(FOLDER ${PROJECT_SOURCE_DIR}/packaging/windows)
  glidetrak_icon(${CMAKE_CURRENT_BINARY_DIR}/glidetrak.ico)
  configure_file(${FOLDER}/glidetrak.rc.in ${CMAKE_CURRENT_BINARY_DIR}/glidetrak.rc @ONLY)
  configure_file(${FOLDER}/glidetrak.manifest.in ${CMAKE_CURRENT_BINARY_DIR}/glidetrak.manifest
                 @ONLY)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/glidetrak.rc PROPERTIES OBJECT_DEPENDS
    "${CMAKE_CURRENT_BINARY_DIR}/glidetrak.ico;${CMAKE_CURRENT_BINARY_DIR}/glidetrak.manifest")
  target_sources(${TARGET} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/glidetrak.rc)
  target_include_directories(${TARGET} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  set_target_properties(${TARGET} PROPERTIES WIN32_EXECUTABLE ON)
  target_link_options(${TARGET} PRIVATE -s)
endfunction()

# glidetrak_catalogue(VARIABLE FILE)
# A catalogue of texts compiled in under :/catalogues; the source that holds it is added to the
# variable.
function(glidetrak_catalogue VARIABLE FILE)
  if(NOT EXISTS ${FILE})
    message(FATAL_ERROR "${FILE} is missing (qt6-translations-l10n)")
  endif()
  get_filename_component(NAME ${FILE} NAME)
  set(LIST ${CMAKE_CURRENT_BINARY_DIR}/catalogues.qrc)
  file(CONFIGURE OUTPUT ${LIST} CONTENT
       "<RCC><qresource prefix=\"/catalogues\"><file alias=\"@NAME@\">@FILE@</file></qresource></RCC>"
       @ONLY)
  set(SOURCES ${${VARIABLE}})
  qt_add_resources(SOURCES ${LIST})
  set(${VARIABLE} ${SOURCES} PARENT_SCOPE)
endfunction()

# glidetrak_windows_library(TARGET): one of our own parallel libraries, which the installer tells by
# its version resource from the adapter maker's.
function(glidetrak_windows_library TARGET)
  set(RESOURCE ${CMAKE_CURRENT_BINARY_DIR}/trackport32.rc)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/trackport32.rc.in ${RESOURCE} @ONLY)
  target_sources(${TARGET} PRIVATE ${RESOURCE})
endfunction()
