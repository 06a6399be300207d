// Tests of text/shared_text.h.
// SPDX-License-Identifier: MIT
#include "text/shared_text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

namespace vexil {
namespace {

// Where the characters of a text are.
const char* Place(const SharedText& text) {
    return std::string_view(text).data();
}

TEST(SharedText, IsEmptyFromTheStart) {
    const SharedText text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.Size(), 0U);
    EXPECT_EQ(std::string_view(text), "");
    EXPECT_EQ(sizeof(text), sizeof(void*));
}

TEST(SharedText, HoldsACopyOfAnyLength) {
    for (std::size_t size = 0; size < 70; ++size) {
        std::string source(size, 'a');
        const SharedText text(source);
        source.assign(size, 'b');
        EXPECT_EQ(std::string_view(text), std::string(size, 'a'));
        EXPECT_EQ(text.Size(), size);
        EXPECT_EQ(text.IsEmpty(), size == 0);
    }
}

TEST(SharedText, HoldsAnyByte) {
    const std::string bytes("a\0\xff", 3);
    EXPECT_EQ(std::string_view(SharedText(bytes)), bytes);
}

TEST(SharedText, IsSharedByItsCopies) {
    const SharedText text("name");
    const SharedText copy = text;
    EXPECT_EQ(Place(copy), Place(text));
    SharedText assigned("other");
    assigned = copy;
    EXPECT_EQ(Place(assigned), Place(text));
}

TEST(SharedText, OutlivesTheOneThatItWasCopiedFrom) {
    SharedText copy;
    {
        const SharedText text("name");
        copy = text;
    }
    EXPECT_EQ(std::string_view(copy), "name");
}

TEST(SharedText, MovesWithoutACopy) {
    SharedText text("name");
    const char* const place = Place(text);
    SharedText moved = std::move(text);
    EXPECT_EQ(Place(moved), place);
    SharedText assigned("other");
    assigned = std::move(moved);
    EXPECT_EQ(Place(assigned), place);
}

TEST(SharedText, KeepsItsTextWhenItIsAssignedToItself) {
    SharedText text("name");
    const SharedText& self = text;
    text = self;
    EXPECT_EQ(std::string_view(text), "name");
}

TEST(SharedText, ChangesAloneWhenItIsAssignedOrCleared) {
    SharedText text("name");
    const SharedText copy = text;
    text = "new";
    EXPECT_EQ(std::string_view(text), "new");
    text = copy;
    text.Clear();
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(std::string_view(copy), "name");
}

TEST(SharedText, TakesATextOfItsOwnCharacters) {
    SharedText text("long name");
    text = std::string_view(text).substr(5);
    EXPECT_EQ(std::string_view(text), "name");
}

TEST(SharedText, EqualsByItsCharacters) {
    const SharedText text("name");
    EXPECT_TRUE(text == SharedText("name"));
    EXPECT_TRUE(text == text);
    EXPECT_FALSE(text == SharedText("nam"));
    EXPECT_FALSE(text == SharedText());
    EXPECT_TRUE(SharedText() == SharedText(""));
    EXPECT_TRUE(text == "name");
    EXPECT_FALSE(text == "names");
}

TEST(SharedText, PrintsItsCharacters) {
    std::ostringstream out;
    out << SharedText("name") << SharedText();
    EXPECT_EQ(out.str(), "name");
}

}  // namespace
}  // namespace vexil
