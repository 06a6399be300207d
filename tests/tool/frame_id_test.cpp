// The parts of ids.
// SPDX-License-Identifier: MIT
#include "database/frame_id.h"

#include <gtest/gtest.h>

namespace vexil::test {
namespace {

using tool::J1939Parts;

TEST(FindJ1939Parts, HasADestinationBelowFormat240) {
    EXPECT_EQ(
        tool::FindJ1939Parts(0x98EA17FEU),
        (J1939Parts{.priority = 6, .parameterGroup = 0xEA00, .source = 0xFE, .destination = 0x17}));
    EXPECT_EQ(
        tool::FindJ1939Parts(0x80EFFF00U),
        (J1939Parts{.priority = 0, .parameterGroup = 0xEF00, .source = 0, .destination = 0xFF}));
}

TEST(FindJ1939Parts, HasAGroupExtensionFromFormat240On) {
    EXPECT_EQ(
        tool::FindJ1939Parts(0x8CF00400U),
        (J1939Parts{
            .priority = 3, .parameterGroup = 0xF004, .source = 0, .destination = std::nullopt}));
}

TEST(FindJ1939Parts, CountsBothPageBitsToTheGroup) {
    EXPECT_EQ(tool::FindJ1939Parts(0x9FFFFFFFU), (J1939Parts{.priority = 7,
                                                             .parameterGroup = 0x3FFFF,
                                                             .source = 0xFF,
                                                             .destination = std::nullopt}));
    EXPECT_EQ(
        tool::FindJ1939Parts(0x83000000U),
        (J1939Parts{.priority = 0, .parameterGroup = 0x30000, .source = 0, .destination = 0}));
}

TEST(FindJ1939Parts, AreNoneForStandardFramesAndIdsOfMoreThan29Bits) {
    EXPECT_EQ(tool::FindJ1939Parts(0x7FFU), std::nullopt);
    EXPECT_EQ(tool::FindJ1939Parts(0x18F00400U), std::nullopt);
    EXPECT_EQ(tool::FindJ1939Parts(0xA0000000U), std::nullopt);
}

TEST(IsValidId, HasALimitForEachKindOfFrame) {
    EXPECT_TRUE(tool::IsValidId(0x7FFU));
    EXPECT_FALSE(tool::IsValidId(0x800U));
    EXPECT_TRUE(tool::IsValidId(0x9FFFFFFFU));
    EXPECT_FALSE(tool::IsValidId(0xA0000000U));
}

}  // namespace
}  // namespace vexil::test
