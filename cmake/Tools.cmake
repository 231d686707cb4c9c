# format and format-check: `./test` holds the sources against the second.
file(GLOB_RECURSE GLIDETRAK_SOURCES CONFIGURE_DEPENDS
     src/*.cpp src/*.h tools/*.cpp tests/*.cpp tests/*.h bench/*.cpp bench/*.h benchmarks/*.cpp benchmarks/*.h)
find_program(CLANG_FORMAT clang-format)

if(CLANG_FORMAT)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${GLIDETRAK_SOURCES} VERBATIM)
  add_custom_target(format-check COMMAND ${CLANG_FORMAT} --dry-run --Werror ${GLIDETRAK_SOURCES}
                    VERBATIM)
endif()
