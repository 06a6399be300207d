// Tests of text/keywords.h.
#include "text/keywords.h"

#include <gtest/gtest.h>

namespace vexil {
namespace {

TEST(MatchKeyword, AcceptsAKeywordWithWhiteSpaceBehindIt) {
    Position end = 99;
    EXPECT_TRUE(MatchKeyword("BO_\n", "BO_", end, 0));
    EXPECT_EQ(end, 3U);
}

}  // namespace
}  // namespace vexil
