/// @file input.h
/// What every fuzz target needs: the bytes of an input taken as choices, numbers and texts, and a check that stops the
/// program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

/// Stops the program, so that the fuzzer keeps the input.
#define FUZZ_CHECK(condition) ((condition) ? static_cast<void>(0) : fuzz::Fail(#condition, __FILE__, __LINE__))

namespace fuzz {

[[noreturn]] inline void Fail(char const* condition, char const* file, int line) {
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

/// Hands out an input piece by piece. An exhausted one gives zeros and empty texts.
class Input {
  public:
    Input(std::uint8_t const* data, std::size_t size) : at_(data), end_(data + size) {}

    bool empty() const {
        return at_ == end_;
    }

    std::uint8_t Byte() {
        return empty() ? 0 : *at_++;
    }

    char Character() {
        return static_cast<char>(Byte());
    }

    /// One of the characters of a set.
    char Character(std::string const& set) {
        return set[Byte() % set.size()];
    }

    /// A number below @p count, which is at most 256.
    unsigned Pick(unsigned count) {
        return Byte() % count;
    }

    /// A position or count: mostly small, now and then one of the values with a meaning of their own.
    std::uint32_t Number() {
        std::uint8_t const byte = Byte();
        switch (byte) {
            case 0xFF:
                return 0xFFFFFFFF;
            case 0xFE:
                return 0xFFFFFFFE;
            case 0xFD:
                return 0x7FFFFFFF;
            default:
                return byte % 48;
        }
    }

    /// At most @p most bytes of any value but NUL.
    std::string Text(std::size_t most) {
        std::string text;
        for (std::size_t left = Pick(static_cast<unsigned>(most) + 1); left; --left) {
            if (char const ch = Character()) {
                text += ch;
            }
        }
        return text;
    }

    /// At most @p most characters of a set.
    std::string Text(std::size_t most, std::string const& set) {
        std::string text;
        for (std::size_t left = Pick(static_cast<unsigned>(most) + 1); left; --left) {
            text += Character(set);
        }
        return text;
    }

  private:
    std::uint8_t const* at_;
    std::uint8_t const* end_;
};

}  // namespace fuzz
