// Tests of two copies of the library in one process, each in a namespace of the loader.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "faults/loaded_library.h"
#include "support/files.h"

namespace vexil::faults {
namespace {

TEST(TwoCopies, ShareNoState) {
    const test::TempFolder folder;
    const std::string one = folder.File("one.dbc");
    const std::string two = folder.File("two.dbc");
    test::WriteBytes(one, "BO_ 1 One: 8 N\nBO_ 2 More: 8 N\n");
    test::WriteBytes(two, "BO_ 3 Three: 8 N\n");

    const LoadedLibrary first(dlmopen(LM_ID_NEWLM, VEXIL64_LIBRARY, RTLD_NOW | RTLD_LOCAL));
    const LoadedLibrary second(dlmopen(LM_ID_NEWLM, VEXIL64_LIBRARY, RTLD_NOW | RTLD_LOCAL));
    ASSERT_NE(first.ReadDbcFile, second.ReadDbcFile);

    EXPECT_EQ(first.Read(one), StateClosed);
    EXPECT_EQ(second.GetNumCanMessages(), 0U);
    EXPECT_EQ(second.Read(two), StateClosed);
    EXPECT_EQ(first.GetNumCanMessages(), 2U);
    EXPECT_EQ(second.GetNumCanMessages(), 1U);

    const DatabaseInfo info{ProtocolJ1939, BusCanFd};
    first.SetDatabaseInfo(&info, sizeof info);
    DatabaseInfo other{77, 77};
    second.GetDatabaseInfo(&other, sizeof other);
    EXPECT_EQ(other.protocolType, ProtocolPlainCan);
    EXPECT_EQ(other.busType, BusClassicCan);

    CanMessageRecord message{};
    EXPECT_EQ(second.GetCanMessageData(0, &message), 1);
    EXPECT_EQ(message.id, 3U);
    EXPECT_EQ(second.AppendCanMessage(&message), 1);
    EXPECT_EQ(first.GetNumCanMessages(), 2U);
    first.ClearData();
    EXPECT_EQ(first.GetNumCanMessages(), 0U);
    EXPECT_EQ(second.GetNumCanMessages(), 2U);
}

}  // namespace
}  // namespace vexil::faults
