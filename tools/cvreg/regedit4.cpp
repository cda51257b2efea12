#include "regedit4.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace cvreg {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::size_t kBytesInLine = 24;

char Small(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character | 0x20) : character;
}

std::optional<DWORD> HexNumber(std::string_view digits, std::size_t most) {
    if (digits.empty() || digits.size() > most) {
        return std::nullopt;
    }
    DWORD number = 0;
    for (const char digit : digits) {
        const char small = Small(digit);
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

/// How many bytes a character takes: the second one of two may look like a backslash.
std::size_t Width(std::string_view text) {
    return text.size() > 1 && IsDBCSLeadByte(static_cast<BYTE>(text[0])) ? 2 : 1;
}

/// What is left of a file, and where that is.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    int Line() const {
        return line_;
    }
    bool AtEnd() const {
        return text_.empty();
    }
    /// 0 at the end of the line.
    char Peek() const {
        return text_.empty() || text_[0] == '\n' ? '\0' : text_[0];
    }

    std::string_view Take(std::size_t count) {
        const std::string_view taken = text_.substr(0, count);
        line_ += static_cast<int>(std::count(taken.begin(), taken.end(), '\n'));
        text_.remove_prefix(taken.size());
        return taken;
    }
    /// In any case. @returns whether the text stands here, and was taken.
    bool TakeWord(std::string_view word) {
        const std::string_view here = text_.substr(0, word.size());
        const bool same = std::equal(here.begin(), here.end(), word.begin(), word.end(),
                                     [](char a, char b) { return Small(a) == b; });
        Take(same ? word.size() : 0);
        return same;
    }
    std::string_view TakeWhile(std::string_view characters) {
        return Take(std::min(text_.find_first_not_of(characters), text_.size()));
    }
    void SkipBlanks() {
        TakeWhile(kBlanks);
    }
    std::string_view RestOfLine() const {
        return text_.substr(0, text_.find('\n'));
    }

    /// Goes to the next line. @returns false when something other than blanks and a remark comes before it.
    bool EndLine() {
        SkipBlanks();
        if (Peek() && Peek() != ';') {
            return false;
        }
        Take(RestOfLine().size() + 1);
        return true;
    }

    /// Takes a text in quotes, over as many lines as it has. @returns nothing when it has no end.
    std::optional<std::string> TakeQuoted() {
        std::string plain;
        Take(1);
        while (!text_.empty()) {
            if (text_[0] == '"') {
                Take(1);
                return plain;
            }
            if (text_[0] == '\\' && text_.size() > 1 && (text_[1] == '\\' || text_[1] == '"')) {
                Take(1);
            }
            plain += Take(Width(text_));
        }
        return std::nullopt;
    }

  private:
    std::string_view text_;
    int line_ = 1;
};

constexpr char kNoEnd[] = "the text in quotes has no end";
constexpr char kNoBracket[] = "the key has no \"]\" at its end";

// "01,02", over several lines where a backslash ends one.
const char* TakeBytes(Reader* reader, std::string* bytes) {
    for (;;) {
        reader->SkipBlanks();
        if (reader->Peek() == '\\') {
            reader->Take(1);
            if (!reader->EndLine() || reader->AtEnd()) {
                return "the list of bytes does not go on behind the backslash";
            }
            continue;
        }
        if (!reader->Peek() || reader->Peek() == ';') {
            return nullptr;
        }
        const std::optional<DWORD> byte = HexNumber(reader->TakeWhile("0123456789abcdefABCDEF"), 2);
        reader->SkipBlanks();
        const char next = reader->Peek();
        if (!byte || (next && next != ',' && next != ';')) {
            return "hex needs bytes of 1 or 2 hexadecimal digits, separated by commas";
        }
        *bytes += static_cast<char>(*byte);
        reader->Take(next == ',');
    }
}

const char* ReadHex(Reader* reader, Entry* entry) {
    entry->type = REG_BINARY;
    if (reader->Peek() == '(') {
        reader->Take(1);
        const std::optional<DWORD> type = HexNumber(reader->TakeWhile("0123456789abcdefABCDEF"), 8);
        if (!type || !reader->TakeWord(")")) {
            return "hex(type) needs a hexadecimal number";
        }
        entry->type = *type;
    }
    return reader->TakeWord(":") ? TakeBytes(reader, &entry->data) : "hex is not followed by \":\"";
}

const char* ReadData(Reader* reader, Entry* entry) {
    entry->kind = Entry::Value;
    if (reader->Peek() == '"') {
        const std::optional<std::string> plain = reader->TakeQuoted();
        if (!plain) {
            return kNoEnd;
        }
        entry->type = REG_SZ;
        entry->data = *plain + '\0';
        return nullptr;
    }
    if (reader->TakeWord("dword:")) {
        reader->SkipBlanks();
        const std::optional<DWORD> number = HexNumber(reader->TakeWhile("0123456789abcdefABCDEF"), 8);
        if (!number) {
            return "a dword needs 1 to 8 hexadecimal digits";
        }
        entry->type = REG_DWORD;
        for (int i = 0; i < 4; ++i) {
            entry->data += static_cast<char>(*number >> (8 * i));
        }
        return nullptr;
    }
    if (reader->TakeWord("hex")) {
        return ReadHex(reader, entry);
    }
    entry->kind = Entry::DeletedValue;
    return reader->TakeWord("-") ? nullptr : "neither text, dword, hex nor \"-\"";
}

// The bracket that ends a key's line, which only blanks and a remark may follow: names may hold brackets.
std::size_t KeyEnd(std::string_view line) {
    std::size_t end = line.find(']');
    for (; end != std::string_view::npos; end = line.find(']', end + 1)) {
        const std::size_t next = line.find_first_not_of(kBlanks, end + 1);
        if (next == std::string_view::npos || line[next] == ';') {
            break;
        }
    }
    return end;
}

const char* ReadKey(Reader* reader, Entry* entry) {
    reader->Take(1);
    entry->kind = reader->TakeWord("-") ? Entry::DeletedKey : Entry::Key;
    if (reader->Peek() == '"') {
        const std::optional<std::string> path = reader->TakeQuoted();
        if (!path) {
            return kNoEnd;
        }
        entry->key = *path;
    } else {
        const std::size_t end = KeyEnd(reader->RestOfLine());
        if (end == std::string_view::npos) {
            return kNoBracket;
        }
        entry->key = reader->Take(end);
    }
    if (!reader->TakeWord("]")) {
        return kNoBracket;
    }
    return entry->key.empty() ? "the key has no name" : nullptr;
}

const char* ReadValue(Reader* reader, Entry* entry) {
    if (reader->Peek() == '"') {
        std::optional<std::string> name = reader->TakeQuoted();
        if (!name) {
            return kNoEnd;
        }
        entry->name = std::move(*name);
    } else if (!reader->TakeWord("@")) {
        return "neither a key nor a value";
    }
    reader->SkipBlanks();
    if (!reader->TakeWord("=")) {
        return "the name is not followed by \"=\"";
    }
    reader->SkipBlanks();
    return ReadData(reader, entry);
}

const char* ReadHeading(Reader* reader) {
    reader->TakeWhile(" \t\r\n");
    if (reader->AtEnd()) {
        return "the file is empty";
    }
    const std::string_view line = reader->RestOfLine();
    if (line.starts_with("\xEF\xBB\xBF")) {
        return "this is UTF-8; save it in the code page in use";
    }
    if (line.starts_with("\xFF\xFE") || line.starts_with("\xFE\xFF") || line.starts_with("Windows Registry Editor")) {
        return "this is a file of a later format, in Unicode; save it as REGEDIT4";
    }
    return reader->TakeWord("regedit4") && reader->EndLine() ? nullptr : "the first line is not REGEDIT4";
}

}  // namespace

bool Parse(std::string_view text, std::vector<Entry>* entries, std::string* error) {
    Reader reader(text);
    std::string key;
    const char* wrong = ReadHeading(&reader);
    int line = reader.Line();
    while (!wrong) {
        reader.TakeWhile(" \t\r\n");
        line = reader.Line();
        if (reader.AtEnd()) {
            return true;
        }
        if (reader.EndLine()) {
            continue;
        }
        Entry entry;
        entry.line = line;
        if (reader.Peek() == '[') {
            wrong = ReadKey(&reader, &entry);
            key = entry.kind == Entry::Key ? entry.key : std::string();
        } else if (key.empty() && (reader.Peek() == '"' || reader.Peek() == '@')) {
            wrong = "a value without a key";
        } else {
            entry.key = key;
            wrong = ReadValue(&reader, &entry);
        }
        // What has no end is named by its beginning, anything else by the line that is wrong.
        line = wrong == kNoEnd ? line : reader.Line();
        if (!wrong && !reader.EndLine()) {
            wrong = "something follows that is no remark";
        }
        entries->push_back(std::move(entry));
    }
    entries->clear();
    *error = "line " + std::to_string(line) + ": " + wrong;
    return false;
}

bool ParseBytes(std::string_view list, std::string* bytes) {
    Reader reader(list);
    return list.find_first_of("\\;\n") == std::string_view::npos && !TakeBytes(&reader, bytes) && reader.AtEnd();
}

namespace {

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    while (!text.empty()) {
        const std::size_t width = Width(text);
        if (text[0] == '"' || text[0] == '\\') {
            quoted += '\\';
        }
        quoted += text.substr(0, width);
        text.remove_prefix(width);
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
    const std::string plain = std::string(path) + ']';
    const bool goodAsIs = path.find_first_of("\r\n") == std::string_view::npos && !path.starts_with('"') &&
                          !path.starts_with('-') && KeyEnd(plain) == path.size();
    return "\r\n[" + (goodAsIs ? plain : Quoted(path) + ']') + "\r\n";
}

std::string FormatValue(std::string_view name, DWORD type, std::string_view data, const char* lineEnd) {
    std::string line = (name.empty() ? std::string("@") : Quoted(name)) + "=";
    if (type == REG_SZ && IsQuotable(data)) {
        return line + Quoted(data.substr(0, data.size() - 1)) + lineEnd;
    }
    if (type == REG_DWORD && data.size() == 4) {
        DWORD number = 0;
        for (std::size_t i = 4; i-- > 0;) {
            number = number << 8 | static_cast<unsigned char>(data[i]);
        }
        return line + "dword:" + Hex("%08x", number) + lineEnd;
    }
    line += type == REG_BINARY ? std::string("hex:") : "hex(" + Hex("%x", type) + "):";
    for (std::size_t i = 0; i < data.size(); ++i) {
        line += Hex("%02x", static_cast<unsigned char>(data[i]));
        if (i + 1 < data.size()) {
            line += i % kBytesInLine == kBytesInLine - 1 ? std::string(",\\") + lineEnd + "  " : ",";
        }
    }
    return line + lineEnd;
}

}  // namespace cvreg
