# Warnings are errors everywhere; the sanitizers and the coverage counters are whole builds of their own.
add_compile_options(-Wall -Wextra -Wpedantic -Werror)
add_compile_definitions(QT_NO_KEYWORDS)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Lets ccache see through a precompiled header.
  add_compile_options(-fpch-preprocess)
endif()

if(GLIDETRAK_SANITIZE)
  # Line tables are enough for a report's stack, and half the objects' size.
  add_compile_options(-g1 -fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(GLIDETRAK_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

if(GLIDETRAK_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()
