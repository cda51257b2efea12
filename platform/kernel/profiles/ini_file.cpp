#include "kernel/profiles/ini_file.h"

#include <strings.h>

#include <algorithm>

namespace platform::kernel {
namespace {

constexpr std::string_view kBlanks(" \t\r\n\v\f\0", 7);

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Section and key names are plain text in practice: their case is that of ASCII.
bool SameName(std::string_view first, std::string_view second) {
    return first.size() == second.size() && strncasecmp(first.data(), second.data(), first.size()) == 0;
}

std::string_view WithoutQuotes(std::string_view value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back()) {
        return value.substr(1, value.size() - 2);
    }
    return value;
}

}  // namespace

IniFile::Line IniFile::Parse(std::string_view raw) {
    Line line;
    line.raw = raw;
    const std::string_view text = Trim(raw);
    if (text.empty() || text[0] == ';') {
        return line;
    }
    if (text[0] == '[') {
        const std::size_t end = text.find(']');
        if (end != std::string_view::npos) {
            line.isSection = true;
            line.name = Trim(text.substr(1, end - 1));
        }
        return line;
    }
    const std::size_t equals = text.find('=');
    if (equals != std::string_view::npos && equals > 0) {
        line.isKey = true;
        line.name = Trim(text.substr(0, equals));
        line.value = WithoutQuotes(Trim(text.substr(equals + 1)));
    }
    return line;
}

IniFile::IniFile(std::string_view text) {
    const std::size_t firstEnd = text.find('\n');
    if (firstEnd != std::string_view::npos) {
        lineEnd_ = firstEnd > 0 && text[firstEnd - 1] == '\r' ? "\r\n" : "\n";
    }
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t size = end == std::string_view::npos ? text.size() : end + 1;
        lines_.push_back(Parse(text.substr(0, size)));
        text.remove_prefix(size);
    }
}

std::size_t IniFile::SectionStart(std::string_view section) const {
    const auto found = std::find_if(lines_.begin(), lines_.end(),
                                    [&](const Line& line) { return line.isSection && SameName(line.name, section); });
    return static_cast<std::size_t>(found - lines_.begin());
}

std::size_t IniFile::SectionEnd(std::size_t start) const {
    std::size_t end = start + 1;
    while (end < lines_.size() && !lines_[end].isSection) {
        ++end;
    }
    return std::min(end, lines_.size());
}

std::size_t IniFile::KeyLine(std::string_view section, std::string_view key) const {
    const std::size_t start = SectionStart(section);
    if (start < lines_.size()) {
        const std::size_t end = SectionEnd(start);
        for (std::size_t i = start + 1; i < end; ++i) {
            if (lines_[i].isKey && SameName(lines_[i].name, key)) {
                return i;
            }
        }
    }
    return lines_.size();
}

const std::string* IniFile::Find(std::string_view section, std::string_view key) const {
    const std::size_t line = KeyLine(Trim(section), Trim(key));
    return line < lines_.size() ? &lines_[line].value : nullptr;
}

void IniFile::Set(std::string_view section, std::string_view key, std::string_view value) {
    section = Trim(section);
    key = Trim(key);
    const std::string raw = std::string(key) + "=" + std::string(value) + lineEnd_;
    const std::size_t line = KeyLine(section, key);
    if (line < lines_.size()) {
        lines_[line] = Parse(raw);
        return;
    }
    if (!lines_.empty() && !lines_.back().raw.ends_with('\n')) {
        lines_.back().raw += lineEnd_;
    }
    std::size_t start = SectionStart(section);
    if (start == lines_.size()) {
        lines_.push_back(Parse("[" + std::string(section) + "]" + lineEnd_));
    }
    // Behind the last line of the section that says something.
    std::size_t place = SectionEnd(start);
    while (place > start + 1 && Trim(lines_[place - 1].raw).empty()) {
        --place;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), Parse(raw));
}

bool IniFile::RemoveKey(std::string_view section, std::string_view key) {
    const std::size_t line = KeyLine(Trim(section), Trim(key));
    if (line == lines_.size()) {
        return false;
    }
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(line));
    return true;
}

bool IniFile::RemoveSection(std::string_view section) {
    const std::size_t start = SectionStart(Trim(section));
    if (start == lines_.size()) {
        return false;
    }
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(start),
                 lines_.begin() + static_cast<std::ptrdiff_t>(SectionEnd(start)));
    return true;
}

std::string IniFile::Text() const {
    std::string text;
    for (const Line& line : lines_) {
        text += line.raw;
    }
    return text;
}

}  // namespace platform::kernel
