#include "gallery/png.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace gallery {
namespace {

using CrcTable = std::array<std::uint32_t, 256>;

constexpr CrcTable MakeCrcTable() {
    CrcTable table{};
    for (std::uint32_t index = 0; index < 256; ++index) {
        std::uint32_t value = index;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 1) != 0 ? 0xEDB88320U ^ value >> 1 : value >> 1;
        }
        table[index] = value;
    }
    return table;
}

constexpr CrcTable kCrcTable = MakeCrcTable();

std::uint32_t Crc(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc = kCrcTable[(crc ^ static_cast<unsigned char>(byte)) & 0xFF] ^ crc >> 8;
    }
    return ~crc;
}

std::uint32_t Adler(std::string_view bytes) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char byte : bytes) {
        a = (a + static_cast<unsigned char>(byte)) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}

void AppendBig(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        out += static_cast<char>(value >> shift & 0xFF);
    }
}

void AppendChunk(std::string& out, std::string_view type, std::string_view data) {
    AppendBig(out, static_cast<std::uint32_t>(data.size()));
    const std::size_t start = out.size();
    out.append(type).append(data);
    AppendBig(out, Crc(std::string_view(out).substr(start)));
}

// A zlib stream of stored blocks: 16-bit lengths, each followed by its complement.
std::string Store(std::string_view data) {
    constexpr std::size_t kBlock = 65535;
    std::string out("\x78\x01", 2);
    for (std::size_t at = 0; at < data.size(); at += kBlock) {
        const std::size_t size = std::min(kBlock, data.size() - at);
        out += static_cast<char>(at + size == data.size());
        for (const std::size_t half : {size, ~size}) {
            out += static_cast<char>(half & 0xFF);
            out += static_cast<char>(half >> 8 & 0xFF);
        }
        out.append(data.substr(at, size));
    }
    AppendBig(out, Adler(data));
    return out;
}

}  // namespace

std::string EncodePng(const Picture& picture) {
    std::string header;
    AppendBig(header, static_cast<std::uint32_t>(picture.width));
    AppendBig(header, static_cast<std::uint32_t>(picture.height));
    header.append("\x08\x02\0\0\0", 5);  // 8 bits, RGB, the only methods there are, not interlaced

    std::string rows;
    const auto width = static_cast<std::size_t>(picture.width);
    rows.reserve((width * 3 + 1) * static_cast<std::size_t>(picture.height));
    for (std::size_t index = 0; index < picture.pixels.size(); ++index) {
        if (index % width == 0) {
            rows += '\0';  // this row is not filtered
        }
        for (int shift = 16; shift >= 0; shift -= 8) {
            rows += static_cast<char>(picture.pixels[index] >> shift & 0xFF);
        }
    }

    std::string out("\x89PNG\r\n\x1A\n");
    AppendChunk(out, "IHDR", header);
    AppendChunk(out, "IDAT", Store(rows));
    AppendChunk(out, "IEND", "");
    return out;
}

bool WritePng(const std::string& file, const Picture& picture) {
    const std::string bytes = EncodePng(picture);
    std::FILE* stream = std::fopen(file.c_str(), "wb");
    if (stream == nullptr) {
        return false;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size();
    return std::fclose(stream) == 0 && written;
}

}  // namespace gallery
