# The station's own folder: the executable, the data and a parallel library beside it.

# glidetrak_run_folder(TARGET FOLDER LIBRARY)
# A folder from which the station can be started, with the target LIBRARY for a parallel library.
function(glidetrak_run_folder TARGET FOLDER LIBRARY)
  add_custom_target(${TARGET} ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:glidetrak> ${FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:${LIBRARY}> ${FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/Examples
            ${FOLDER}/Examples
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/Language
            ${FOLDER}/Language
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${PROJECT_SOURCE_DIR}/data/TV_GLIDETRAK.INI
            ${FOLDER}
    DEPENDS glidetrak ${LIBRARY}
    VERBATIM)
endfunction()
