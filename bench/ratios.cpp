// Prints what the library costs as multiples of bare loops that do what cannot be left out, in a
// table. Work and loop take turns, and the median of their ratios counts, so that a busy moment
// hits both sides.
//
//   vexil64_ratios            the table
//   vexil64_ratios --hostile  the table of the hostile inputs
//   vexil64_ratios --smoke    a table of small inputs, measured once, to see that all of it works
//   vexil64_ratios --peak F   reads the file F and prints the bytes of memory that it took
//   vexil64_ratios --measure  for the table of the hostile inputs, see hostile.h
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <iomanip>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "figures.h"
#include "hostile.h"
#include "inputs.h"
#include "support/files.h"
#include "work.h"

namespace vexil::bench {
namespace {

struct Comparison {
    double seconds = 0;      // of the work
    double loopSeconds = 0;  // of the bare loop
    double ratio = 0;
};

// Runs both in turn, each after prepare, which does not count.
Comparison Compare(const Work& prepare, const Work& work, const Work& loop, int rounds) {
    std::vector<double> times;
    std::vector<double> loopTimes;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        times.push_back(Seconds(work));
        loopTimes.push_back(Seconds(loop));
        ratios.push_back(times.back() / loopTimes.back());
    }
    return {Median(times), Median(loopTimes), Median(ratios)};
}

Comparison Compare(const Work& work, const Work& loop, int rounds) {
    return Compare([] {}, work, loop, rounds);
}

void PrintHead() {
    std::cout << "| Work | Time (ms) | Bare loop (ms) | Ratio |\n|---|---:|---:|---:|\n";
}

void PrintRow(const std::string& name, const Comparison& comparison) {
    std::cout << "| " << name << " | " << std::fixed << std::setprecision(2)
              << comparison.seconds * 1e3 << " | " << comparison.loopSeconds * 1e3 << " | "
              << comparison.ratio << " |" << std::endl;
}

void PrintNumber(const std::string& name, double number) {
    std::cout << "| " << name << " | " << std::fixed << std::setprecision(2) << number << " |"
              << std::endl;
}

// -- Memory --

int PrintPeak(const std::string& path) {
    const std::uint64_t before = PeakMemory();
    ReadDatabase(path);
    std::cout << PeakMemory() - before << std::endl;
    return 0;
}

// The memory that a read takes, in a process of its own, as a multiple of the file.
double PeakOfRead(const std::string& program, const std::string& path) {
    const std::string command = "'" + program + "' --peak '" + path + "'";
    FILE* output = popen(command.c_str(), "r");
    Check(output != nullptr, "no process was started");
    unsigned long long bytes = 0;
    const bool found = std::fscanf(output, "%llu", &bytes) == 1;
    Check(pclose(output) == 0 && found, "a process did not tell its memory");
    return static_cast<double>(bytes) / static_cast<double>(test::ReadBytes(path).size());
}

// -- The rows --

class Table {
  public:
    Table(std::string programPath, int roundCount)
        : program(std::move(programPath)), rounds(roundCount) {}

    // Stores a database as the file that the following rows work on.
    void Load(const NamedDatabase& named) {
        name = named.name;
        const Database database = named.make();
        test::WriteBytes(input, database.text);
        ReadDatabase(input);
        CheckDatabase(database);
    }

    void LoadFile(const std::string& label, const std::string& path) {
        name = label;
        test::WriteBytes(input, test::ReadBytes(path));
    }

    void Read() const {
        PrintRow("read " + name,
                 Compare([&] { ReadDatabase(input); }, [&] { ReadLines(input); }, rounds));
    }

    void Fetch() const {
        ReadDatabase(input);
        PrintRow("fetch " + name, Compare([] { Check(FetchRecords() != 0, "no record"); },
                                          [&] { ReadLines(input); }, rounds));
    }

    // Reads before each write, so that names are made unique each time.
    void Write() {
        ReadDatabase(input);
        WriteDatabase(output);
        const std::string text = test::ReadBytes(output);
        const std::vector<std::string_view> lines = SplitLines(text);
        const auto compare = [&](const std::string& to) {
            return Compare([&] { ReadDatabase(input); }, [&] { WriteDatabase(to); },
                           [&] { WriteLines(to, lines); }, rounds);
        };
        PrintRow("write " + name, compare(output));
        const Comparison sink = compare(std::string(Sink));
        PrintRow("write " + name + " to nowhere", sink);
        numbers.emplace_back(
            "write " + name + " to nowhere, ns for a line beyond its flush",
            (sink.seconds - sink.loopSeconds) * 1e9 / static_cast<double>(lines.size()));
    }

    void Peak() {
        numbers.emplace_back("memory of reading " + name + ", multiple of the file",
                             PeakOfRead(program, input));
    }

    void CheckByTool() { RunTool("check", {input}); }
    void PrintAsJsonByTool() { RunTool("json", {input}); }

    // The file and what a write makes of it, which differ in much.
    void DiffByTool() {
        ReadDatabase(input);
        WriteDatabase(output);
        RunTool("diff", {input, output});
    }

    void PrintNumbers() const {
        std::cout << "\n| Figure | Value |\n|---|---:|\n";
        for (const auto& [label, number] : numbers) {
            PrintNumber(label, number);
        }
    }

  private:
    // vexil-dbc with these files beside processes that only read each of them.
    void RunTool(const std::string& command, const std::vector<std::string>& files) {
        const std::string label = "vexil-dbc " + command + " " + name;
        std::vector<std::string> arguments = {VEXIL64_TOOL, command};
        arguments.insert(arguments.end(), files.begin(), files.end());
        std::vector<double> times;
        std::vector<double> readTimes;
        std::vector<double> ratios;
        ProcessCost cost;
        std::size_t bytes = 0;
        for (int round = 0; round < rounds; ++round) {
            cost = RunProcess(arguments);
            Check(cost.exitCode == 0 || cost.exitCode == 1, label + " failed");
            double readTime = 0;
            bytes = 0;
            for (const std::string& file : files) {
                const ProcessCost read = RunProcess({program, "--peak", file});
                Check(read.exitCode == 0, "a process did not read");
                readTime += read.seconds;
                bytes += test::ReadBytes(file).size();
            }
            times.push_back(cost.seconds);
            readTimes.push_back(readTime);
            ratios.push_back(cost.seconds / readTime);
        }
        PrintRow(label + ", against a process that reads",
                 {Median(times), Median(readTimes), Median(ratios)});
        numbers.emplace_back(
            "memory of " + label + ", multiple of the file" + (files.size() == 1 ? "" : "s"),
            static_cast<double>(cost.peakMemory) / static_cast<double>(bytes));
    }

    std::string program;
    int rounds;
    test::TempFolder folder;
    std::string input = folder.File("input.dbc");
    std::string output = folder.File("output.dbc");
    std::string name;
    std::vector<std::pair<std::string, double>> numbers;
};

int PrintTable(Table&& table, const std::vector<NamedDatabase>& databases) {
    PrintHead();
    for (const NamedDatabase& named : databases) {
        table.Load(named);
        table.Read();
        table.Fetch();
        table.Write();
        table.Peak();
        table.CheckByTool();
        table.PrintAsJsonByTool();
        table.DiffByTool();
    }
    if (const std::string real = LargestRealFile(); !real.empty()) {
        table.LoadFile("real file", real);
        table.Read();
        table.Peak();
        table.CheckByTool();
        table.PrintAsJsonByTool();
        table.DiffByTool();
    }
    table.PrintNumbers();
    return 0;
}

int Run(const std::vector<std::string>& arguments) {
    const std::string mode = arguments.size() > 1 ? arguments[1] : "";
    if (mode == "--peak" && arguments.size() == 3) {
        return PrintPeak(arguments[2]);
    }
    if (mode == "--measure" && arguments.size() == 5) {
        PrintMeasurement(arguments[2], arguments[3], std::stoi(arguments[4]));
        return 0;
    }
    if (mode == "--smoke" && arguments.size() == 2) {
        PrintTable({arguments[0], 1}, {{"wide", [] { return WideDatabase(MiB / 8); }},
                                       {"tall", [] { return TallDatabase(100); }},
                                       {"names", [] { return NamesDatabase(100); }}});
        PrintHostileTable(arguments[0], 4096, 1);
        return 0;
    }
    if (mode == "--hostile" && arguments.size() == 2) {
        PrintHostileTable(arguments[0], MiB, 3);
        return 0;
    }
    if (mode.empty()) {
        return PrintTable({arguments[0], 9}, PlainDatabases());
    }
    std::cerr << "usage: vexil64_ratios [--hostile | --smoke | --peak file]" << std::endl;
    return 2;
}

}  // namespace
}  // namespace vexil::bench

int main(int argc, char** argv) {
    return vexil::bench::Run({argv, argv + argc});
}
