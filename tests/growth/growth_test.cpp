// Whether the cost of reading, fetching and writing grows with the input and no faster, for inputs
// that are meant to make it. What is counted are steps, so a busy machine changes nothing.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <iostream>
#include <string>
#include <vector>

#include "limits.h"
#include "shapes.h"
#include "steps.h"
#include "support/files.h"
#include "vexil64.h"

namespace vexil::growth {

// Tells the test framework how to show a shape.
void PrintTo(const Shape& shape, std::ostream* out);
void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.name;
}

namespace {

constexpr std::size_t Smallest = 64 * KiB;

struct Phase {
    const char* name;
    Cost cost;
};

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

void Read(const std::string& path) {
    std::uint32_t code = StateReading;
    ASSERT_EQ(VexilReadDbcFile(path.c_str(), BufferSize(path), &code), 1);
    ASSERT_EQ(code, StateClosed);
}

void Write(std::uint64_t messages) {
    const std::string path = "/dev/null";
    std::uint32_t code = StateReading;
    ASSERT_EQ(VexilWriteDbcFile(path.c_str(), BufferSize(path), OrderByNameAscending, &code),
              messages == 0 ? 0 : 1);
    ASSERT_EQ(code, StateClosed);
}

// Fetches a signal with its value descriptions. Returns their number.
std::uint64_t FetchSignal(std::uint32_t messageIndex, std::uint32_t signalIndex) {
    CanSignalRecord signal;
    EXPECT_EQ(VexilGetCanSignalData(messageIndex, signalIndex, &signal), 1);
    for (std::uint32_t enumIndex = 0; enumIndex < signal.enumCount; ++enumIndex) {
        CanEnumRecord record;
        EXPECT_EQ(VexilGetCanSignalEnumData(messageIndex, signalIndex, enumIndex, &record), 1);
    }
    return signal.enumCount;
}

// Fetches all there is and compares its amount with what the input promises.
void Fetch(const Input& input) {
    Input found;
    CanMessageRecord message;
    while (VexilGetCanMessageData(static_cast<std::uint32_t>(found.messages), &message) != 0) {
        const auto messageIndex = static_cast<std::uint32_t>(found.messages++);
        found.signals += message.signalCount;
        for (std::uint32_t signalIndex = 0; signalIndex < message.signalCount; ++signalIndex) {
            found.enums += FetchSignal(messageIndex, signalIndex);
        }
    }
    ParseError error;
    while (VexilGetErrorData(static_cast<std::uint32_t>(found.errors), &error) != 0) {
        ++found.errors;
    }
    ASSERT_EQ(found.messages, input.messages);
    ASSERT_EQ(found.signals, input.signals);
    ASSERT_EQ(found.enums, input.enums);
    ASSERT_EQ(found.errors, input.errors);
}

// What each phase costs with an input. The second write meets names that are unique already.
std::vector<Phase> MeasurePhases(const Input& input, bool isReadAlone) {
    const test::TempFolder folder;
    const std::string path = folder.File("input.dbc");
    test::WriteBytes(path, input.text);
    const std::uint64_t limit = Patience * MaxStepsPerByte * input.text.size();
    const auto write = [&] { Write(input.messages); };
    std::vector<Phase> phases = {{"read", Measure([&] { Read(path); }, limit)}};
    if (isReadAlone) {
        EXPECT_EQ(VexilGetNumCanMessages(), input.messages);
    } else {
        phases.push_back({"fetch", Measure([&] { Fetch(input); }, limit)});
        phases.push_back({"write", Measure(write, limit)});
        phases.push_back({"second write", Measure(write, limit)});
    }
    VexilClearData();
    return phases;
}

class Growth : public testing::TestWithParam<Shape> {};

TEST_P(Growth, IsLinear) {
    std::vector<Phase> half;
    for (std::size_t size = Smallest; size <= GetParam().largest; size *= 2) {
        const std::vector<Phase> phases =
            MeasurePhases(GetParam().make(size), GetParam().isReadAlone);
        // A count below this would mean that the library was not built with the counters.
        EXPECT_GE(phases[0].cost.steps, size);
        for (std::size_t index = 0; index < phases.size(); ++index) {
            const auto& [name, cost] = phases[index];
            SCOPED_TRACE(testing::Message() << name << " of " << size << " bytes");
            std::cout << name << " of " << size / KiB << " KiB: " << cost.steps / size
                      << " steps and " << cost.peakBytes / size << " bytes of memory per byte\n";
            EXPECT_LE(cost.steps, MaxStepsPerByte * size);
            EXPECT_LE(cost.peakBytes, MaxMemoryPerByte * size);
            if (!half.empty()) {
                ExpectGrowth(cost, half[index].cost, size / 2, MaxRatio);
            }
        }
        if (HasFailure()) {
            return;  // the next size would only take longer
        }
        half = phases;
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, Growth, testing::ValuesIn(AllShapes()),
                         [](const auto& shape) { return shape.param.name; });

}  // namespace
}  // namespace vexil::growth
