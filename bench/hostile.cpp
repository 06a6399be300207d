// The table of the hostile inputs. Each operation runs in its own process, so that its memory can
// be measured and an operation that takes too long can be stopped.
// SPDX-License-Identifier: MIT
#include "hostile.h"

#include <sys/resource.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <new>
#include <sstream>
#include <thread>
#include <vector>

#include "figures.h"
#include "inputs.h"
#include "support/files.h"
#include "vexil64.h"
#include "work.h"

namespace vexil::bench {
namespace {

// The limits at which an operation is stopped.
constexpr double TimeLimit = 2;  // seconds
constexpr rlim_t MemoryLimit = rlim_t{4} * 1024 * MiB;

// An operation after a read, or the read alone. Returns a number with which the result is checked.
struct HostileWork {
    const char* name;
    const char* title;
    std::uint64_t (*run)();
    std::uint64_t (*expected)(const Database& database);
};

std::uint64_t CountMessages() {
    return VexilGetNumCanMessages();
}

std::uint64_t WriteToNowhere() {
    WriteDatabase(std::string(Sink));
    return 0;
}

constexpr std::array<HostileWork, 4> Works = {{
    {"read", "Read", CountMessages, [](const Database& database) { return database.messages; }},
    {"walk", "Walk", FetchRecords,
     [](const Database& database) {
         return database.messages + database.signals + database.enums + database.errors;
     }},
    {"first", "First descriptions", FetchFirstDescriptions,
     [](const Database& database) { return database.signals; }},
    {"write", "Write", WriteToNowhere, [](const Database&) { return std::uint64_t{0}; }},
}};

// The measurement that a process prints.
struct Measurement {
    bool isDone = false;  // false if the operation was stopped
    double seconds = 0;
    double memory = 0;  // bytes
    std::uint64_t result = 0;
};

// Prints the measurement and ends the process. Called when the operation is done or is stopped,
// whichever comes first.
[[noreturn]] void Report(const Measurement& measurement) {
    static std::atomic_flag isReported;
    while (isReported.test_and_set()) {
        std::this_thread::sleep_for(std::chrono::seconds(1));  // the other thread ends the process
    }
    std::cout << measurement.isDone << " " << measurement.seconds << " " << std::fixed
              << measurement.memory << " " << measurement.result << std::endl;
    std::_Exit(EXIT_SUCCESS);
}

double MemorySince(std::uint64_t before) {
    return static_cast<double>(PeakMemory() - before);
}

// Measures the operation repeatedly. The memory is that of the first run.
Measurement Repeat(const HostileWork& work, const std::string& path, int rounds,
                   std::uint64_t before) {
    const bool isRead = work.run == CountMessages;
    Measurement measurement{true};
    std::vector<double> times;
    double total = 0;
    for (int round = 0; round < rounds && total < TimeLimit / 4; ++round) {
        const double readTime = Seconds([&] { ReadDatabase(path); });
        const double workTime = Seconds([&] { measurement.result = work.run(); });
        times.push_back(isRead ? readTime : workTime);
        total += readTime + workTime;
        if (round == 0) {
            measurement.memory = MemorySince(before);
        }
    }
    measurement.seconds = Median(times);
    return measurement;
}

[[noreturn]] void Measure(const HostileWork& work, const std::string& path, int rounds) {
    const std::uint64_t before = PeakMemory();
    const rlimit memory{MemoryLimit, MemoryLimit};
    Check(setrlimit(RLIMIT_AS, &memory) == 0, "the memory was not limited");
    std::thread([before] {
        std::this_thread::sleep_for(std::chrono::duration<double>(TimeLimit));
        Report({false, TimeLimit, MemorySince(before)});
    }).detach();
    Measurement measurement;
    const double seconds = Seconds([&] {
        try {
            measurement = Repeat(work, path, rounds, before);
        } catch (const std::bad_alloc&) {
            measurement.memory = MemorySince(before);
        }
    });
    if (!measurement.isDone) {
        measurement.seconds = seconds;
    }
    Report(measurement);
}

Measurement MeasureInProcess(const std::string& program, const HostileWork& work,
                             const std::string& path, int rounds) {
    std::ostringstream command;
    command << "'" << program << "' --measure " << work.name << " '" << path << "' " << rounds;
    FILE* output = popen(command.str().c_str(), "r");
    Check(output != nullptr, "no process was started");
    int isDone = 0;
    unsigned long long result = 0;
    Measurement measurement;
    const int found = std::fscanf(output, "%d %lf %lf %llu", &isDone, &measurement.seconds,
                                  &measurement.memory, &result);
    Check(pclose(output) == 0 && found == 4, "a process did not print its measurement");
    measurement.isDone = isDone != 0;
    measurement.result = result;
    return measurement;
}

// -- The table --

// A column and its largest number.
class Column {
  public:
    explicit Column(std::string columnTitle) : title(std::move(columnTitle)) {}

    const std::string& Title() const { return title; }

    // Returns the text of a cell.
    //   isDone  false if the operation was stopped, so that the number is a lower bound.
    std::string Add(const std::string& row, double number, bool isDone) {
        std::ostringstream text;
        text << (isDone ? "" : "> ") << std::fixed << std::setprecision(isDone ? 1 : 0) << number;
        std::string cell = text.str();
        if (cell == worstCell) {
            ++othersLikeIt;
        } else if (number > worst) {
            worst = number;
            worstCell = cell;
            worstRow = row;
            othersLikeIt = 0;
        }
        return cell;
    }

    std::string Worst() const {
        const std::string others =
            othersLikeIt == 0 ? "" : " and " + std::to_string(othersLikeIt) + " others";
        return worstCell + " (" + worstRow + others + ")";
    }

  private:
    std::string title;
    double worst = -1;
    std::string worstCell;
    std::string worstRow;
    int othersLikeIt = 0;
};

class Table {
  public:
    Table(std::string programPath, int roundCount)
        : program(std::move(programPath)), rounds(roundCount) {
        for (const HostileWork& work : Works) {
            columns.emplace_back(work.title);
        }
        columns.emplace_back("Memory of the read");
        columns.emplace_back("of read and walk");
    }

    void PrintHead() const {
        std::cout << "| Input |";
        for (const Column& column : columns) {
            std::cout << " " << column.Title() << " |";
        }
        std::cout << "\n|---|";
        for (std::size_t count = 0; count < columns.size(); ++count) {
            std::cout << "---:|";
        }
        std::cout << std::endl;
    }

    void PrintRow(const NamedDatabase& named) {
        const std::string name = named.name.substr(named.name.find('/') + 1);
        const Database database = named.make();
        const auto size = static_cast<double>(database.text.size());
        test::WriteBytes(input, database.text);
        std::vector<std::string> cells;
        std::vector<std::string> memoryCells;
        for (std::size_t index = 0; index < Works.size(); ++index) {
            const HostileWork& work = Works[index];
            if (work.run == WriteToNowhere && database.messages == 0) {
                cells.emplace_back("-");  // an empty database is not written
                continue;
            }
            const Measurement found = MeasureInProcess(program, work, input, rounds);
            Check(!found.isDone || found.result == work.expected(database), name);
            cells.push_back(columns[index].Add(name, found.seconds * 1e9 / size, found.isDone));
            if (index < 2) {
                memoryCells.push_back(
                    columns[Works.size() + index].Add(name, found.memory / size, found.isDone));
            }
        }
        cells.insert(cells.end(), memoryCells.begin(), memoryCells.end());
        std::cout << "| " << name << " |";
        for (const std::string& cell : cells) {
            std::cout << " " << cell << " |";
        }
        std::cout << std::endl;
    }

    void PrintWorst() const {
        std::cout << "\nWorst:";
        for (std::size_t index = 0; index < columns.size(); ++index) {
            std::cout << (index == 0 ? " " : "; ") << columns[index].Title() << " "
                      << columns[index].Worst();
        }
        std::cout << "." << std::endl;
    }

  private:
    std::string program;
    int rounds;
    test::TempFolder folder;
    std::string input = folder.File("input.dbc");
    std::vector<Column> columns;
};

}  // namespace

void PrintHostileTable(const std::string& program, std::size_t size, int rounds) {
    Table table(program, rounds);
    table.PrintHead();
    for (const NamedDatabase& named : HostileDatabases(size)) {
        table.PrintRow(named);
    }
    table.PrintWorst();
}

void PrintMeasurement(const std::string& workName, const std::string& path, int rounds) {
    for (const HostileWork& work : Works) {
        if (work.name == workName) {
            Measure(work, path, rounds);
        }
    }
    Check(false, "there is no such work");
}

}  // namespace vexil::bench
