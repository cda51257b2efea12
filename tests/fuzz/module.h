/// @file module.h
/// A module whose resources are an input: as the compiled file itself, or as one that is put together from pieces.
#pragma once

#include "platform/kernel/modules/start/module_registration.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace fuzz {

/// A compiled resource script, entry by entry. Types and names are numbers.
class ResourceFile {
  public:
    ResourceFile() {
        // The empty entry that every such file begins with.
        Add(0, 0, nullptr, 0);
    }

    void Add(WORD type, WORD name, std::uint8_t const* data, std::size_t size) {
        for (DWORD const number : {static_cast<DWORD>(size), DWORD{32}, DWORD{0xFFFF} | DWORD{type} << 16,
                                   DWORD{0xFFFF} | DWORD{name} << 16, DWORD{0}, DWORD{0}, DWORD{0}, DWORD{0}}) {
            for (int byte = 0; byte < 4; ++byte) {
                bytes_.push_back(static_cast<std::uint8_t>(number >> 8 * byte));
            }
        }
        bytes_.insert(bytes_.end(), data, data + size);
        // What is not aligned is at the file's end only, so that reading past an entry is seen.
        last_ = bytes_.size();
        bytes_.resize((bytes_.size() + 3) / 4 * 4);
    }

    std::uint8_t const* data() const {
        return bytes_.data();
    }
    std::size_t size() const {
        return last_;
    }

  private:
    std::vector<std::uint8_t> bytes_;
    std::size_t last_ = 0;
};

class Module {
  public:
    Module(std::uint8_t const* data, std::size_t size) : bytes_(new std::uint8_t[size]) {
        // A block of its own, just as large: the sanitizer sees whoever reads past its end.
        if (size != 0) {
            std::memcpy(bytes_.get(), data, size);
        }
        CvModuleStart start = {};
        start.resources = bytes_.get();
        start.resourcesEnd = bytes_.get() + size;
        start.address = bytes_.get();
        instance_ = CvPlatformAttachModule(&start);
    }
    explicit Module(ResourceFile const& file) : Module(file.data(), file.size()) {}
    ~Module() {
        CvPlatformDetachModule(instance_);
    }
    Module(Module const&) = delete;
    Module& operator=(Module const&) = delete;

    HINSTANCE instance() const {
        return instance_;
    }

  private:
    std::unique_ptr<std::uint8_t[]> bytes_;
    HINSTANCE instance_ = nullptr;
};

}  // namespace fuzz
