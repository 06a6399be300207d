// Tests of Notes: the comment that the texts of several statements make.
// SPDX-License-Identifier: MIT
#include "frame/notes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace vexil {
namespace {

using Texts = std::vector<std::string_view>;

class NotesTest : public testing::Test {
  protected:
    // Notes with the comments in their order.
    Notes NotesOf(const Texts& comments) {
        Notes notes;
        for (auto text = comments.rbegin(); text != comments.rend(); ++text) {
            notes.comments = arena.New<Note>(*text, notes.comments);
        }
        return notes;
    }

    std::string CommentOf(const Texts& comments, std::size_t enough = npos) {
        LineBuffer scratch;
        scratch.Append("of an earlier call");
        return std::string(NotesOf(comments).Comment(scratch, enough));
    }

    Arena arena;
};

TEST_F(NotesTest, HaveNoCommentWhenNew) {
    const Notes notes;
    EXPECT_FALSE(notes.HasComment());
    EXPECT_EQ(CommentOf({}), "");
    LineBuffer line;
    line.Append("line");
    notes.AppendComment(line);
    EXPECT_EQ(line.Text(), "line");
}

TEST_F(NotesTest, KeepACopyOfTheCommentThatIsSet) {
    Notes notes;
    std::string text = "text";
    notes.SetComment(arena, text);
    text = "gone";
    LineBuffer scratch;
    EXPECT_TRUE(notes.HasComment());
    EXPECT_EQ(notes.Comment(scratch, 4), "text");
}

TEST_F(NotesTest, HaveNoCommentAfterSettingAnEmptyText) {
    Notes notes;
    notes.SetComment(arena, "");
    EXPECT_FALSE(notes.HasComment());
}

TEST_F(NotesTest, PutABackslashBeforeEachQuoteThatHasNone) {
    struct Row {
        std::string_view text;
        std::string_view expected;
    };
    for (const Row& row : {Row{"no quote \\ here", "no quote \\ here"},
                           {"say \"hello\"", "say \\\"hello\\\""},
                           {"say \\\"hello\\\"", "say \\\"hello\\\""},
                           {"\"", "\\\""},
                           {"\"a", "\\\"a"},
                           {"\"\"\"", "\\\"\\\"\\\""},
                           {"\\\"\"", "\\\"\\\""},
                           // One character is looked at, so two backslashes count as one.
                           {"\\\\\"", "\\\\\""},
                           {"\\ \"", "\\ \\\""},
                           {"a\"\\", "a\\\"\\"}}) {
        EXPECT_EQ(CommentOf({row.text}), row.expected) << row.text;
        EXPECT_EQ(CommentOf({row.expected}), row.expected) << "twice, " << row.text;
    }
}

TEST_F(NotesTest, ConcatenateTheTexts) {
    EXPECT_EQ(CommentOf({"a", "", "b \"c\"", "d"}), "ab \\\"c\\\"d");
}

TEST_F(NotesTest, LetABackslashEscapeAQuoteOfTheNextText) {
    EXPECT_EQ(CommentOf({"a\\", "\"b\""}), "a\\\"b\\\"");
    EXPECT_EQ(CommentOf({"a\\", "", "\"b"}), "a\\\"b");
    EXPECT_EQ(CommentOf({"\"b\""}), "\\\"b\\\"");
}

TEST_F(NotesTest, AppendTheCommentToALine) {
    LineBuffer line;
    line.Append("CM_ BO_ 5 \"");
    NotesOf({"a\"", "b"}).AppendComment(line);
    EXPECT_EQ(line.Text(), "CM_ BO_ 5 \"a\\\"b");
}

TEST_F(NotesTest, StopWhenTheLineIsLongEnough) {
    const Texts texts = {"aa", "\"b", "cc"};
    EXPECT_EQ(CommentOf(texts, 0), "");
    EXPECT_EQ(CommentOf(texts, 1), "a");
    EXPECT_EQ(CommentOf(texts, 2), "aa");
    EXPECT_EQ(CommentOf(texts, 3), "aa\\\"");
    EXPECT_EQ(CommentOf(texts, 5), "aa\\\"b");
    EXPECT_EQ(CommentOf(texts, 6), "aa\\\"bc");
    LineBuffer line;
    line.Append("line");
    NotesOf(texts).AppendComment(line, 6);
    EXPECT_EQ(line.Text(), "lineaa");
}

TEST_F(NotesTest, AreNotCopiedWhereOneTextIsTheComment) {
    const std::string text(100, 'c');
    LineBuffer scratch;
    EXPECT_EQ(NotesOf({text}).Comment(scratch, 1).data(), text.data());
    EXPECT_EQ(scratch.Text(), "");
}

}  // namespace
}  // namespace vexil
