#include "user/dialog/dialog.h"

#include <cstring>
#include <new>

#include "kernel/modules/resource.h"
#include "kernel/text/encoding.h"

namespace platform::user {
namespace {

constexpr DWORD kExtendedSignature = 0xFFFF0001;
constexpr WORD kOrdinalFollows = 0xFFFF;
constexpr size_t kLongestText = 32768;

struct PredefinedClass {
    WORD atom;
    const char* name;
};
constexpr PredefinedClass kPredefinedClasses[] = {{0x0080, "button"},  {0x0081, "edit"},      {0x0082, "static"},
                                                  {0x0083, "listbox"}, {0x0084, "scrollbar"}, {0x0085, "combobox"}};

/// A cursor over the template that never leaves it; once it would, everything reads as zero and Failed() says so.
class Reader {
  public:
    Reader(const BYTE* data, size_t size) : data_(data), size_(size) {}

    template <class Value>
    Value Take() {
        Value value{};
        const BYTE* from = data_ + position_;
        Skip(sizeof value);
        if (!failed_)
            std::memcpy(&value, from, sizeof value);
        return value;
    }

    WORD PeekWord() const {
        WORD value = 0;
        if (!failed_ && sizeof value <= size_ - position_)
            std::memcpy(&value, data_ + position_, sizeof value);
        return value;
    }

    void Skip(size_t count) {
        if (failed_ || count > size_ - position_)
            failed_ = true;
        else
            position_ += count;
    }

    void AlignToDword() {
        Skip((4 - position_ % 4) % 4);
    }

    bool Failed() const {
        return failed_;
    }

    std::string TakeText() {
        std::u16string wide;
        while (WORD unit = Take<WORD>()) {
            if (wide.size() >= kLongestText) {
                failed_ = true;
                break;
            }
            wide.push_back(static_cast<char16_t>(unit));
        }
        return failed_ ? std::string() : kernel::AnsiFromWide(wide);
    }

    /// The three forms of a menu, class or title: nothing (0), a number (0xFFFF and the number), a string.
    bool TakeOrdinal(WORD& ordinal) {
        if (PeekWord() != kOrdinalFollows)
            return false;
        Take<WORD>();
        ordinal = Take<WORD>();
        return true;
    }

  private:
    const BYTE* data_;
    size_t size_;
    size_t position_ = 0;
    bool failed_ = false;
};

void TakeGeometry(Reader& reader, short& x, short& y, short& width, short& height) {
    x = reader.Take<short>();
    y = reader.Take<short>();
    width = reader.Take<short>();
    height = reader.Take<short>();
}

std::string TakeItemClass(Reader& reader) {
    WORD ordinal = 0;
    if (!reader.TakeOrdinal(ordinal))
        return reader.TakeText();
    for (const PredefinedClass& predefined : kPredefinedClasses) {
        if (predefined.atom == ordinal)
            return predefined.name;
    }
    return '#' + std::to_string(ordinal);
}

std::string TakeItemText(Reader& reader) {
    WORD ordinal = 0;
    if (reader.TakeOrdinal(ordinal))
        return '#' + std::to_string(ordinal);
    return reader.TakeText();
}

DialogItem TakeItem(Reader& reader, bool extended) {
    DialogItem item;
    reader.AlignToDword();
    if (extended) {
        reader.Take<DWORD>();  // help identifier
        item.exStyle = reader.Take<DWORD>();
        item.style = reader.Take<DWORD>();
        TakeGeometry(reader, item.x, item.y, item.width, item.height);
        item.id = static_cast<int>(reader.Take<DWORD>());
    } else {
        item.style = reader.Take<DWORD>();
        item.exStyle = reader.Take<DWORD>();
        TakeGeometry(reader, item.x, item.y, item.width, item.height);
        item.id = reader.Take<WORD>();
    }
    item.className = TakeItemClass(reader);
    item.text = TakeItemText(reader);
    // Nobody here makes controls of creation data. Its length does not count itself with EX alone.
    const WORD data = reader.Take<WORD>();
    reader.Skip(extended || data < sizeof data ? data : data - sizeof data);
    return item;
}

}  // namespace

bool ParseDialogTemplate(const void* data, size_t size, DialogTemplate& result) {
    if (!data)
        return false;
    Reader reader(static_cast<const BYTE*>(data), size);
    result = DialogTemplate{};
    result.style = reader.Take<DWORD>();
    const bool extended = result.style == kExtendedSignature;
    if (extended) {
        reader.Take<DWORD>();  // help identifier
        result.exStyle = reader.Take<DWORD>();
        result.style = reader.Take<DWORD>();
    } else {
        result.exStyle = reader.Take<DWORD>();
    }
    const WORD count = reader.Take<WORD>();
    TakeGeometry(reader, result.x, result.y, result.width, result.height);

    WORD menu = 0;
    if (!reader.TakeOrdinal(menu))
        reader.TakeText();
    // Dialogs have no other class than the usual one.
    WORD atom = 0;
    if (reader.TakeOrdinal(atom) || !reader.TakeText().empty())
        return false;
    result.title = reader.TakeText();
    if (result.style & DS_SETFONT) {
        result.hasFont = true;
        result.pointSize = reader.Take<WORD>();
        if (extended) {
            result.weight = reader.Take<WORD>();
            result.italic = reader.Take<BYTE>() != 0;
            result.charSet = reader.Take<BYTE>();
        }
        result.face = reader.TakeText();
    }
    for (WORD index = 0; index < count && !reader.Failed(); ++index)
        result.items.push_back(TakeItem(reader, extended));
    return !reader.Failed();
}

bool LoadDialogTemplate(HINSTANCE instance, LPCSTR name, DialogTemplate& result) {
    const kernel::Bytes resource = kernel::FindResourceBytes(instance, name, RT_DIALOG);
    if (resource.empty())
        return false;
    return ParseDialogTemplate(resource.data(), resource.size(), result) || Fail(ERROR_INVALID_DATA, false);
}

}  // namespace platform::user
