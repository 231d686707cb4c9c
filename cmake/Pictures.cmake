# glidetrak_pictures(VARIABLE)
# The pictures of data/pictures, recorded as paint commands and compiled in under :/pictures; the
# names of the sources that hold them are added to the variable.
function(glidetrak_pictures VARIABLE)
  set(FOLDER ${CMAKE_CURRENT_BINARY_DIR}/pictures)
  file(GLOB DRAWINGS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/pictures/*.svg)
  set(LINES "")
  foreach(DRAWING ${DRAWINGS})
    get_filename_component(NAME ${DRAWING} NAME_WE)
    add_custom_command(OUTPUT ${FOLDER}/${NAME}.picture
      COMMAND picture-recorder ${DRAWING} ${FOLDER}/${NAME}.picture
      DEPENDS picture-recorder ${DRAWING} VERBATIM)
    string(APPEND LINES "<file>${NAME}.picture</file>")
  endforeach()
  file(CONFIGURE OUTPUT ${FOLDER}/pictures.qrc
       CONTENT "<RCC><qresource prefix=\"/pictures\">@LINES@</qresource></RCC>" @ONLY)
  set(SOURCES ${${VARIABLE}})
  qt_add_resources(SOURCES ${FOLDER}/pictures.qrc)
  set(${VARIABLE} ${SOURCES} PARENT_SCOPE)
endfunction()
