#include "scripts/ScriptFile.h"

namespace steward {

bool ScriptFile::Open(const char* path)
{
    file_.reset(std::fopen(path, "rb"));
    sawBinary_ = false;
    return file_ != nullptr;
}

int ScriptFile::NextByte()
{
    int c = std::getc(file_.get());
    if (c != '\r')
        return c;
    const int next = std::getc(file_.get());
    if (next == '\n')
        return '\n';
    if (next != EOF)
        std::ungetc(next, file_.get());
    return c;
}

bool ScriptFile::ReadLine(char* line, std::size_t maxChars)
{
    std::size_t length = 0;
    int c = EOF;
    while (length < maxChars && (c = NextByte()) != EOF) {
        if (c == 0)
            sawBinary_ = true;
        const bool text = c == '\t' || c == '\r' || c == '\n' || (c >= 32 && c < 127);
        line[length++] = text ? static_cast<char>(c) : '?';
        if (c == '\n')
            break;
    }
    line[length] = '\0';
    return length > 0;
}

void ScriptFile::Rewind()
{
    std::rewind(file_.get());
}

void ScriptFile::SkipToEnd()
{
    std::fseek(file_.get(), 0, SEEK_END);
}

} // namespace steward
