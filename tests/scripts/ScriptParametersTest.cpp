#include "scripts/ScriptParameters.h"
#include "scripts/ScriptRunner.h"
#include "scripts/Tokenizer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace steward {
namespace {

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

} // namespace
} // namespace steward
