# The target "uninstall", which removes the files that this build folder installed, and the folders that
# were made for them. Each installation records both in a list in the build folder.

set(vexil64_installed "${PROJECT_BINARY_DIR}/installed.txt")

# Records a folder before files are installed into it, with its parents, unless it exists.
function(vexil64_note_folder folder)
    install(CODE "set(note [[${folder}]])\nset(list [[${vexil64_installed}]])" ALL_COMPONENTS)
    install(SCRIPT "${PROJECT_SOURCE_DIR}/cmake/note_folder.cmake" ALL_COMPONENTS)
endfunction()

# Records the files. Called once, after all install rules.
function(vexil64_note_files)
    install(CODE "set(list [[${vexil64_installed}]])" ALL_COMPONENTS)
    install(SCRIPT "${PROJECT_SOURCE_DIR}/cmake/note_files.cmake" ALL_COMPONENTS)
    if(PROJECT_IS_TOP_LEVEL)
        add_custom_target(uninstall
            COMMAND "${CMAKE_COMMAND}" "-DLIST=${vexil64_installed}"
                -P "${PROJECT_SOURCE_DIR}/cmake/remove_installed.cmake"
            VERBATIM)
    endif()
endfunction()
