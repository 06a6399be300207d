// Tests of Comment: each owner has what it would have alone.
// SPDX-License-Identifier: MIT
#include "frame/comment.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "frame/model_text.h"
#include "support/random_text.h"

namespace vexil {
namespace {

struct Owner {
    Comment comment;
};

using Owners = std::vector<std::unique_ptr<Owner>>;

TEST(Comment, IsEmptyWhenMade) {
    const Comment comment;
    EXPECT_TRUE(comment.IsEmpty());
    EXPECT_EQ(comment, "");
}

TEST(Comment, TakesATextWithItsQuotesEscaped) {
    Comment comment;
    comment = "say \"a\" or \\\"b\\\"";
    EXPECT_FALSE(comment.IsEmpty());
    EXPECT_EQ(comment, "say \\\"a\\\" or \\\"b\\\"");
    comment = "c";
    EXPECT_EQ(comment, "c");
    comment = "";
    EXPECT_TRUE(comment.IsEmpty());
}

TEST(Comment, IsEmptyWhenCleared) {
    Comment comment;
    comment = "text";
    comment.Clear();
    EXPECT_TRUE(comment.IsEmpty());
    EXPECT_EQ(comment, "");
}

TEST(Comment, TakesMoreWithNothingBetween) {
    Comment comment;
    comment.Append("a\\");
    comment.Append("\"b\"");
    EXPECT_EQ(comment, "a\\\"b\\\"");
}

TEST(Comment, IsPrintedAsItsText) {
    Comment comment;
    comment = "text";
    std::ostringstream out;
    out << comment;
    EXPECT_EQ(out.str(), "text");
}

TEST(Comment, FollowsFromTheNextTextOn) {
    Comment first;
    first = "a";
    Comment second;
    second.Follow(first, "b");
    EXPECT_TRUE(second.IsEmpty());
    first.Append("b");
    EXPECT_EQ(first, "ab");
    EXPECT_EQ(second, "b");
}

TEST(Comment, EscapesAQuoteAtItsStartAlsoWhereTheOtherNeedsNoBackslash) {
    Comment first;
    first = "a\\";
    Comment second;
    second.Follow(first, "\"b\"");
    first.Append("\"b\"");
    EXPECT_EQ(first, "a\\\"b\\\"");
    EXPECT_EQ(second, "\\\"b\\\"");
}

TEST(Comment, ChangesAloneWhenItIsSet) {
    Comment first;
    first = "a";
    Comment second;
    second.Follow(first, "b");
    first.Append("b");
    second = "c";
    EXPECT_EQ(first, "ab");
    EXPECT_EQ(second, "c");
}

TEST(Comment, LeavesTheOthersWhenCleared) {
    Comment first;
    first = "a";
    Comment second;
    second.Follow(first, "b");
    first.Append("b");
    first.Clear();
    EXPECT_EQ(first, "");
    EXPECT_EQ(second, "b");
    first.Append("c");
    EXPECT_EQ(first, "c");
    EXPECT_EQ(second, "b");
}

TEST(AppendComment, GivesEachOwnerWhatItWouldHaveAlone) {
    for (std::uint32_t seed = 1; seed <= 500 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::RandomText random(seed);
        Owners owners;
        std::vector<std::string> expected;
        for (std::size_t steps = 1 + random.Below(20); steps > 0; --steps) {
            for (std::size_t more = random.Below(3) + (owners.empty() ? 1 : 0); more > 0; --more) {
                owners.push_back(std::make_unique<Owner>());
                expected.emplace_back();
            }
            std::string text;
            for (std::size_t length = 1 + random.Below(3); length > 0; --length) {
                text += "\\\"a"[random.Below(3)];
            }
            AppendComment(owners, text);
            for (std::string& comment : expected) {
                comment += text;
                EscapeQuotes(comment);
            }
            for (std::size_t owner = 0; owner < owners.size(); ++owner) {
                EXPECT_EQ(owners[owner]->comment, expected[owner]) << "owner " << owner;
            }
        }
    }
}

}  // namespace
}  // namespace vexil
