# The tests that a build for Windows leaves out, each with its reason. The tests in this folder cover the
# behaviour of Windows.

# Folders. The fuzz targets are left out as well: their reference implementations only have the line ends of
# Linux.
set(linux_only_folders
    bindings    # Wine has no Python and Mono; abi.record_layout checks the records of the DLL
    faults      # replaces functions of the Linux runtime, and loads the library through dlopen
    growth      # counts steps of the library compiled for Linux
    install     # configures builds for Linux; the package test uses the library for Windows
    manual      # tests manual pages and a completion for Linux
    source      # checks the sources, which are the same
    tool)       # starts processes through Linux; windows.tool runs it with the tool for Windows

# Source files, by name. For the same reason write_driver_test.cpp compiles its
# WriteDbcFileToAFullDisk on Linux alone.
set(linux_only_sources
    cpp_failing_write_test.cpp)  # limits the size of files, which Windows does not do

# Tests, by program.
set(linux_only_api_tests
    LocaleTest.WriteUsesPointAndGroupsOfTheCppLocale)           # the DLL has its own C++ runtime
set(linux_only_golden_tests
    Topics/Golden.HasItsRecords/crlf                            # has carriage returns in texts
    Topics/Golden.HasItsErrors/crlf)                            # likewise
set(linux_only_read_tests
    ReadDbcFile.ReturnsAStreamErrorWhenReadingFails)            # reads a folder
set(linux_only_text_tests
    FullDeviceTest.*                                            # writes to /dev/full
    NextStatement.CountsCarriageReturnsAsPartsOfLines           # keeps carriage returns
    NextStatement.EndsFreeTextAtAKeywordAfterASemicolon         # likewise
    StatementFileTest.FailsOnALineThatCannotBeRead              # reads a folder
    StatementFileTest.RemovesControlCharactersExceptWhiteSpace)  # byte 0x1A ends a file on Windows
set(linux_only_tool_tests
    *RealFile*                      # skipped without real files, and no test is skipped here
    CheckCommandOnLinux.*           # folders as files, bytes on the command line, long paths of Linux
    DiffCommandOnLinux.*            # a device that takes nothing, and encodings
    DiffForGit.*                    # calls the tool from a git of Linux
    RewriteCommandOnLinux.*         # likewise, rights of folders, and limits on the size of files
    ShowCommandOnLinux.*            # the width of a terminal of Linux, and encodings
    JsonCommandOnLinux.*            # standard streams
    FromJsonCommandOnLinux.*        # likewise, links
    ReportCommandOnLinux.*          # names of files that Windows does not have, and encodings
    StandardOutput.*                # is closed, or a device that takes nothing
    ToolDocument.*                  # shows what Linux prints, and encodings
    FullFileSystem.*                # is mounted
    DisturbedRewrite.*)             # follows a process of Linux
