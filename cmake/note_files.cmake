# Runs at the end of an installation: appends the installed files to the file `list`.
if(NOT "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}" MATCHES "/_CPack_Packages/")
    foreach(file IN LISTS CMAKE_INSTALL_MANIFEST_FILES)
        file(APPEND "${list}" "file $ENV{DESTDIR}${file}\n")
    endforeach()
endif()
