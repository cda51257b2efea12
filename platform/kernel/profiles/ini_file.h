/// @file ini_file.h
/// The text of a profile file, taken apart into lines that keep every byte they had.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform::kernel {

class IniFile {
  public:
    explicit IniFile(std::string_view text = {});

    /// @returns the value of a key, without blanks around it and without one pair of quotes; null when there is none.
    const std::string* Find(std::string_view section, std::string_view key) const;

    /// Sets a key, in place where it exists; the section is added at the end when it is missing.
    void Set(std::string_view section, std::string_view key, std::string_view value);
    /// @returns whether there was one.
    bool RemoveKey(std::string_view section, std::string_view key);
    bool RemoveSection(std::string_view section);

    /// @returns the whole text.
    std::string Text() const;

  private:
    struct Line {
        std::string raw;  ///< with its line end
        bool isSection = false;
        bool isKey = false;
        std::string name;  ///< of the section or key
        std::string value;
    };

    static Line Parse(std::string_view raw);
    std::size_t SectionStart(std::string_view section) const;  ///< index of the header line, or the number of lines
    std::size_t SectionEnd(std::size_t start) const;
    std::size_t KeyLine(std::string_view section, std::string_view key) const;

    std::vector<Line> lines_;
    std::string lineEnd_ = "\r\n";
};

}  // namespace platform::kernel
