# Installs the build into a folder of the test's own and looks for both names of the station, and on Linux for what a
# desktop, man and F1 want.
set(prefix "${BUILD}/installed-by-test")
file(REMOVE_RECURSE "${prefix}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE found RELATIVE "${prefix}" "${prefix}/*Nelvo" "${prefix}/*Nelvoe" "${prefix}/*.exe")
list(FILTER found INCLUDE REGEX "Nelvoe?(\\.exe)?$")
list(LENGTH found count)
if(NOT count EQUAL 2)
  message(FATAL_ERROR "awaited Nelvo and Nelvoe under ${prefix} but found: ${found}")
endif()
if(SYSTEM STREQUAL "Linux")
  set(awaited share/man/man1/Nelvo.1 share/man/man1/Nelvoe.1 share/man/man1/chambersim.1 share/man/man1/growthcheck.1
    share/applications/local.nelvo.Nelvo.desktop share/metainfo/local.nelvo.Nelvo.metainfo.xml
    share/icons/hicolor/scalable/apps/nelvo.svg share/doc/nelvo/examples/superlattice.dat)
  if(EXISTS "${BUILD}/bin/manual/ja.html")
    # What F1 opens, and where that leads.
    foreach(page ja ja-program ja-chart en en-program en-chart)
      list(APPEND awaited share/doc/nelvo/manual/${page}.html)
    endforeach()
  endif()
  foreach(name ${awaited})
    if(NOT EXISTS "${prefix}/${name}")
      message(FATAL_ERROR "${name} is not installed")
    endif()
  endforeach()
endif()
file(REMOVE_RECURSE "${prefix}")
