// How the tool is started and what is collected from it.
//
// The build says which tool to run. The environment can name another one, so that these tests drive
// a tool that was built elsewhere: VEXIL64_TOOL is its path, VEXIL64_TOOL_EMULATOR the program that
// runs it, with its arguments behind semicolons.
// SPDX-License-Identifier: MIT
#include "tool/tool_process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace vexil::test {
namespace {

std::string Setting(const char* variable, const char* builtIn) {
    const char* value = std::getenv(variable);
    return value != nullptr ? value : builtIn;
}

bool ToolIsForWindows() {
    return ToolPath().ends_with(".exe");
}

// The emulator, if there is one, and the tool.
std::vector<std::string> Command() {
    std::vector<std::string> command;
    std::istringstream emulator(Setting("VEXIL64_TOOL_EMULATOR", VEXIL64_TOOL_EMULATOR));
    for (std::string part; std::getline(emulator, part, ';');) {
        command.push_back(part);
    }
    command.push_back(ToolPath());
    return command;
}

void Redirect(const std::string& file, int flags, int descriptor) {
    const int opened = open(file.c_str(), flags, 0600);
    if (opened < 0 || dup2(opened, descriptor) < 0) {
        _exit(126);
    }
    close(opened);
}

// Turns the forked process into the tool.
[[noreturn]] void BecomeTool(std::vector<std::string>& command, const std::string& out,
                             const std::string& err, const Surroundings& surroundings) {
    Redirect(surroundings.standardInput, O_RDONLY, STDIN_FILENO);
    Redirect(out, O_WRONLY | O_CREAT, STDOUT_FILENO);
    Redirect(err, O_WRONLY | O_CREAT, STDERR_FILENO);
    if (surroundings.standardOutputDescriptor >= 0) {
        dup2(surroundings.standardOutputDescriptor, STDOUT_FILENO);
    }
    if (surroundings.standardOutputClosed) {
        close(STDOUT_FILENO);
    }
    if (surroundings.fileSizeLimit) {
        const rlimit limit{*surroundings.fileSizeLimit, *surroundings.fileSizeLimit};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    if (!surroundings.temporaryFolder.empty()) {
        setenv("TMPDIR", surroundings.temporaryFolder.c_str(), 1);
    }
    if (surroundings.intruder != nullptr) {
        // The sanitizer cannot look for leaks in a process that is followed.
        const std::string options = Setting("ASAN_OPTIONS", "") + ":detect_leaks=0";
        setenv("ASAN_OPTIONS", options.c_str(), 1);
        Intruder::AskToBeFollowed();
    }
    std::vector<char*> argv;
    for (std::string& argument : command) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    execvp(argv[0], argv.data());
    _exit(127);
}

}  // namespace

Outcome RunTool(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
    const TempFolder outputs;
    const std::string err = outputs.File("err");
    const std::string out =
        surroundings.standardOutput.empty() ? outputs.File("out") : surroundings.standardOutput;
    std::vector<std::string> command = Command();
    command.insert(command.end(), arguments.begin(), arguments.end());

    const pid_t child = fork();
    if (child == 0) {
        BecomeTool(command, out, err, surroundings);
    }
    if (child > 0 && surroundings.intruder != nullptr) {
        surroundings.intruder->Follow(child);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        throw std::runtime_error("could not run " + command.front());
    }
    Outcome outcome;
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    outcome.out = surroundings.standardOutput.empty() ? ReadLines(out) : "";
    outcome.err = ReadLines(err);
    return outcome;
}

std::string ToolPath() {
    return Setting("VEXIL64_TOOL", VEXIL64_TOOL);
}

bool ToolIsNative() {
    return !ToolIsForWindows() && Command().size() == 1;
}

std::string ReadLines(const std::string& file) {
    std::string text = ReadBytes(file);
    if (ToolIsForWindows()) {
        std::erase(text, '\r');
    }
    return text;
}

void PrintTo(const Outcome& outcome, std::ostream* stream) {
    *stream << "exit code " << outcome.exitCode << "\nstandard output:\n"
            << outcome.out << "standard error:\n"
            << outcome.err;
}

std::string ToolTest::MakeFile(std::string_view name, std::string_view text) const {
    std::string file = folder.File(name);
    WriteBytes(file, text);
    return file;
}

void LinuxToolTest::SetUp() {
#ifdef __linux__
    if (!ToolIsNative()) {
        GTEST_SKIP() << "the tool is not a program of this system";
    }
#else
    GTEST_SKIP() << "this system has no such devices and limits";
#endif
}

}  // namespace vexil::test
