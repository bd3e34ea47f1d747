#include "config/IniFile.h"

#include "config/AtomicFile.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace steward {

namespace {

constexpr std::string_view BLANKS = " \t\r\n";

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(BLANKS);
    if (first == std::string_view::npos)
        return {};
    const std::size_t last = text.find_last_not_of(BLANKS);
    return text.substr(first, last - first + 1);
}

char Lower(char c)
{
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameNoCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (Lower(a[i]) != Lower(b[i]))
            return false;
    return true;
}

// The name of a "[name]" line, or nothing for any other line.
std::optional<std::string_view> SectionName(std::string_view line)
{
    const std::string_view text = Trim(line);
    if (text.empty() || text.front() != '[')
        return std::nullopt;
    const std::size_t close = text.find(']');
    const std::string_view inner =
        text.substr(1, close == std::string_view::npos ? text.npos : close - 1);
    return Trim(inner);
}

// The key of a "key=value" line; comment lines and lines without '=' have none.
std::optional<std::string_view> KeyName(std::string_view line)
{
    const std::string_view text = Trim(line);
    const std::size_t equals = text.find('=');
    if (text.empty() || text.front() == ';' || equals == std::string_view::npos)
        return std::nullopt;
    return Trim(text.substr(0, equals));
}

std::string_view ValueOf(std::string_view line)
{
    std::string_view value = Trim(line.substr(line.find('=') + 1));
    const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                        value.back() == value.front();
    if (quoted)
        value = value.substr(1, value.size() - 2);
    return value;
}

std::string_view FirstLine(std::string_view value)
{
    return value.substr(0, value.find_first_of("\r\n"));
}

} // namespace

IniFile IniFile::Load(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return {};
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    in.seekg(0, std::ios::beg);
    if (size <= 0)
        return {};
    std::string text(std::min(static_cast<std::size_t>(size), INI_FILE_MAX), '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return Parse(text);
}

IniFile IniFile::Parse(std::string_view text)
{
    IniFile file;
    const std::size_t firstBreak = text.find('\n');
    if (firstBreak != std::string_view::npos && firstBreak > 0 && text[firstBreak - 1] == '\r')
        file.lineEnd_ = "\r\n";
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        file.lines_.emplace_back(line.substr(0, INI_LINE_MAX));
    }
    return file;
}

std::string IniFile::Text() const
{
    std::string text;
    for (const std::string& line : lines_) {
        text += line;
        text += lineEnd_;
    }
    return text;
}

bool IniFile::Save(const std::string& path) const
{
    AtomicFile file(path);
    const std::string text = Text();
    if (file.Get())
        std::fwrite(text.data(), 1, text.size(), file.Get());
    return file.Commit();
}

std::optional<IniFile::Section> IniFile::FindSection(std::string_view section) const
{
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto name = SectionName(lines_[i]);
        if (!name || !SameNoCase(*name, Trim(section)))
            continue;
        std::size_t end = i + 1;
        while (end < lines_.size() && !SectionName(lines_[end]))
            ++end;
        return Section{i, end};
    }
    return std::nullopt;
}

std::optional<std::size_t> IniFile::FindKey(const Section& section, std::string_view key) const
{
    for (std::size_t i = section.header + 1; i < section.end; ++i) {
        const auto name = KeyName(lines_[i]);
        if (name && SameNoCase(*name, Trim(key)))
            return i;
    }
    return std::nullopt;
}

std::optional<std::string> IniFile::Get(std::string_view section, std::string_view key) const
{
    const auto found = FindSection(section);
    if (!found)
        return std::nullopt;
    const auto line = FindKey(*found, key);
    if (!line)
        return std::nullopt;
    return std::string(ValueOf(lines_[*line]));
}

void IniFile::Set(std::string_view section, std::string_view key, std::string_view value)
{
    std::string line(Trim(key));
    line += '=';
    line += FirstLine(value);
    line.resize(std::min(line.size(), INI_LINE_MAX));
    const auto found = FindSection(section);
    if (!found) {
        if (!lines_.empty() && !Trim(lines_.back()).empty())
            lines_.emplace_back();
        std::string header(1, '[');
        header += Trim(section);
        header += ']';
        lines_.push_back(std::move(header));
        lines_.push_back(std::move(line));
        return;
    }
    if (const auto existing = FindKey(*found, key)) {
        lines_[*existing] = std::move(line);
        return;
    }
    std::size_t insertAt = found->end;
    while (insertAt > found->header + 1 && Trim(lines_[insertAt - 1]).empty())
        --insertAt;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(insertAt), std::move(line));
}

bool IniFile::Remove(std::string_view section, std::string_view key)
{
    const auto found = FindSection(section);
    if (!found)
        return false;
    const auto line = FindKey(*found, key);
    if (!line)
        return false;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*line));
    return true;
}

} // namespace steward
