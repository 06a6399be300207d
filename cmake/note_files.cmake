# Runs at the end of an installation: adds to the file `list` the files that were installed.
if(NOT "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}" MATCHES "/_CPack_Packages/")
    foreach(file IN LISTS CMAKE_INSTALL_MANIFEST_FILES)
        file(APPEND "${list}" "file $ENV{DESTDIR}${file}\n")
    endforeach()
endif()
