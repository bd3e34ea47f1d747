#include "scripts/Tokenizer.h"

namespace steward {

namespace {

bool IsWhite(char c)
{
    return c == '\t' || c == ' ' || c == '\r' || c == '\n';
}

const char* SkipWhite(const char* at)
{
    while (*at && IsWhite(*at))
        ++at;
    return at;
}

} // namespace

const char* Tokenizer::FirstToken(const char* text)
{
    token_[0] = '\0';
    position_ = text;
    return NextToken();
}

const char* Tokenizer::NextToken()
{
    if (!position_)
        return nullptr;
    const char* at = SkipWhite(position_);
    position_ = at;
    if (!*at)
        return nullptr;
    const bool quoted = *at == '"';
    if (quoted)
        ++at;
    std::size_t length = 0;
    for (; *at && (quoted ? *at != '"' : !IsWhite(*at)); ++at) {
        if (length < TOKEN_SIZE - 1)
            token_[length++] = (quoted && *at == ' ') ? QUOTED_SPACE : *at;
    }
    token_[length] = '\0';
    position_ = *at ? at + 1 : at;
    return token_;
}

const char* Tokenizer::RestOfLine()
{
    if (!position_)
        return nullptr;
    const char* at = SkipWhite(position_);
    if (!*at)
        return nullptr;
    std::size_t length = 0;
    while (at[length] && length < TOKEN_SIZE - 1) {
        token_[length] = at[length];
        ++length;
    }
    token_[length] = '\0';
    while (*at)
        ++at;
    position_ = at;
    return token_;
}

const char* Tokenizer::NthToken(const char* text, int n)
{
    if (n < 1)
        return nullptr;
    const char* saved = position_;
    const char* token = FirstToken(text);
    for (int i = 1; token && i < n; ++i)
        token = NextToken();
    position_ = saved;
    return token;
}

} // namespace steward
