# Checks each include line against the layers of the tree.
#   cmake -DROOT=... -P layering.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/source_lines.cmake")

# Which layer may include which. A layer is a folder of src, but for two: the section of attributes
# stands above the messages that it writes, and the exported functions stand above everything.
set(may_text text)
set(may_attributes text attributes)
set(may_frame text attributes frame)
set(may_attribute_section text attributes frame attribute_section)
set(may_read text attributes frame read)
set(may_write text attributes frame attribute_section write)
set(may_exports text attributes frame attribute_section read write)

# The UTF-8 library, for which the text layer stands in everywhere else.
set(utf8_users src/text/utf8_text.cpp src/text/file.cpp)

# Here alone platforms differ, and the headers of the systems are included.
set(platform_file src/text/file.cpp)
set(platform_headers <fcntl.h> <io.h> <share.h> <sys/stat.h> <unistd.h>)

# The layer of a path below src, such as frame/can_signal.h.
function(layer_of path out)
    if(path MATCHES "^attributes/attribute_section\\.")
        set(layer attribute_section)
    elseif(path STREQUAL "frame/exports.cpp")
        set(layer exports)
    else()
        string(REGEX REPLACE "/.*" "" layer "${path}")
    endif()
    set(${out} ${layer} PARENT_SCOPE)
endfunction()

# Says in `wrong` what is wrong with a file of src that includes this; empty if nothing is.
function(check_src_include file include)
    string(REGEX REPLACE "^src/" "" path "${file}")
    layer_of("${path}" layer)
    set(wrong "")
    if(include STREQUAL "<utf8.h>")
        if(NOT file IN_LIST utf8_users)
            set(wrong "decodes UTF-8 by itself")
        endif()
    elseif(include MATCHES "^<")
        if(NOT include MATCHES "^<[a-z_]+>$" AND
                NOT (file STREQUAL platform_file AND include IN_LIST platform_headers))
            set(wrong "is not a header of the C++ standard library")
        endif()
    elseif(NOT include STREQUAL "\"vexil64.h\"")
        string(REPLACE "\"" "" target "${include}")
        layer_of("${target}" target_layer)
        if(NOT target MATCHES "^[a-z]+/[a-z0-9_]+\\.h$" OR NOT EXISTS "${ROOT}/src/${target}")
            set(wrong "is not of the form \"folder/file.h\", or not there")
        elseif(NOT target_layer IN_LIST may_${layer})
            list(JOIN may_${layer} ", " allowed)
            set(wrong "goes against the layers: ${layer} may include ${allowed}")
        endif()
    endif()
    set(wrong "${wrong}" PARENT_SCOPE)
endfunction()

# The same for a guest of the library, which may include nothing of src.
function(check_guest_include file include)
    set(wrong "")
    if(include MATCHES "\\.\\./|src/" OR include MATCHES "^\"(text|attributes|frame|read|write)/")
        set(wrong "reaches behind the public header")
    endif()
    set(wrong "${wrong}" PARENT_SCOPE)
endfunction()

# The layers of the tool, which are folders of tools. Views know no files, the account knows no output.
set(may_tool_format format)
set(may_tool_file file)
set(may_tool_source source)
set(may_tool_database database)
set(may_tool_layout database layout)
set(may_tool_comparison database comparison)
set(may_tool_document format source database document)
set(may_tool_account format source database layout account)
set(may_tool_view format source database layout comparison document account view)
set(may_tool_commands
    format file source database layout comparison document account view commands exit_code)
set(may_tool_cli comparison account commands cli exit_code)
set(output_headers <cstdio> <fstream> <iostream> <ostream>)
set(file_headers <cstdio> <fcntl.h> <filesystem> <fstream> <unistd.h>)

# A guest with layers. Its files at the top, such as main.cpp, may include everything.
function(check_tool_include file include)
    check_guest_include("${file}" "${include}")
    if(NOT wrong AND file MATCHES "^tools/([a-z]+)/")
        set(layer "${CMAKE_MATCH_1}")
        if(include MATCHES "^\"([a-z_]+)[/.]" AND NOT CMAKE_MATCH_1 IN_LIST may_tool_${layer})
            list(JOIN may_tool_${layer} ", " allowed)
            set(wrong "goes against the layers: ${layer} may include ${allowed}")
        elseif(include IN_LIST output_headers AND layer MATCHES "^(format|source|database|layout|comparison|document|account)$")
            set(wrong "puts out: ${layer} only returns")
        elseif(include IN_LIST file_headers AND layer STREQUAL "view")
            set(wrong "opens files: a view has text alone")
        endif()
    endif()
    set(wrong "${wrong}" PARENT_SCOPE)
endfunction()

# And for the public headers, which a host may copy: vexil64.h alone, the others together with it.
function(check_header_include file include)
    set(wrong "")
    set(standard C)
    set(headers "<(std[a-z]+|float|string)\\.h>")
    if(file MATCHES "\\.hpp$")
        set(standard C++)
        set(headers "<[a-z_]+>")
    endif()
    if(NOT include MATCHES "^${headers}$" AND
            NOT (include MATCHES "^\"vexil64(_frame)?\\.h\"$" AND NOT file STREQUAL "include/vexil64.h"))
        set(wrong "is not a header of the ${standard} standard library")
    endif()
    set(wrong "${wrong}" PARENT_SCOPE)
endfunction()

# Walks the include lines of all files below the folders.
macro(check_folders check)
    source_files(files ${ARGN})
    foreach(file IN LISTS files)
        read_lines("${ROOT}/${file}" lines)
        set(number 0)
        foreach(line IN LISTS lines)
            math(EXPR number "${number} + 1")
            if(line MATCHES "^[ \t]*#[ \t]*include[ \t]*([<\"][^>\"]*[>\"])")
                set(include "${CMAKE_MATCH_1}")
                cmake_language(CALL ${check} "${file}" "${include}")
                if(wrong)
                    fault("${file}" ${number} "${include} ${wrong}")
                endif()
            endif()
        endforeach()
    endforeach()
endmacro()

check_folders(check_src_include src)
check_folders(check_header_include include)
check_folders(check_tool_include tools)
check_folders(check_guest_include examples bench
    tests/abi tests/api tests/corpus tests/docs tests/golden tests/headers tests/install tests/tool)
end_check()
