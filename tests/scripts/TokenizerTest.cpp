#include "scripts/Tokenizer.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

// Every token of text, each followed by "|", an empty quoted token included; "~" stands for
// QUOTED_SPACE.
std::string Split(Tokenizer& tokenizer, const char* text)
{
    std::string tokens;
    for (const char* t = tokenizer.FirstToken(text); t; t = tokenizer.NextToken()) {
        for (; *t; ++t)
            tokens += *t == QUOTED_SPACE ? '~' : *t;
        tokens += '|';
    }
    return tokens;
}

TEST(TokenizerTest, WordsQuotesAndWhiteSpace)
{
    const struct {
        const char *text, *tokens;
    } cases[] = {{"a  b", "a|b|"},
                 {"\"a b\" c", "a~b|c|"},
                 {"\"a b\"c", "a~b|c|"},
                 {"say\"hi\" there", "say\"hi\"|there|"},
                 {"a\"b c\"", "a\"b|c\"|"},
                 {"\"\"", "|"},
                 {"\"\" x", "|x|"},
                 {"   ", ""},
                 {"", ""},
                 {"\t\r\nx\r\n", "x|"},
                 {"\"open quote to the end", "open~quote~to~the~end|"},
                 {"\"tab\there\"", "tab\there|"},
                 {"\"a\"\"b\"", "a|b|"}};
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.NextToken(), nullptr) << "nothing before any split";
    EXPECT_EQ(tokenizer.RestOfLine(), nullptr);
    EXPECT_EQ(tokenizer.FirstToken(nullptr), nullptr);
    for (const auto& c : cases)
        EXPECT_EQ(Split(tokenizer, c.text), c.tokens) << c.text;
    const char* first = tokenizer.FirstToken("one two");
    EXPECT_EQ(first, tokenizer.NextToken()) << "a token is the shared buffer";
    EXPECT_STREQ(first, "two");
    const std::string text = std::string(1000, 'x') + " next";
    EXPECT_EQ(Split(tokenizer, text.c_str()), std::string(TOKEN_SIZE - 1, 'x') + "|next|");
}

TEST(TokenizerTest, RestOfLineAndNthToken)
{
    const struct {
        const char *text, *rest;
    } rests[] = {{"go   say \"hi\"  ", "say \"hi\"  "},
                 {"go \t ", nullptr},
                 {"go", nullptr},
                 {"go \"a b\"", "\"a b\""}};
    Tokenizer tokenizer;
    for (const auto& c : rests) {
        tokenizer.FirstToken(c.text);
        const char* rest = tokenizer.RestOfLine();
        EXPECT_EQ(rest ? rest : "(none)", std::string(c.rest ? c.rest : "(none)")) << c.text;
    }
    const std::string longText = "go " + std::string(1000, 'y');
    tokenizer.FirstToken(longText.c_str());
    EXPECT_EQ(std::string(tokenizer.RestOfLine()), std::string(TOKEN_SIZE - 1, 'y'));
    EXPECT_EQ(tokenizer.NextToken(), nullptr);
    const struct {
        const char* text;
        int n;
        const char* token;
    } nths[] = {{"a b c", 1, "a"},     {"a b c", 3, "c"},     {"a b c", 4, nullptr},
                {"a b c", 0, nullptr}, {"\"x y\" z", 2, "z"}, {"", 1, nullptr}};
    for (const auto& c : nths) {
        const char* token = tokenizer.NthToken(c.text, c.n);
        EXPECT_EQ(token ? token : "(none)", std::string(c.token ? c.token : "(none)"))
            << c.text << " " << c.n;
    }
    tokenizer.FirstToken("one two three");
    EXPECT_STREQ(tokenizer.NthToken("x y z", 2), "y") << "a split in progress goes on";
    EXPECT_STREQ(tokenizer.NextToken(), "two");
    EXPECT_EQ(tokenizer.NthToken("x y z", 9), nullptr);
    EXPECT_STREQ(tokenizer.RestOfLine(), "three");
}

} // namespace
} // namespace steward
