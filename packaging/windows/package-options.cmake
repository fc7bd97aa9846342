# Read by cpack once for each package it makes: only their names differ.
if(CPACK_GENERATOR STREQUAL "NSIS64")
  set(CPACK_PACKAGE_FILE_NAME "Nelvo-${CPACK_PACKAGE_VERSION}-setup")
endif()
