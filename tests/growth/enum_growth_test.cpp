// Whether the cost of value descriptions grows with their number and no faster, in any order
// they are appended and fetched.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <ostream>
#include <string>

#include "limits.h"
#include "steps.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

constexpr std::uint32_t Smallest = 1024;
constexpr std::uint32_t Largest = 64 * Smallest;
constexpr std::uint64_t MaxStepsPerDescription = 2000;
constexpr double MaxRatio = 5.3;  // of four times the descriptions

void AppendDescription(std::uint32_t value) {
    CanEnumRecord record{};
    record.value = static_cast<std::int32_t>(value);
    std::strcpy(record.text, "text");
    ASSERT_EQ(VexilAppendEnumToCanSignal(0, 0, &record), 1);
}

void FetchDescription(std::uint32_t index, std::uint32_t value) {
    CanEnumRecord record{};
    ASSERT_EQ(VexilGetCanSignalEnumData(0, 0, index, &record), 1);
    ASSERT_EQ(record.value, static_cast<std::int32_t>(value));
}

// An order of the numbers below count: the number at an index.
using Order = std::uint32_t (*)(std::uint32_t index, std::uint32_t count);

std::uint32_t Ascending(std::uint32_t index, std::uint32_t) {
    return index;
}

std::uint32_t Descending(std::uint32_t index, std::uint32_t count) {
    return count - 1 - index;
}

// All over the place. Precondition: count is a power of two.
std::uint32_t Scattered(std::uint32_t index, std::uint32_t count) {
    return index * 2654435761U % count;
}

struct Row {
    const char* name;
    Order order;

    // Found by the test framework.
    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class EnumGrowth : public testing::Test {
  protected:
    void SetUp() override { Measure(MakeSignal); }
    void TearDown() override { Measure(VexilClearData); }

    static void MakeSignal() {
        VexilClearData();
        const CanMessageRecord message{};
        ASSERT_EQ(VexilAppendCanMessage(&message), 1);
        const CanSignalRecord signal{};
        ASSERT_EQ(VexilAppendCanSignalToCanMessage(0, &signal), 1);
    }

    // Measures work(count) for one count after the other, each with a new signal. Steps of
    // four: what puts its entries in order now and then is at another point of its round at each
    // size.
    void ExpectLinearWork(const std::function<void(std::uint32_t count)>& work) {
        Cost quarter;
        for (std::uint32_t count = Smallest; count <= Largest && !HasFailure(); count *= 4) {
            SCOPED_TRACE(testing::Message() << count << " descriptions");
            SetUp();
            const std::uint64_t limit = MaxStepsPerDescription * count;
            const Cost cost = Measure([&] { work(count); }, Patience * limit);
            EXPECT_LE(cost.steps, limit);
            if (count != Smallest) {
                ExpectGrowth(cost, quarter, count / 4, MaxRatio);
            }
            quarter = cost;
        }
    }
};

class EnumGrowthInOrder : public EnumGrowth, public testing::WithParamInterface<Row> {
  protected:
    void Append(std::uint32_t count) {
        for (std::uint32_t index = 0; index < count; ++index) {
            AppendDescription(GetParam().order(index, count));
        }
    }
    void Fetch(std::uint32_t count) {
        for (std::uint32_t index = 0; index < count; ++index) {
            const std::uint32_t place = GetParam().order(index, count);
            FetchDescription(place, place);
        }
    }
};

// Together, since an append may leave work to the fetch.
TEST_P(EnumGrowthInOrder, OfAppendingAndFetchingIsLinear) {
    ExpectLinearWork([&](std::uint32_t count) {
        Append(count);
        Fetch(count);
    });
}

// A fetch after each append, so that nothing that a fetch prepares lasts.
TEST_F(EnumGrowth, OfAscendingAppendsAndFetchesInTurnIsLinear) {
    ExpectLinearWork([](std::uint32_t count) {
        for (std::uint32_t index = 0; index < count; ++index) {
            AppendDescription(index);
            FetchDescription(index, index);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Orders, EnumGrowthInOrder,
                         testing::Values(Row{"Ascending", Ascending}, Row{"Descending", Descending},
                                         Row{"Scattered", Scattered}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace vexil::growth
