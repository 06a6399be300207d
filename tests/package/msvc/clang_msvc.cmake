# Uses clang as a compiler with the binary interface and linker of MSVC.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_C_COMPILER clang)
set(CMAKE_C_COMPILER_TARGET x86_64-pc-windows-msvc)
set(CMAKE_EXE_LINKER_FLAGS_INIT -fuse-ld=lld)

# No library but that of the test.
set(CMAKE_C_STANDARD_LIBRARIES "" CACHE STRING "")
set(CMAKE_MSVC_RUNTIME_LIBRARY "")
