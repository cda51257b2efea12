/// @file string_model.h
/// CSTRING once more, slow and obvious: a block of bytes, what is known of it, and each rule step by step.
///
/// Where the rules lead nowhere (an endless replacement, a write behind the block) the model says so or does nothing,
/// as CSTRING is free to.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

class StringModel {
  public:
    static constexpr std::uint32_t kAll = 0xFFFFFFFF;

    std::string block;  ///< the bytes of the block; none while the object owns none
    std::uint32_t strLen = 0;
    std::uint32_t byteCount = 0;
    std::uint32_t locks = 0;
    bool autoLocked = false;

    // --- lengths and places

    static std::uint32_t Length(std::string const& bytes, std::size_t from = 0) {
        std::size_t const end = bytes.find('\0', from);
        return static_cast<std::uint32_t>((end == std::string::npos ? bytes.size() : end) - from);
    }

    static std::uint32_t Walk(std::string const& bytes, std::uint32_t count, std::size_t from = 0) {
        std::uint32_t at = 0;
        while (at < count && from + at < bytes.size() && static_cast<signed char>(bytes[from + at]) > 0) {
            ++at;
        }
        return at;
    }

    void Enter() {
        if (autoLocked) {
            Measure();
        }
    }

    void Measure() {
        strLen = Length(block);
        byteCount = Walk(block, kAll);
        autoLocked = false;
    }

    // --- storage

    bool Alloc(std::uint32_t size) {
        if (!locks) {
            if (block.size() < size) {
                block.resize((size & ~15u) + 16);
            }
            std::fill(block.begin(), block.end(), '\0');
            if (!block.empty()) {
                strLen = byteCount = 0;
            }
        }
        return block.size() >= size;
    }

    bool Resize(std::uint32_t size) {
        if (!locks && block.size() < size) {
            std::string kept = block.substr(0, byteCount + 1);
            kept.resize((size + 15) & ~15u);
            block = kept;
        }
        return block.size() >= size;
    }

    void Copy(std::string const& source, std::uint32_t count) {
        if (locks) {
            return;
        }
        count = count == kAll ? Walk(source, kAll) : count;
        Alloc(count + 1);
        std::copy_n(source.begin(), count, block.begin());
        strLen = Length(block);
        byteCount = count;
    }

    /// Takes over the own text from a place in the block on.
    void CopyOwn(std::size_t from) {
        if (locks) {
            return;
        }
        std::uint32_t const count = Walk(block, kAll, from);
        std::string const part = block.substr(from, count);
        std::copy(part.begin(), part.end(), block.begin());
        std::fill(block.begin() + std::min<std::size_t>(count + 1, block.size()), block.end(), '\0');
        strLen = Length(block);
        byteCount = count;
    }

    void Concat(std::string const& source, std::uint32_t count) {
        if (locks) {
            return;
        }
        count = count == kAll ? Walk(source, kAll) : count;
        std::uint32_t const sum = byteCount + count;
        Resize(sum + 1);
        std::copy_n(source.begin(), count, block.begin() + byteCount);
        strLen = Length(block);
        byteCount = sum;
    }

    // --- editing

    void Delete(std::uint32_t pos, std::uint32_t count) {
        if (pos == kAll) {
            pos = strLen > count ? strLen - count : 0;
        }
        if (pos >= strLen) {
            return;
        }
        std::uint32_t const characters = std::min(strLen - pos, count);
        std::uint32_t const to = Walk(block, pos);
        std::uint32_t const removed = Walk(block, characters, to);
        std::string const tail = block.substr(to + removed, Length(block, to + removed));
        std::copy(tail.begin(), tail.end(), block.begin() + to);
        if (!block.empty()) {
            block[to + tail.size()] = '\0';
        }
        strLen -= characters;
        byteCount -= std::min(byteCount, removed);
    }

    void Insert(std::string const& text, std::uint32_t pos, std::uint32_t count) {
        if (pos > strLen) {
            return;
        }
        std::uint32_t const added = Walk(text, count);
        if (!Resize(byteCount + added + (At(byteCount) ? 2 : 1))) {  // a NUL always stays behind
            return;
        }
        std::uint32_t const at = Walk(block, pos);
        std::string const moved = byteCount + 1 > at ? block.substr(at, byteCount + 1 - at) : std::string();
        if (at + added + moved.size() > block.size()) {
            return;
        }
        std::copy(moved.begin(), moved.end(), block.begin() + at + added);
        std::copy_n(text.begin(), added, block.begin() + at);
        strLen = Length(block);
        byteCount += added;
    }

    void Replace(char from, char to, bool all) {
        std::size_t place = 0;
        if (from) {
            for (std::uint32_t i = 0; i < strLen; ++i) {
                if (At(place) == from) {
                    block[place] = to;
                    if (!all) {
                        return;
                    }
                }
                place = Step(place);
            }
            return;
        }
        std::size_t next = Step(place);
        while (At(place) || At(next)) {
            if (!At(place)) {
                block[place] = to;
                if (!all) {
                    break;
                }
            }
            if (next == place) {
                break;  // it would stay here for ever
            }
            place = next;
            next = Step(next);
        }
        strLen = Length(block);
    }

    void Overwrite(std::string const& text, std::uint32_t pos, std::uint32_t count) {
        std::uint32_t const start = pos != kAll ? pos : count < strLen ? strLen - count : 0;
        if (strLen <= start) {
            return;
        }
        std::uint32_t const replaced = std::min({static_cast<std::uint32_t>(text.size()), count, strLen - start});
        Delete(start, replaced);
        Insert(text, pos, replaced);
    }

    /// @returns false if the replacement did not end in a thousand rounds.
    bool Replace(std::string const& find, std::string const& with, bool all) {
        std::uint32_t position = 0;
        for (int rounds = 0; !find.empty(); ++rounds) {
            if (rounds == 1000) {
                return false;
            }
            position = Search(find, position, 0);
            if (position == kAll) {
                break;
            }
            Delete(position, static_cast<std::uint32_t>(find.size()));
            Insert(with, position, kAll);
            position += static_cast<std::uint32_t>(with.size());
            if (!all) {
                break;
            }
        }
        return true;
    }

    // --- searching

    std::uint32_t Search(std::string const& text, std::uint32_t start, DWORD flags) const {
        std::uint32_t found = kAll;
        auto const length = static_cast<std::uint32_t>(text.size());
        std::uint32_t position = start == kAll ? 0 : start;
        std::size_t at = start == kAll ? 0 : Walk(block, start);
        while (length && At(at)) {
            if (strLen - position < length || block.size() - at < length) {
                break;
            }
            if (CompareStringA(LOCALE_SYSTEM_DEFAULT, flags, block.data() + at, static_cast<int>(length), text.data(),
                               static_cast<int>(length)) == CSTR_EQUAL) {
                found = position;
                if (start != kAll) {
                    break;
                }
            }
            at = static_cast<std::size_t>(CharNextA(block.c_str() + at) - block.c_str());
            ++position;
        }
        return found;
    }

    char At(std::size_t place) const {
        return place < block.size() ? block[place] : '\0';
    }

  private:
    std::size_t Step(std::size_t place) const {
        if (place + 1 >= block.size()) {
            return place;
        }
        if (static_cast<signed char>(block[place]) > 0) {
            return place + 1;
        }
        return static_cast<signed char>(block[place + 1]) > 0 ? place + 1 : place;
    }
};

}  // namespace fuzz
