// CSTRING beside the model of string_model.h: after each member both must hold the same bytes, to the end of the block,
// and know the same lengths.
#include <cvutil32/cstring.h>

#include <cstring>
#include <utility>

#include "tests/fuzz/input.h"
#include "tests/fuzz/string_model.h"

namespace {

using fuzz::Input;
using fuzz::StringModel;

char const* Bytes(CSTRING const& string) {
    return string;
}

void CheckSame(CSTRING& string, StringModel& model) {
    model.Enter();
    std::uint32_t const length = string.GetStrLen();
    std::uint32_t const count = string.GetByteCount();
    FUZZ_CHECK(length == (model.locks ? StringModel::Length(model.block) : model.strLen));
    FUZZ_CHECK(count == (model.locks ? StringModel::Walk(model.block, StringModel::kAll) : model.byteCount));
    FUZZ_CHECK(string.GetBufLen(0) == model.block.size());
    FUZZ_CHECK(std::memcmp(Bytes(string), model.block.data(), model.block.size()) == 0);
}

void CheckPart(CSTRING const& part, std::string const& bytes) {
    FUZZ_CHECK(part.IsValid());
    FUZZ_CHECK(std::strcmp(Bytes(part), bytes.c_str()) == 0);
}

// Nothing that the caller of a member may do takes the last NUL of the block away.
bool MayWrite(CSTRING& string, char const* at, char ch) {
    return ch == '\0' || at + 1 < Bytes(string) + string.GetBufLen(0);
}

void Write(CSTRING& string, StringModel& model, std::string const& text) {
    std::size_t const size = std::min(text.size(), model.block.size() - 1);
    std::memcpy(const_cast<char*>(Bytes(string)), text.c_str(), size);
    const_cast<char*>(Bytes(string))[size] = '\0';
    model.block.replace(0, size, text, 0, size);
    model.block[size] = '\0';
}

void Extract(Input& input, CSTRING const& string, StringModel const& model) {
    std::uint32_t const pos = input.Number();
    std::uint32_t const count = input.Number();
    std::uint32_t const all = model.strLen;
    CheckPart(string.Left(count), model.block.substr(0, StringModel::Walk(model.block, std::min(count, all))));
    if (pos < all) {
        std::uint32_t const from = StringModel::Walk(model.block, pos);
        std::uint32_t const size = StringModel::Walk(model.block, std::min(count, all - pos), from);
        CheckPart(string.Mid(pos, count), model.block.substr(from, size));
    } else {
        CheckPart(string.Mid(pos, count), "");
    }
    std::uint32_t const from = StringModel::Walk(model.block, all - std::min(count, all));
    std::uint32_t const size = model.byteCount > from ? model.byteCount - from : 0;
    CheckPart(string.Right(count), from < model.block.size() ? model.block.substr(from, size).c_str() : "");
}

void Find(Input& input, CSTRING& string, StringModel const& model) {
    std::uint32_t const start = input.Number();
    std::string const text = input.Text(6);
    FUZZ_CHECK(string.Find(text.c_str(), start) == model.Search(text, start, 0));
    FUZZ_CHECK(string.FindNoCase(text.c_str(), start) == model.Search(text, start, NORM_IGNORECASE));
    char const ch = input.Character();
    FUZZ_CHECK(string.Find(ch, start) == model.Search(std::string(1, ch), start, 0));
    FUZZ_CHECK(string.FindNoCase(ch, start) == model.Search(std::string(1, ch), start, NORM_IGNORECASE));
}

void EditByCharacters(Input& input, CSTRING& string, StringModel& model) {
    std::uint32_t const pos = input.Number();
    char const ch = input.Character();
    switch (input.Pick(4)) {
        case 0:
            string.Insert(ch, pos);
            model.Insert(std::string(ch ? 1 : 0, ch), pos, 1);
            break;
        case 1: {
            string.SetChar(pos, ch);
            std::size_t const at = StringModel::Walk(model.block, pos);
            if (model.At(at)) {
                model.block[at] = ch;
            }
            break;
        }
        case 2: {
            std::uint32_t const index = pos != StringModel::kAll ? pos : string.GetStrLen() - 1;
            char& place = string.GetRef(pos);
            if (StringModel::Walk(model.block, index) + 1 >= model.block.size()) {
                model.Resize(static_cast<std::uint32_t>(model.block.size()) + 1);
            }
            std::size_t const at = StringModel::Walk(model.block, index);
            model.autoLocked = index >= model.strLen;
            FUZZ_CHECK(&place == Bytes(string) + at);
            if (MayWrite(string, &place, ch)) {
                place = ch;
                model.block[at] = ch;
            }
            break;
        }
        default: {
            std::uint32_t const index = pos != StringModel::kAll ? pos : string.GetStrLen() - 1;
            FUZZ_CHECK(string.GetChar(pos) == model.At(StringModel::Walk(model.block, index)));
        }
    }
}

// @returns false when the model cannot follow.
bool Replace(Input& input, CSTRING& string, StringModel& model) {
    bool const all = input.Pick(2) != 0;
    switch (input.Pick(3)) {
        case 0: {
            char const from = input.Character();
            char const to = input.Character();
            string.Replace(from, to, all);
            model.Replace(from, to, all);
            return true;
        }
        case 1: {
            std::string const text = input.Text(20);
            std::uint32_t const pos = input.Number();
            std::uint32_t const count = input.Number();
            string.Replace(text.c_str(), pos, count);
            model.Overwrite(text, pos, count);
            return true;
        }
        default: {
            std::string const find = input.Text(3);
            std::string const with = input.Text(5);
            string.Replace(find.c_str(), with.c_str(), all);
            return model.Replace(find, with, all);
        }
    }
}

void LockAndWrite(Input& input, CSTRING& string, StringModel& model) {
    unsigned const step = input.Pick(4);
    if (step == 2) {
        if (model.locks) {
            Write(string, model, input.Text(60));
        }
        return;  // no member is called, and so nothing taken in
    }
    model.Enter();
    switch (step) {
        case 0: {
            std::uint32_t const size = input.Pick(200) * 20;
            model.locks += model.Resize(std::max<std::uint32_t>(size, 1024)) ? 1 : 0;
            FUZZ_CHECK((string.BufferLock(size) != nullptr) == (model.locks != 0));
            break;
        }
        case 1:
            model.Measure();
            model.locks -= model.locks ? 1 : 0;
            FUZZ_CHECK(string.BufferUnlock() == model.locks);
            break;
        default: {
            char* const buffer = string;
            bool const given = model.Resize(1024);
            FUZZ_CHECK((buffer != nullptr) == given);
            if (given) {
                model.autoLocked = true;
                Write(string, model, input.Text(60));
            }
        }
    }
}

void Assign(Input& input, CSTRING& string, StringModel& model) {
    std::string const text = input.Text(60);
    CSTRING const other(text.c_str());
    char const one[2] = {input.Character(), '\0'};
    auto const oneSize = static_cast<std::uint32_t>(*one ? CharNextA(one) - one : 1);
    switch (input.Pick(7)) {
        case 0:
            string = text.c_str();
            model.Copy(text, StringModel::kAll);
            break;
        case 1:
            string = other;
            model.Copy(text, StringModel::kAll);
            break;
        case 2:
            string = one[0];
            model.Copy(std::string(one, 1), oneSize);
            break;
        case 3:
            string += text.c_str();
            model.Concat(text, StringModel::kAll);
            break;
        case 4:
            string += other;
            model.Concat(text, StringModel::kAll);
            break;
        case 5:
            string += one[0];
            model.Concat(std::string(one, 1), oneSize);
            break;
        default:
            if (!model.block.empty()) {
                std::size_t const from = input.Pick(256) % model.block.size();
                string = Bytes(string) + from;
                model.CopyOwn(from);
            }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    CSTRING string;
    StringModel model;
    while (!input.empty()) {
        unsigned const member = input.Pick(10);
        if (member != 8) {
            model.Enter();
        }
        switch (member) {
            case 0:
            case 1:
                Assign(input, string, model);
                break;
            case 2: {
                std::uint32_t const pos = input.Number();
                std::uint32_t const count = input.Number();
                string.Delete(pos, count);
                model.Delete(pos, count);
                break;
            }
            case 3: {
                std::string const text = input.Text(40);
                std::uint32_t const pos = input.Number();
                std::uint32_t const count = input.Number();
                string.Insert(text.c_str(), pos, count);
                model.Insert(text, pos, count);
                break;
            }
            case 4:
                EditByCharacters(input, string, model);
                break;
            case 5:
                if (!Replace(input, string, model)) {
                    FUZZ_CHECK(string.IsValid());
                    return 0;
                }
                break;
            case 6:
                string.GetStrLen();
                Find(input, string, model);
                break;
            case 7:
                string.GetStrLen();
                Extract(input, string, model);
                break;
            case 8:
                LockAndWrite(input, string, model);
                continue;  // what was written is taken in by the next member, whichever it is
            default:
                string.GetStrLen();
                input.Pick(2) ? string.MakeUpper() : string.MakeLower();
                model.block.replace(0, model.strLen, Bytes(string), model.strLen);
                FUZZ_CHECK(string.IsValid());
        }
        CheckSame(string, model);
    }
    CheckSame(string, model);
    return 0;
}
