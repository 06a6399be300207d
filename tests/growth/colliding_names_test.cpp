// Whether the names that are meant to share a bucket do.
// SPDX-License-Identifier: MIT
#include "colliding_names.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

namespace vexil::growth {
namespace {

void ExpectOneHash(const std::vector<std::string>& names, const std::string& prefix,
                   const std::string& suffix) {
    std::set<std::size_t> hashes;
    for (const std::string& name : names) {
        hashes.insert(std::hash<std::string>()(prefix + name + suffix));
    }
    EXPECT_EQ(hashes.size(), 1U);
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

TEST(CollidingNames, HaveOneHash) {
    const std::vector<std::string> names = CollidingNames(1000, "", 0);
    EXPECT_EQ(names.size(), 1000U);
    EXPECT_EQ(names.front().size(), 32U);
    ExpectOneHash(names, "", "");
}

TEST(CollidingNames, HaveOneHashInsideOfAKey) {
    ExpectOneHash(CollidingNames(1000, "Name$$Sig$$1$$", 5), "Name$$Sig$$1$$", "$$Int");
}

}  // namespace
}  // namespace vexil::growth
