#include "scripts/Rewrites.h"
#include "scripts/ScriptParameters.h"
#include "scripts/ScriptRunner.h"
#include "scripts/Tokenizer.h"

#include <gtest/gtest.h>

#include <cstring>
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

struct SubstituteCase {
    std::string line;
    const char* parameters;
    const char* saved;
    std::string expanded;
};

std::string Substitute(const SubstituteCase& c)
{
    char line[SCRIPT_LINE_SIZE];
    std::strcpy(line, c.line.c_str());
    Tokenizer words;
    SubstituteParameters(line, sizeof line, {c.parameters, c.saved}, words);
    return line;
}

TEST(SubstituteParametersTest, ExpandsEachPercentWordOnce)
{
    const std::string long300(300, 'p');
    const std::string fill(500, 'f');
    const SubstituteCase cases[] = {
        {"put %1 %2", "a", "", "put a "},
        {"put %1|%2", "\"big rat\" 3", "", "put big rat|3"},
        {"echo %0", "\"big rat\" 3", "", "echo \"big rat\" 3"},
        {"%1 x", "put y", "", "put x"},
        {"a%3b%9c", "x y", "", "abc"},
        {"%s/%S", "", "big\x7frat", "big rat/big rat"},
        {"%%1 %x 100% %", "v", "", "%v %x 100% %"},
        {"%1%2", "%2 z", "", "%2z"},
        {"put %1", long300.c_str(), "", "put " + long300.substr(0, 255)},
        {fill + "%1 end", "0123456789abcdef", "", fill + "0123456789a"},
        {fill + "xxxxxxxxx%1", "0123456789", "", fill + "xxxxxxxxx01"},
    };
    for (const SubstituteCase& c : cases)
        EXPECT_EQ(Substitute(c), c.expanded) << c.line.substr(0, 40) << " with " << c.parameters;
}

TEST(RewritesTest, ContactTakesNameColonMessageAndDragTakesMoves)
{
    const std::string x25(25, 'x'), x26(26, 'x');
    // target "" is the contact rewrite, else the drag rewrite with that target
    const struct {
        const char* target;
        std::string input, output;
    } rows[] = {{"", "bob:hi there", "contact bob hi there"},
                {"", ":hi", "contact  hi"},
                {"", "12:30", "contact 12 30"},
                {"", "bob:", "contact bob "},
                {"", "bob :hi", "bob :hi"},
                {"", ".cmd a:b", ".cmd a:b"},
                {"", "look", "look"},
                {"", "", ""},
                {"", x25 + ":m", "contact " + x25 + " m"},
                {"", x26 + ":m", x26 + ":m"},
                {"bob", "n", "drag bob n"},
                {"bob", "N now", "drag bob N now"},
                {"bob", "SouthWest", "drag bob SouthWest"},
                {"bob", "nod", "nod"},
                {"bob", "drag bob n", "drag bob n"},
                {"bob", "", ""}};
    for (const auto& row : rows) {
        char buffer[512];
        std::strcpy(buffer, row.input.c_str());
        if (*row.target)
            DragRewrite(buffer, sizeof buffer, row.target);
        else
            ContactRewrite(buffer, sizeof buffer);
        EXPECT_EQ(buffer, row.output) << row.target << " " << row.input;
    }
    char buffer[16] = "bob:0123456789";
    ContactRewrite(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "contact bob 012") << "cut at the buffer's end";
    std::strcpy(buffer, "n");
    DragRewrite(buffer, sizeof buffer, "");
    EXPECT_STREQ(buffer, "n") << "no target, no rewrite";
}

} // namespace
} // namespace steward
