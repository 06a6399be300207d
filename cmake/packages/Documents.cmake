# Installation of documents: man pages, the completion, and pages to read. An archive for Windows has the
# pages in its top folder, a package of a distribution together with the headers.

set(document_dir "${CMAKE_INSTALL_DOCDIR}")
set(document_component documents)
if(WIN32)
    set(document_dir .)
elseif(VEXIL64_DISTRIBUTION)
    set(document_dir "${CMAKE_INSTALL_DATAROOTDIR}/doc/libvexil64-dev")
    set(document_component development)
endif()

vexil64_install(${document_component} ${document_dir} README.md CHANGELOG.md SECURITY.md)
file(GLOB pages "${PROJECT_SOURCE_DIR}/docs/*.md" "${PROJECT_SOURCE_DIR}/docs/*.json")
vexil64_install(${document_component} ${document_dir}/docs ${pages})
vexil64_install(${document_component} ${document_dir}/docs/images
    docs/images/report-dark.png docs/images/report-light.png)
vexil64_install(${document_component} ${document_dir}/examples
    examples/read_and_write.c examples/append_message.c examples/decode_frame.c examples/list_signals.cpp)
vexil64_install(${document_component} ${document_dir}/examples/python
    examples/python/list_signals.py examples/python/read_dbc.py)
vexil64_install(${document_component} ${document_dir}/examples/csharp examples/csharp/ListSignals.cs)
file(GLOB python_files "${PROJECT_SOURCE_DIR}/bindings/python/vexil64/*.py")
if(NOT VEXIL64_DISTRIBUTION) # lintian objects to empty documents
    list(APPEND python_files "${PROJECT_SOURCE_DIR}/bindings/python/vexil64/py.typed")
endif()
vexil64_install(${document_component} ${document_dir}/bindings/python/vexil64 ${python_files})
vexil64_install(${document_component} ${document_dir}/bindings/csharp bindings/csharp/Vexil64.cs)
vexil64_install(${document_component} ${document_dir}/samples
    samples/README.md samples/powertrain.dbc samples/roof.dbc)

if(NOT WIN32)
    vexil64_install(development ${CMAKE_INSTALL_MANDIR}/man3 docs/man/vexil64.3)
    vexil64_install(development ${CMAKE_INSTALL_MANDIR}/man5 docs/man/vexil64-dbc.5)
    if(TARGET vexil-dbc)
        vexil64_install(tool ${CMAKE_INSTALL_MANDIR}/man1 docs/man/vexil-dbc.1)
        # bash searches for a file with the name of the command.
        set(completion_dir "${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions")
        vexil64_note_folder("${completion_dir}")
        install(FILES "${PROJECT_SOURCE_DIR}/completions/vexil-dbc.bash"
            DESTINATION "${completion_dir}" COMPONENT tool RENAME vexil-dbc)
    endif()
endif()

# The licences of the project, and of the code that is compiled into the library and the tool. The latter
# are taken from Debian's packages; on other systems they are left out. The DEBs have all licences in one
# file, see cmake/packages/finish_debs.cmake.in.
set(licences
    "utf8cpp /usr/share/doc/libutfcpp-dev/copyright"
    "CLI11 /usr/share/doc/libcli11-dev/copyright"
    "dtl /usr/share/doc/libdtl-dev/copyright"
    "fmt /usr/share/doc/libfmt-dev/copyright"
    "kainjow-mustache /usr/share/doc/libkainjow-mustache-dev/copyright"
    "nlohmann-json /usr/share/doc/nlohmann-json3-dev/copyright")
if(MINGW)
    list(APPEND licences
        "MinGW-w64 /usr/share/doc/mingw-w64-common/copyright"
        "libstdc++ /usr/share/doc/gcc-mingw-w64-base/copyright")
endif()
if(NOT VEXIL64_DISTRIBUTION)
    vexil64_install(documents ${document_dir} LICENSE)
    vexil64_note_folder(${document_dir}/licences)
    foreach(row IN LISTS licences)
        separate_arguments(row)
        list(POP_FRONT row name file)
        if(EXISTS "${file}" AND (TARGET vexil-dbc OR NOT name MATCHES "^(CLI11|dtl|fmt|kainjow-mustache|nlohmann-json)$"))
            install(FILES "${file}" DESTINATION "${document_dir}/licences" COMPONENT documents
                RENAME ${name}.txt)
        endif()
    endforeach()
endif()
vexil64_note_files()
