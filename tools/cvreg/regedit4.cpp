#include "regedit4.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace cvreg {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::size_t kBytesInLine = 24;

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool TakePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

std::optional<DWORD> HexNumber(std::string_view digits, std::size_t most) {
    if (digits.empty() || digits.size() > most) {
        return std::nullopt;
    }
    DWORD number = 0;
    for (const char digit : digits) {
        const char small = static_cast<char>(digit | 0x20);
        if (digit >= '0' && digit <= '9') {
            number = number << 4 | static_cast<DWORD>(digit - '0');
        } else if (small >= 'a' && small <= 'f') {
            number = number << 4 | static_cast<DWORD>(small - 'a' + 10);
        } else {
            return std::nullopt;
        }
    }
    return number;
}

/// Takes a text in quotes off the front.
std::optional<std::string> TakeQuoted(std::string_view& text) {
    if (!TakePrefix(text, "\"")) {
        return std::nullopt;
    }
    std::string plain;
    while (!text.empty()) {
        char character = text.front();
        text.remove_prefix(1);
        if (character == '"') {
            return plain;
        }
        if (character == '\\') {
            if (text.empty()) {
                return std::nullopt;
            }
            character = text.front();
            text.remove_prefix(1);
        }
        plain += character;
    }
    return std::nullopt;
}

std::optional<std::string> Bytes(std::string_view list) {
    std::string bytes;
    for (list = Trim(list); !list.empty();) {
        const std::size_t end = std::min(list.find(','), list.size());
        const std::optional<DWORD> byte = HexNumber(Trim(list.substr(0, end)), 2);
        if (!byte) {
            return std::nullopt;
        }
        bytes += static_cast<char>(*byte);
        list = Trim(list.substr(std::min(end + 1, list.size())));
    }
    return bytes;
}

/// Lines of a file, those that end in a backslash joined with the next.
class Lines {
  public:
    explicit Lines(std::string_view text) : text_(text) {}

    bool Next(std::string* line) {
        if (text_.empty()) {
            return false;
        }
        line->clear();
        for (;;) {
            ++number_;
            const std::size_t end = std::min(text_.find('\n'), text_.size());
            const std::string_view piece = Trim(text_.substr(0, end));
            text_.remove_prefix(std::min(end + 1, text_.size()));
            // Only lists of bytes go on in the next line; a backslash elsewhere is a part of a name.
            const bool goesOn = piece.ends_with('\\') && (line->empty() ? piece.find("=hex") != piece.npos : true);
            line->append(piece.substr(0, piece.size() - (goesOn ? 1 : 0)));
            if (!goesOn || text_.empty()) {
                return true;
            }
        }
    }
    int Number() const {
        return number_;
    }

  private:
    std::string_view text_;
    int number_ = 0;
};

const char* ParseData(std::string_view text, Entry* entry) {
    entry->kind = Entry::Value;
    if (text == "-") {
        entry->kind = Entry::DeletedValue;
        return nullptr;
    }
    if (text.starts_with('"')) {
        std::optional<std::string> plain = TakeQuoted(text);
        if (!plain || !text.empty()) {
            return "the text in quotes has no end, or something follows it";
        }
        entry->type = REG_SZ;
        entry->data = *plain + '\0';
        return nullptr;
    }
    if (TakePrefix(text, "dword:")) {
        const std::optional<DWORD> number = HexNumber(Trim(text), 8);
        if (!number) {
            return "a dword needs 1 to 8 hexadecimal digits";
        }
        entry->type = REG_DWORD;
        for (int i = 0; i < 4; ++i) {
            entry->data += static_cast<char>(*number >> (8 * i));
        }
        return nullptr;
    }
    if (!TakePrefix(text, "hex")) {
        return "neither text, dword, hex nor \"-\"";
    }
    entry->type = REG_BINARY;
    if (TakePrefix(text, "(")) {
        const std::size_t end = std::min(text.find(')'), text.size());
        const std::optional<DWORD> type = HexNumber(text.substr(0, end), 8);
        if (!type || end == text.size()) {
            return "hex(type) needs a hexadecimal number";
        }
        entry->type = *type;
        text.remove_prefix(end + 1);
    }
    std::optional<std::string> bytes;
    if (!TakePrefix(text, ":") || !(bytes = Bytes(text))) {
        return "hex needs bytes of 1 or 2 hexadecimal digits, separated by commas";
    }
    entry->data = std::move(*bytes);
    return nullptr;
}

const char* ParseKey(std::string_view line, Entry* entry) {
    if (!line.ends_with(']')) {
        return "the key has no \"]\" at its end";
    }
    line = line.substr(1, line.size() - 2);
    entry->kind = TakePrefix(line, "-") ? Entry::DeletedKey : Entry::Key;
    entry->key = line;
    return line.empty() ? "the key has no name" : nullptr;
}

const char* ParseValue(std::string_view line, Entry* entry) {
    if (!TakePrefix(line, "@")) {
        const std::optional<std::string> name = TakeQuoted(line);
        if (!name) {
            return "neither a key nor a value";
        }
        entry->name = *name;
    }
    line = Trim(line);
    return TakePrefix(line, "=") ? ParseData(Trim(line), entry) : "the name is not followed by \"=\"";
}

}  // namespace

bool Parse(std::string_view text, std::vector<Entry>* entries, std::string* error) {
    Lines lines(text);
    std::string line;
    std::string key;
    const char* wrong = nullptr;
    if (!lines.Next(&line) || line != "REGEDIT4") {
        wrong = "the first line is not REGEDIT4";
    }
    while (!wrong && lines.Next(&line)) {
        if (line.empty() || line.front() == ';') {
            continue;
        }
        Entry entry;
        if (line.front() == '[') {
            wrong = ParseKey(line, &entry);
            key = entry.kind == Entry::Key ? entry.key : std::string();
        } else if (key.empty()) {
            wrong = "a value without a key";
        } else {
            entry.key = key;
            wrong = ParseValue(line, &entry);
        }
        entries->push_back(std::move(entry));
    }
    if (wrong) {
        entries->clear();
        *error = "line " + std::to_string(lines.Number()) + ": " + wrong;
    }
    return !wrong;
}

namespace {

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            quoted += '\\';
        }
        quoted += character;
    }
    return quoted + '"';
}

bool IsQuotable(std::string_view data) {
    return data.ends_with('\0') && data.find('\0') == data.size() - 1 && data.find_first_of("\r\n") == data.npos;
}

std::string Hex(const char* format, DWORD number) {
    char text[16];
    std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
    return text;
}

}  // namespace

std::string FormatKey(std::string_view path) {
    return "\r\n[" + std::string(path) + "]\r\n";
}

std::string FormatValue(std::string_view name, DWORD type, std::string_view data) {
    std::string line = (name.empty() ? std::string("@") : Quoted(name)) + "=";
    if (type == REG_SZ && IsQuotable(data)) {
        return line + Quoted(data.substr(0, data.size() - 1)) + "\r\n";
    }
    if (type == REG_DWORD && data.size() == 4) {
        DWORD number = 0;
        for (std::size_t i = 4; i-- > 0;) {
            number = number << 8 | static_cast<unsigned char>(data[i]);
        }
        return line + "dword:" + Hex("%08x", number) + "\r\n";
    }
    line += type == REG_BINARY ? std::string("hex:") : "hex(" + Hex("%x", type) + "):";
    for (std::size_t i = 0; i < data.size(); ++i) {
        line += Hex("%02x", static_cast<unsigned char>(data[i]));
        if (i + 1 < data.size()) {
            line += i % kBytesInLine == kBytesInLine - 1 ? ",\\\r\n  " : ",";
        }
    }
    return line + "\r\n";
}

}  // namespace cvreg
