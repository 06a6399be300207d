# Runs while the project is installed: appends to the file `list` the folder `note`, below the prefix, and
# its parents that do not exist yet. An installation by cpack in its own folder is not recorded.
if(NOT "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}" MATCHES "/_CPack_Packages/")
    cmake_path(ABSOLUTE_PATH note BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
    string(PREPEND note "$ENV{DESTDIR}")
    while(NOT EXISTS "${note}")
        file(APPEND "${list}" "folder ${note}\n")
        cmake_path(GET note PARENT_PATH note)
    endwhile()
endif()
