# The station's own folder: the executable, the data and a parallel library beside it.

# run-folder: build/<preset>/run, with the bench rig for a parallel library, so that whoever has no
# rig sees a vehicle run.
if(TARGET glidetrak AND TARGET trackport32_bench)
  set(RUN_FOLDER ${CMAKE_BINARY_DIR}/run)
  add_custom_target(run-folder ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${RUN_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:glidetrak> ${RUN_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:trackport32_bench> ${RUN_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/Examples
            ${RUN_FOLDER}/Examples
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/Language
            ${RUN_FOLDER}/Language
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${PROJECT_SOURCE_DIR}/data/TV_GLIDETRAK.INI
            ${RUN_FOLDER}
    DEPENDS glidetrak trackport32_bench bench-rig
    VERBATIM)

  # An installed station carries the stand-in, which reports no port; the maker's own file takes its
  # place where there is one.
  install(TARGETS glidetrak RUNTIME DESTINATION lib/glidetrak)
  install(TARGETS trackport32_standin LIBRARY DESTINATION lib/glidetrak)
  install(DIRECTORY data/Examples data/Language DESTINATION lib/glidetrak)
  install(FILES data/TV_GLIDETRAK.INI DESTINATION lib/glidetrak)
  install(FILES packaging/60-glidetrak.rules DESTINATION lib/udev/rules.d)
endif()
