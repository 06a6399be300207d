// Tests that the names and ids generated to collide under the library's hash do collide.
// SPDX-License-Identifier: MIT
#include "keyed_names.h"

#include <gtest/gtest.h>

#include <set>

#include "shape_text.h"
#include "support/files.h"
#include "text/keyed_hash.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

constexpr std::uint64_t Number = 291;

// The hashes of names together with Number.
std::set<std::size_t> HashesOf(const std::vector<std::string>& names) {
    std::set<std::size_t> hashes;
    for (const std::string& name : names) {
        hashes.insert(KeyedHash(Number, name));
    }
    return hashes;
}

TEST(NamesOfOneKeyedHash, HaveOneHash) {
    const std::vector<std::string> names = NamesOfOneKeyedHash(1000, Number, KnownHashKey());
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 1000U);
    EXPECT_EQ(names.front().size(), 32U);
    EXPECT_EQ(HashesOf(names).size(), 1U);
}

TEST(NamesOfOneKeyedHash, HaveManyHashesUnderAnotherKey) {
    HashKey other = KnownHashKey();
    other.start ^= 1;
    EXPECT_EQ(HashesOf(NamesOfOneKeyedHash(1000, Number, other)).size(), 1000U);
    other = KnownHashKey();
    other.factor ^= 2;
    EXPECT_EQ(HashesOf(NamesOfOneKeyedHash(1000, Number, other)).size(), 1000U);
}

TEST(IdsOfOneSlot, HaveHashesWithTheSameLowBits) {
    const std::vector<std::uint32_t> ids = IdsOfOneSlot(100, 12, KnownHashKey());
    EXPECT_EQ(std::set<std::uint32_t>(ids.begin(), ids.end()).size(), 100U);
    for (const std::uint32_t id : ids) {
        EXPECT_EQ(KeyedHash(std::uint64_t{id} << 32U, {}) % 4096, 0U) << id;
    }
}

// No input can show it without the key: the tables compare the keys of entries whose hashes are
// equal.
TEST(NamesOfOneKeyedHash, AreDistinguished) {
    const std::vector<std::string> names = NamesOfOneKeyedHash(100, Number, KnownHashKey());
    std::string text = MessageLine(Number);
    for (const std::string& name : names) {
        text += SignalLine(name);
    }
    for (const std::string& name : names) {
        text += Numbered("CM_ SG_ ", Number) + " " + name + " " + Quoted(name) + ";\n";
    }
    const test::TempFolder folder;
    const std::string path = folder.File("input.dbc");
    test::WriteBytes(path, text);
    std::uint32_t code = StateReading;
    ASSERT_EQ(VexilReadDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), &code),
              1);
    CanSignalRecord record;
    for (std::uint32_t at = 0; at < names.size(); ++at) {
        ASSERT_EQ(VexilGetCanSignalData(0, at, &record), 1);
        EXPECT_EQ(record.comment, names[at]);
    }
    VexilClearData();
}

}  // namespace
}  // namespace vexil::growth
