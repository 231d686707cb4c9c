# glidetrak_room(NAME BELOW room... LINK library... SOURCES file...)
# One room of the tower: one folder under src/, one static library named room_NAME. BELOW names the
# rooms it stands on; tests/architecture checks the include lines themselves.
function(glidetrak_room NAME)
  cmake_parse_arguments(ROOM "" "" "BELOW;LINK;SOURCES" ${ARGN})
  add_library(room_${NAME} STATIC ${ROOM_SOURCES})
  target_include_directories(room_${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  list(TRANSFORM ROOM_BELOW PREPEND room_)
  target_link_libraries(room_${NAME} PUBLIC ${ROOM_BELOW} ${ROOM_LINK})
endfunction()

# glidetrak_tests(NAME LINK library... SOURCES file...)
# A GoogleTest program; every test of it runs in a process of its own, since the station's state is
# global.
function(glidetrak_tests NAME)
  cmake_parse_arguments(TESTS "" "" "LINK;SOURCES;ENVIRONMENT" ${ARGN})
  add_executable(${NAME} ${TESTS_SOURCES})
  target_link_libraries(${NAME} PRIVATE ${TESTS_LINK} GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${NAME} PROPERTIES TIMEOUT 120 ENVIRONMENT "${TESTS_ENVIRONMENT}"
                       DISCOVERY_MODE PRE_TEST)
endfunction()
