#include "scripts/Tokenizer.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace steward {
namespace {

// Every token of text, an empty quoted token included; "~" stands for QUOTED_SPACE.
std::vector<std::string> Split(Tokenizer& tokenizer, const char* text)
{
    std::vector<std::string> tokens;
    for (const char* t = tokenizer.FirstToken(text); t; t = tokenizer.NextToken()) {
        std::string token = t;
        for (char& c : token)
            if (c == QUOTED_SPACE)
                c = '~';
        tokens.push_back(token);
    }
    return tokens;
}

struct SplitCase {
    const char* text;
    std::vector<std::string> tokens;
};

TEST(TokenizerSplit, WordsQuotesAndWhiteSpace)
{
    const SplitCase cases[] = {
        {"a  b", {"a", "b"}},
        {"\"a b\" c", {"a~b", "c"}},
        {"\"a b\"c", {"a~b", "c"}},
        {"say\"hi\" there", {"say\"hi\"", "there"}},
        {"a\"b c\"", {"a\"b", "c\""}},
        {"\"\"", {""}},
        {"\"\" x", {"", "x"}},
        {"   ", {}},
        {"", {}},
        {"\t\r\nx\r\n", {"x"}},
        {"\"open quote to the end", {"open~quote~to~the~end"}},
        {"\"tab\there\"", {"tab\there"}},
        {"\"a\"\"b\"", {"a", "b"}},
    };
    Tokenizer tokenizer;
    for (const SplitCase& c : cases)
        EXPECT_EQ(Split(tokenizer, c.text), c.tokens) << c.text;
}

TEST(TokenizerSplit, ATokenIsTheSharedBufferAndLongOnesAreCut)
{
    Tokenizer tokenizer;
    const char* first = tokenizer.FirstToken("one two");
    const char* second = tokenizer.NextToken();
    EXPECT_EQ(first, second);
    EXPECT_STREQ(first, "two");

    const std::string text = std::string(1000, 'x') + " next";
    EXPECT_EQ(std::string(tokenizer.FirstToken(text.c_str())), std::string(TOKEN_SIZE - 1, 'x'));
    EXPECT_STREQ(tokenizer.NextToken(), "next");
    EXPECT_EQ(tokenizer.NextToken(), nullptr);
}

TEST(TokenizerSplit, NothingBeforeAnySplit)
{
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.NextToken(), nullptr);
    EXPECT_EQ(tokenizer.RestOfLine(), nullptr);
    EXPECT_EQ(tokenizer.FirstToken(nullptr), nullptr);
}

struct RestCase {
    const char* text;
    std::optional<std::string> rest;
};

TEST(TokenizerRestOfLine, TheRestIsCopiedUnchanged)
{
    const RestCase cases[] = {
        {"go   say \"hi\"  ", "say \"hi\"  "},
        {"go \t ", std::nullopt},
        {"go", std::nullopt},
        {"go \"a b\"", "\"a b\""},
    };
    Tokenizer tokenizer;
    for (const RestCase& c : cases) {
        tokenizer.FirstToken(c.text);
        const char* rest = tokenizer.RestOfLine();
        EXPECT_EQ(rest ? std::optional<std::string>(rest) : std::nullopt, c.rest) << c.text;
    }
    const std::string longText = "go " + std::string(1000, 'y');
    tokenizer.FirstToken(longText.c_str());
    EXPECT_EQ(std::string(tokenizer.RestOfLine()), std::string(TOKEN_SIZE - 1, 'y'));
    EXPECT_EQ(tokenizer.NextToken(), nullptr);
}

struct NthCase {
    const char* text;
    int n;
    const char* token;
};

TEST(TokenizerNthToken, CountsFromOne)
{
    const NthCase cases[] = {
        {"a b c", 1, "a"},     {"a b c", 3, "c"},     {"a b c", 4, nullptr},
        {"a b c", 0, nullptr}, {"\"x y\" z", 2, "z"}, {"", 1, nullptr},
    };
    Tokenizer tokenizer;
    for (const NthCase& c : cases) {
        const char* token = tokenizer.NthToken(c.text, c.n);
        if (c.token)
            EXPECT_STREQ(token, c.token) << c.text << " " << c.n;
        else
            EXPECT_EQ(token, nullptr) << c.text << " " << c.n;
    }
}

TEST(TokenizerNthToken, ASplitInProgressGoesOn)
{
    Tokenizer tokenizer;
    tokenizer.FirstToken("one two three");
    EXPECT_STREQ(tokenizer.NthToken("x y z", 2), "y");
    EXPECT_STREQ(tokenizer.NextToken(), "two");
    EXPECT_EQ(tokenizer.NthToken("x y z", 9), nullptr);
    EXPECT_STREQ(tokenizer.RestOfLine(), "three");
}

} // namespace
} // namespace steward
