// The examples of docs/tool.md and of the README: the tool prints what they show.
//
// Two kinds of fenced blocks count. Their first words, after the three backticks, are
//
//   dbc NAME   a file of this name, and so json NAME
//   console    commands, each after "$ ", and what each of them prints; the command "echo $?"
//   prints
//              the exit code of the last one
//
// The blocks are followed one after the other in a folder that also has the samples.
// SPDX-License-Identifier: MIT
#include <sstream>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

struct Block {
    std::string kind;
    std::string name;
    std::vector<std::string> lines;
};

std::vector<Block> Blocks(const std::string& path) {
    std::istringstream document(ReadBytes(path));
    std::vector<Block> blocks;
    bool isInside = false;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with("```")) {
            isInside = !isInside;
            if (isInside) {
                std::istringstream words(line.substr(3));
                blocks.emplace_back();
                words >> blocks.back().kind >> blocks.back().name;
            }
        } else if (isInside) {
            blocks.back().lines.push_back(line);
        }
    }
    EXPECT_FALSE(isInside) << "the last block is not closed";
    return blocks;
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream in(line);
    std::vector<std::string> words;
    for (std::string word; in >> word;) {
        words.push_back(word);
    }
    return words;
}

class ToolDocument : public LinuxToolTest {
  protected:
    void SetUp() override {
        LinuxToolTest::SetUp();
        std::filesystem::copy(VEXIL64_SAMPLES, folder.File("samples"));
        before = std::filesystem::current_path();
        std::filesystem::current_path(folder.File(""));
    }
    void TearDown() override {
        if (!before.empty()) {
            std::filesystem::current_path(before);
        }
    }

    // Runs a command line and returns what it prints.
    std::string Run(const std::string& line) {
        std::vector<std::string> words = Words(line);
        if (line == "echo $?") {
            return std::to_string(exitCode) + "\n";
        }
        if (words.empty() || words.front() != "vexil-dbc") {
            return "an example calls another program: " + line + "\n";
        }
        words.erase(words.begin());
        const Outcome outcome = RunTool(words);
        exitCode = outcome.exitCode;
        return outcome.out + outcome.err;
    }

    // Follows the blocks of a document. Returns the number of commands in them.
    std::size_t RunExamples(const std::string& path) {
        std::size_t commands = 0;
        for (const Block& block : Blocks(path)) {
            std::string shown;
            std::string printed;
            for (const std::string& line : block.lines) {
                shown += line + "\n";
                if (block.kind == "console" && line.starts_with("$ ")) {
                    printed += line + "\n" + Run(line.substr(2));
                    ++commands;
                }
            }
            if ((block.kind == "dbc" || block.kind == "json") && !block.name.empty()) {
                WriteBytes(block.name, shown);
            } else if (block.kind == "console") {
                EXPECT_EQ(printed, shown);
            }
        }
        return commands;
    }

    std::filesystem::path before;
    int exitCode = 0;
};

TEST_F(ToolDocument, HasExamplesThatAreTrue) {
    EXPECT_GT(RunExamples(VEXIL64_TOOL_DOCUMENT), 8U);
}

TEST_F(ToolDocument, AndReadmeShowWhatTheToolPrints) {
    EXPECT_EQ(RunExamples(VEXIL64_README), 3U);
}

}  // namespace
}  // namespace vexil::test
