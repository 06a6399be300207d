// Whether the cost of reading, fetching and writing stays proportional to the input, for inputs
// designed to make it grow faster. The tests count steps, so the load of the machine does not
// matter.
//
// Each input is measured in 64 KiB, 1 MiB and one large size. A jump of 16 is a sharper test than
// several steps of two: the logarithm of sorting and the rounds in which containers grow weigh
// little beside it, so that even a quadratic part of 3 % at 1 MiB fails at 16 MiB. The large size
// costs nearly all of the time. It is 16 MiB for the inputs that take few steps and 4 MiB for the
// others, unless the environment variable VEXIL64_GROWTH_LARGE is set to anything.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "limits.h"
#include "shapes.h"
#include "steps.h"
#include "support/files.h"
#include "vexil64.h"

namespace vexil::growth {

// Prints a shape in the messages of the test framework.
void PrintTo(const Shape& shape, std::ostream* out);
void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.name;
}

namespace {

constexpr std::size_t Smallest = 64 * KiB;
constexpr std::size_t Middle = MiB;
constexpr std::size_t Large = 4 * MiB;
constexpr std::size_t Largest = 16 * MiB;
constexpr std::uint64_t FewSteps = 14 * Middle;  // of all phases of the middle size

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

// A file with an input, whose text is not kept.
struct InputFile {
    std::string path;
    std::size_t size = 0;
    Input input;
};

// -- The works of the phases --

void Read(const InputFile& file) {
    std::uint32_t code = StateReading;
    ASSERT_EQ(VexilReadDbcFile(file.path.c_str(), BufferSize(file.path), &code), 1);
    ASSERT_EQ(code, StateClosed);
}

void Write(const InputFile& file) {
    const std::string path = "/dev/null";
    std::uint32_t code = StateReading;
    ASSERT_EQ(VexilWriteDbcFile(path.c_str(), BufferSize(path), OrderByNameAscending, &code),
              file.input.messages == 0 ? 0 : 1);
    ASSERT_EQ(code, StateClosed);
}

// Calls visit(messageIndex, signalIndex) for each signal. Returns the numbers of messages and
// signals.
template <typename Visit>
Input ForEachSignal(Visit visit) {
    Input found;
    CanMessageRecord message;
    while (VexilGetCanMessageData(static_cast<std::uint32_t>(found.messages), &message) != 0) {
        const auto messageIndex = static_cast<std::uint32_t>(found.messages++);
        const auto signals = static_cast<std::uint32_t>(message.signalCount);
        found.signals += signals;
        for (std::uint32_t signalIndex = 0; signalIndex < signals; ++signalIndex) {
            visit(messageIndex, signalIndex);
        }
    }
    return found;
}

CanSignalRecord FetchSignal(std::uint32_t message, std::uint32_t signal) {
    CanSignalRecord record;
    EXPECT_EQ(VexilGetCanSignalData(message, signal, &record), 1);
    return record;
}

void FetchDescription(std::uint32_t message, std::uint32_t signal, std::uint32_t index) {
    CanEnumRecord record;
    EXPECT_EQ(VexilGetCanSignalEnumData(message, signal, index, &record), 1);
}

// Fetches the record of a signal, the number of its descriptions and the first description.
void FetchFirstDescription(std::uint32_t message, std::uint32_t signal) {
    std::uint32_t count = 0;
    EXPECT_EQ(VexilGetNumEnumsInCanSignal(message, signal, &count), 1);
    EXPECT_EQ(count, FetchSignal(message, signal).enumCount);
    if (count != 0) {
        FetchDescription(message, signal, 0);
    }
}

void FetchFirstDescriptions(const InputFile& file) {
    const Input found = ForEachSignal(FetchFirstDescription);
    EXPECT_EQ(found.messages, file.input.messages);
    EXPECT_EQ(found.signals, file.input.signals);
}

// Fetches the same records many times.
void FetchAgain(const InputFile& file) {
    CanMessageRecord message;
    for (std::size_t count = 0; count < file.size / (4 * KiB); ++count) {
        if (VexilGetCanMessageData(0, &message) != 0 && message.signalCount != 0) {
            FetchFirstDescription(0, 0);
        }
    }
}

// Fetches all there is and compares the counts with those of the input.
void Fetch(const InputFile& file) {
    std::uint64_t enums = 0;
    const Input found = ForEachSignal([&enums](std::uint32_t message, std::uint32_t signal) {
        const std::uint32_t count = FetchSignal(message, signal).enumCount;
        for (std::uint32_t index = 0; index < count; ++index) {
            FetchDescription(message, signal, index);
        }
        enums += count;
    });
    std::uint64_t errors = 0;
    ParseError error;
    while (VexilGetErrorData(static_cast<std::uint32_t>(errors), &error) != 0) {
        ++errors;
    }
    EXPECT_EQ(found.messages, file.input.messages);
    EXPECT_EQ(found.signals, file.input.signals);
    EXPECT_EQ(enums, file.input.enums);
    EXPECT_EQ(errors, file.input.errors);
    FetchAgain(file);
}

// In this order, all after one read. What the first descriptions leave prepared, they have paid for
// in their own phase; the other way round, the full fetch would pay for them.
struct PhaseRow {
    const char* name;
    Phase phase;
    void (*work)(const InputFile& file);
    std::size_t largest = Largest;  // input for which it is worth its time
};

constexpr std::array<PhaseRow, 5> Rows = {{
    {"read", Phase::Read, Read},
    {"first descriptions", Phase::FirstDescriptions, FetchFirstDescriptions},
    {"fetch", Phase::Fetch, Fetch},
    {"write", Phase::Write, Write},
    {"second write", Phase::Write, Write, Middle},  // of names that are unique already
}};

// -- Limits --

// What each input is held to in a phase for which it brings no bound.
Bound UsualBound(Phase phase) {
    return {phase, Unit::InputByte, static_cast<double>(MaxStepsPerByte),
            static_cast<double>(phase == Phase::Read ? MaxReadMemoryPerByte : MaxMemoryPerByte),
            Largest};
}

Bound FindBound(const Shape& shape, Phase phase) {
    for (const Bound& bound : shape.bounds) {
        if (bound.phase == phase) {
            return bound;
        }
    }
    return UsualBound(phase);
}

// How many units of the bound the phase of a file comes to.
double CountUnits(Unit unit, const InputFile& file, std::uint64_t writtenBytes) {
    const auto size = static_cast<double>(file.size);
    switch (unit) {
        case Unit::InputByte:
            return size;
        case Unit::FetchedRecord:
            return static_cast<double>(file.input.messages + file.input.signals + file.input.enums +
                                       file.input.errors);
        case Unit::WrittenByte:
            return size + static_cast<double>(writtenBytes);
        case Unit::InputByteToThreeHalves:
            return std::pow(size, 1.5);
        case Unit::InputByteSquared:
            return size * size;
    }
    return 0;
}

// The steps after which a phase is given up.
std::uint64_t StepLimit(const Bound& bound, const InputFile& file) {
    if (bound.unit == Unit::WrittenByte) {
        return NoLimit;
    }
    return static_cast<std::uint64_t>(Patience * bound.maxSteps * CountUnits(bound.unit, file, 0));
}

// The sizes in which a shape is measured, all but the large one. The phases of a bound are measured
// in two sizes that they can afford.
std::set<std::size_t> SizesOf(const Shape& shape) {
    std::set<std::size_t> sizes = {Smallest, Middle};
    for (const Bound& bound : shape.bounds) {
        sizes.insert({bound.largest / 4, bound.largest});
    }
    // Without a read there is nothing to measure.
    sizes.erase(sizes.upper_bound(FindBound(shape, Phase::Read).largest), sizes.end());
    return sizes;
}

class Growth : public testing::TestWithParam<Shape> {
  protected:
    // Measures one phase after the other. Returns the steps of all.
    std::uint64_t MeasureSize(std::size_t size) {
        SCOPED_TRACE(testing::Message() << size / KiB << " KiB");
        const test::TempFolder folder;
        InputFile file{folder.File("input.dbc"), size, GetParam().make(size)};
        file.size = file.input.text.size();
        test::WriteBytes(file.path, file.input.text);
        file.input.text = std::string();
        std::uint64_t steps = 0;
        for (const PhaseRow& row : Rows) {
            const Bound bound = FindBound(GetParam(), row.phase);
            if (size > std::min(row.largest, bound.largest)) {
                break;  // later phases would pay for what this one prepares
            }
            const Cost cost = Measure([&] { row.work(file); }, StepLimit(bound, file));
            CheckPhase(row, bound, file, cost);
            steps += cost.steps;
        }
        // Fewer steps would mean that the library was not built with the counters.
        EXPECT_GE(steps, file.size / 64);
        Measure(VexilClearData);
        return steps;
    }

  private:
    void CheckPhase(const PhaseRow& row, const Bound& bound, const InputFile& file,
                    const Cost& cost) {
        SCOPED_TRACE(row.name);
        const auto size = static_cast<double>(file.size);
        const double units = CountUnits(bound.unit, file, cost.writtenBytes);
        const double maxMemory =
            bound.maxMemory > 0 ? bound.maxMemory * units : UsualBound(row.phase).maxMemory * size;
        EXPECT_LE(static_cast<double>(cost.steps), bound.maxSteps * units);
        EXPECT_LE(static_cast<double>(cost.peakBytes), maxMemory);
        std::cout << row.name << " of " << file.size / KiB << " KiB: ";
        PrintCost("byte", cost, size);
        if (bound.unit == Unit::InputByte) {
            std::cout << std::endl;
            CompareWithEarlier(row.name, cost, file.size);
        } else {
            std::cout << "; ";
            PrintCost("unit", cost, units);
            std::cout << std::endl;
        }
    }

    static void PrintCost(const char* unit, const Cost& cost, double count) {
        std::cout << std::setprecision(4) << static_cast<double>(cost.steps) / count
                  << " steps and " << static_cast<double>(cost.peakBytes) / count
                  << " bytes of memory per " << unit;
    }

    void CompareWithEarlier(const std::string& phase, const Cost& cost, std::size_t size) {
        if (const auto found = earlier.find(phase); found != earlier.end()) {
            const auto& [smallerSize, smaller] = found->second;
            ExpectGrowth(cost, smaller, smallerSize,
                         MaxGrowth(static_cast<double>(size) / static_cast<double>(smallerSize)));
        }
        earlier[phase] = {size, cost};
    }

    // The size before, with its cost, of each phase that is linear.
    std::map<std::string, std::pair<std::size_t, Cost>> earlier;
};

TEST_P(Growth, StaysWithinItsBounds) {
    std::uint64_t steps = 0;
    for (const std::size_t size : SizesOf(GetParam())) {
        steps = MeasureSize(size);
        if (HasFailure()) {
            return;  // the next size would only take longer
        }
    }
    const bool isAffordable = steps <= FewSteps || std::getenv("VEXIL64_GROWTH_LARGE") != nullptr;
    const std::size_t large = isAffordable ? Largest : Large;
    if (large <= FindBound(GetParam(), Phase::Read).largest) {
        MeasureSize(large);
    }
}

const auto nameOf = [](const auto& shape) { return shape.param.name; };
INSTANTIATE_TEST_SUITE_P(Shapes, Growth, testing::ValuesIn(AllShapes()), nameOf);
INSTANTIATE_TEST_SUITE_P(KnownKeyShapes, Growth, testing::ValuesIn(KnownKeyShapes()), nameOf);

}  // namespace
}  // namespace vexil::growth
