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

# glidetrak_precompiled(TARGET)
# What every test includes is parsed once for all programs that stand on Qt. The debug preset does
# without, so that a missing include line is seen there.
function(glidetrak_precompiled TARGET)
  if(NOT TARGET tests_precompiled)
    file(WRITE ${CMAKE_BINARY_DIR}/tests_precompiled.cpp "")
    add_library(tests_precompiled OBJECT ${CMAKE_BINARY_DIR}/tests_precompiled.cpp)
    target_link_libraries(tests_precompiled PRIVATE Qt6::Core GTest::gmock GTest::gtest)
    target_precompile_headers(tests_precompiled PRIVATE
      <algorithm> <functional> <map> <memory> <optional> <ostream> <string> <vector>
      <QByteArray> <QDir> <QFile> <QFileInfo> <QString> <QStringList> <QTemporaryDir>
      <gmock/gmock.h> <gtest/gtest.h>)
    glidetrak_test_options(tests_precompiled)
  endif()
  target_precompile_headers(${TARGET} REUSE_FROM tests_precompiled)
endfunction()

# glidetrak_test_options(TARGET)
# A test is compiled more often than it is run: it gets the lightest optimisation that keeps the
# warnings of the data flow. The station under test keeps its own.
function(glidetrak_test_options TARGET)
  target_compile_options(${TARGET} PRIVATE $<$<CONFIG:Release>:-O1>)
endfunction()

# glidetrak_unit_test(TARGET)
function(glidetrak_unit_test TARGET)
  if(NOT GLIDETRAK_UNIT_TESTS)
    set_target_properties(${TARGET} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
endfunction()

# glidetrak_tests(NAME LINK library... SOURCES file...)
# A GoogleTest program; every test of it runs in a process of its own, since the station's state is
# global. A build without GLIDETRAK_UNIT_TESTS makes it only when asked for it by name.
function(glidetrak_tests NAME)
  cmake_parse_arguments(TESTS "" "" "LINK;SOURCES;ENVIRONMENT" ${ARGN})
  add_executable(${NAME} ${TESTS_SOURCES})
  glidetrak_unit_test(${NAME})
  target_link_libraries(${NAME} PRIVATE ${TESTS_LINK} Qt6::Core GTest::gmock GTest::gtest_main)
  glidetrak_test_options(${NAME})
  glidetrak_precompiled(${NAME})
  if(GLIDETRAK_UNIT_TESTS)
    gtest_discover_tests(${NAME} PROPERTIES TIMEOUT 120 ENVIRONMENT "${TESTS_ENVIRONMENT}"
                         DISCOVERY_MODE PRE_TEST)
  endif()
endfunction()
