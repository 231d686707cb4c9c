# What an installed station consists of. It carries the stand-in for a parallel library, which reports
# no port; the maker's own file takes its place where there is one.
if(TARGET glidetrak AND TARGET trackport32_standin)
  install(TARGETS glidetrak RUNTIME DESTINATION lib/glidetrak)
  install(TARGETS trackport32_standin LIBRARY DESTINATION lib/glidetrak)
  install(DIRECTORY data/Examples data/Language DESTINATION lib/glidetrak)
  install(FILES data/TV_GLIDETRAK.INI DESTINATION lib/glidetrak)
  install(FILES packaging/60-glidetrak.rules DESTINATION lib/udev/rules.d)
endif()
