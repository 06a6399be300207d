// The tables of fields: they have every byte of the records that is not a gap.
// SPDX-License-Identifier: MIT
#include "database/record_fields.h"

#include <gtest/gtest.h>
#include <vexil64.h>

#include <cmath>
#include <limits>

namespace vexil::test {
namespace {

using tool::FieldKind;
using tool::RecordField;

// The bytes between the fields and after them, in the order of offsets.
template <typename Record>
std::vector<std::size_t> Gaps(std::span<const RecordField> fields) {
    std::vector<bool> covered(sizeof(Record));
    for (const RecordField& field : fields) {
        for (std::size_t at = field.offset; at < field.offset + field.size; ++at) {
            EXPECT_FALSE(covered.at(at)) << field.name << " overlaps another field";
            covered[at] = true;
        }
    }
    std::vector<std::size_t> gaps;
    for (std::size_t at = 0; at < covered.size(); ++at) {
        if (!covered[at]) {
            gaps.push_back(at);
        }
    }
    return gaps;
}

TEST(RecordFields, CoverTheRecordsButForTheirGaps) {
    using Bytes = std::vector<std::size_t>;
    EXPECT_EQ(Gaps<DatabaseInfo>(tool::InfoFields()), Bytes());
    EXPECT_EQ(Gaps<CanMessageRecord>(tool::MessageFields()),
              (Bytes{37, 38, 39, 333, 334, 335, 633, 634, 635}));
    EXPECT_EQ(Gaps<CanSignalRecord>(tool::SignalFields()),
              (Bytes{834, 835, 860, 861, 862, 863, 941, 942, 943}));
    EXPECT_EQ(Gaps<CanEnumRecord>(tool::DescriptionFields()), Bytes());
    EXPECT_EQ(Gaps<ParseError>(tool::ErrorFields()), Bytes());
}

const RecordField& FieldOf(std::span<const RecordField> fields, std::string_view name) {
    for (const RecordField& field : fields) {
        if (field.name == name) {
            return field;
        }
    }
    throw std::runtime_error("no such field");
}

TEST(RecordFields, CarryTheExtremesOfEachKind) {
    CanSignalRecord record{};
    record.startBit = 4294967295;
    record.startValue = std::numeric_limits<std::int32_t>::min();
    record.factor = -0.5;
    CanSignalRecord copy{};
    for (const std::string_view name : {"startBit", "startValue"}) {
        const RecordField& field = FieldOf(tool::SignalFields(), name);
        tool::StoreWhole(field, &copy, tool::LoadWhole(field, &record));
    }
    const RecordField& factor = FieldOf(tool::SignalFields(), "factor");
    tool::StoreDouble(factor, &copy, tool::LoadDouble(factor, &record));
    EXPECT_EQ(copy.startBit, 4294967295);
    EXPECT_EQ(copy.startValue, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(copy.factor, -0.5);
}

TEST(RecordFields, EndATextAtItsNulOrAtTheEndOfTheField) {
    const RecordField& unit = FieldOf(tool::SignalFields(), "unit");
    CanSignalRecord record{};
    tool::StoreText(unit, &record, "km/h");
    tool::StoreText(unit, &record, "m");
    EXPECT_EQ(tool::LoadText(unit, &record), "m");
    std::fill(std::begin(record.unit), std::end(record.unit), 'x');
    EXPECT_EQ(tool::LoadText(unit, &record), std::string(ShortTextSize, 'x'));
}

TEST(IsSameValue, TakesTwoNaNOfOneSignForTheSame) {
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    const RecordField& factor = FieldOf(tool::SignalFields(), "factor");
    const auto isSame = [&](double one, double other) {
        CanSignalRecord left{};
        CanSignalRecord right{};
        left.factor = one;
        right.factor = other;
        return tool::IsSameValue(factor, &left, &right);
    };
    EXPECT_TRUE(isSame(NaN, NaN));
    EXPECT_FALSE(isSame(NaN, std::copysign(NaN, -1.0)));
    EXPECT_FALSE(isSame(NaN, 0));
    EXPECT_TRUE(isSame(1.5, 1.5));
    EXPECT_FALSE(isSame(0.0, -0.0));
    EXPECT_FALSE(isSame(1, 2));
}

}  // namespace
}  // namespace vexil::test
