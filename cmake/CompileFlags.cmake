# Compiler flags of all targets of the project.

# The language, the warnings and the sanitizers of a target.
function(vexil64_compile_flags target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 20
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        C_STANDARD 99
        C_STANDARD_REQUIRED ON
        C_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        # Intentional in src: "&" of two conditions keeps a loop over bytes free of branches.
        $<$<CXX_COMPILER_ID:Clang>:-Wno-bitwise-instead-of-logical>
        $<$<BOOL:${VEXIL64_WARNINGS_AS_ERRORS}>:-Werror>)
    if(VEXIL64_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${VEXIL64_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${VEXIL64_SANITIZE})
    endif()
endfunction()

# Precompiles the headers that most sources of a target include, which saves a third of the time to
# compile a test. A build without tests does not, and so shows whether each source includes all headers
# that it uses.
#   vexil64_precompile(target [header...])    headers besides those of the standard library
function(vexil64_precompile target)
    if(VEXIL64_BUILD_TESTS)
        target_precompile_headers(${target} PRIVATE
            <algorithm> <array> <cstdint> <functional> <memory> <string> <string_view> <vector> ${ARGN})
    endif()
endfunction()

# For a program that replaces operator new. The runtime of the memory sanitizer replaces it as well, but
# only in programs that clang links as C++.
function(vexil64_replaces_new target)
    if(VEXIL64_SANITIZE MATCHES "memory")
        set_target_properties(${target} PROPERTIES LINKER_LANGUAGE C)
    endif()
endfunction()
