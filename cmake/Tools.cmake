# format, format-check and tidy: what `./test` holds the sources against.
file(GLOB_RECURSE GLIDETRAK_SOURCES CONFIGURE_DEPENDS
     src/*.cpp src/*.h tests/*.cpp tests/*.h bench/*.cpp bench/*.h benchmarks/*.cpp benchmarks/*.h)
find_program(CLANG_FORMAT clang-format)
find_program(RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)

if(CLANG_FORMAT)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${GLIDETRAK_SOURCES} VERBATIM)
  add_custom_target(format-check COMMAND ${CLANG_FORMAT} --dry-run --Werror ${GLIDETRAK_SOURCES}
                    VERBATIM)
endif()
if(RUN_CLANG_TIDY)
  add_custom_target(tidy COMMAND ${RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR}
                    ${PROJECT_SOURCE_DIR}/src VERBATIM)
endif()
