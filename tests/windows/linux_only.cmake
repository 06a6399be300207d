# The tests that a build for Windows leaves out, each with its reason. What Windows does instead has
# tests of its own in this folder.

# Folders. The fuzz targets, beside the tests, are left out as well: they compare what is read with
# twins that know the line ends of Linux alone.
set(linux_only_folders
    bindings    # their languages are not there under Wine; abi.record_layout has the records of the DLL
    faults      # stands in for functions of the runtime of Linux, and loads as Linux does
    growth      # counts the steps of the library as it is compiled for Linux
    install     # configures builds for Linux; the package test uses the library for Windows
    manual      # is about pages and a shell of Linux
    source      # reads the sources, which are the same
    tool)       # starts processes as Linux does; windows.tool runs it with the tool for Windows

# Source files, by name. For the same reason write_driver_test.cpp compiles its
# WriteDbcFileToAFullDisk on Linux alone.
set(linux_only_sources
    cpp_failing_write_test.cpp)  # limits the size of files, which Windows does not do

# Tests, by program.
set(linux_only_api_tests
    LocaleTest.WriteUsesPointAndGroupsOfTheCppLocale)            # the DLL has a C++ runtime of its own
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
    StatementFileTest.RemovesControlCharactersExceptWhiteSpace)     # byte 0x1A ends a file on Windows
set(linux_only_tool_tests
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
