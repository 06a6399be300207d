// Tests of frame/node_list.h.
// SPDX-License-Identifier: MIT
#include "frame/node_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexil {
namespace {

std::vector<std::string> Names(const NodeList& list) {
    std::vector<std::string> names;
    list.ForEach([&names](std::string_view name) { names.emplace_back(name); });
    return names;
}

TEST(NodeList, IsEmptyFromTheStartAndAfterClear) {
    NodeList list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.Joined(), "");
    EXPECT_EQ(Names(list), std::vector<std::string>{});
    list.Add("A");
    EXPECT_FALSE(list.IsEmpty());
    list.Clear();
    EXPECT_EQ(list, NodeList());
}

TEST(NodeList, KeepsNamesInOrderWithCommasBetweenThem) {
    NodeList list;
    list.Add("A");
    EXPECT_EQ(list.Joined(), "A");
    EXPECT_EQ(Names(list), std::vector<std::string>{"A"});
    list.Add("Bc");
    list.Add("A");
    EXPECT_EQ(list.Joined(), "A,Bc,A");
    EXPECT_EQ(Names(list), (std::vector<std::string>{"A", "Bc", "A"}));
    EXPECT_EQ(list, (NodeList{"A", "Bc", "A"}));
    EXPECT_FALSE(list == (NodeList{"A", "Bc"}));
}

}  // namespace
}  // namespace vexil
