// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <gtest/gtest.h>

namespace ornavo {
namespace {

TEST(FileBytes, EveryByteComesBackAsItself) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    const std::string text = FromFileBytes(all);
    EXPECT_EQ(ToFileBytes(text), all);
    EXPECT_TRUE(FitsFile(text));
    EXPECT_EQ(FromFileBytes("\x80\x8A\x9F\xA0\xC4\xFF"), "\u20AC\u0160\u0178\u00A0\u00C4\u00FF");
    EXPECT_EQ(FromFileBytes("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(FileBytes, WhatHasNoByteBecomesAQuestionMark) {
    const struct {
        const char* text;
        const char* bytes;
    } cases[] = {{"a\u4E16b", "a?b"}, {"\U0001F3B5", "?"},     {"e\u0301", "e?"},
                 {"\xC3", "?"},       {"x\x80y", "x?y"},       {"\xC0\xAF", "??"},
                 {"\xE2\x82", "??"},  {"\xED\xA0\x80", "???"}, {"\xF5\x80\x80\x80", "????"},
                 {"\u0100", "?"}};
    for (const auto& c : cases) {
        EXPECT_EQ(ToFileBytes(c.text), c.bytes);
        EXPECT_FALSE(FitsFile(c.text)) << c.bytes;
    }
}

TEST(Case, IsDisregardedForEveryLetterOfTheFile) {
    EXPECT_EQ(LowerText("Cover ART 12"), "cover art 12");
    EXPECT_EQ(LowerText("\u00C4\u00D6\u00DE\u0152\u0160\u017D\u0178"),
              "\u00E4\u00F6\u00FE\u0153\u0161\u017E\u00FF");
    EXPECT_EQ(LowerText("A\u00D7\u00DF\u20AC\u4E16\xC3Z"), "a\u00D7\u00DF\u20AC\u4E16\xC3z");
    EXPECT_TRUE(EqualText("T\u00DCR.Png", "t\u00FCr.pNG"));
    EXPECT_TRUE(EqualText("", ""));
    EXPECT_FALSE(EqualText("[", "{"));
    EXPECT_FALSE(EqualText("ab", "abc"));
    EXPECT_FALSE(EqualText("\u00D7", "\u00F7"));
    EXPECT_EQ(HashText("T\u00DCR.Png"), HashText("t\u00FCr.pNG"));
}

TEST(Text, SmallRoutines) {
    EXPECT_EQ(TrimBlanks("  a b \t"), "a b \t");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_TRUE(ContainsSeparator("a\\b") && ContainsSeparator("a/b"));
    EXPECT_FALSE(ContainsSeparator("a:b"));
    EXPECT_EQ(ReplaceAll("aXaX", "X", "aX"), "aaXaaX");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_TRUE(IsAscii("twelve bytes"));
    for (std::size_t at = 0; at < 20; ++at) {
        std::string text(20, 'a');
        text[at] = '\x80';
        EXPECT_FALSE(IsAscii(text)) << at;
    }
}

}  // namespace
}  // namespace ornavo
