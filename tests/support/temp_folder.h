// A folder of a test's own, which goes with all that is in it.
#pragma once

#include <filesystem>
#include <string>

namespace testing_support {

/// The host's path of a full Windows path: the same on Windows.
std::filesystem::path HostPathOf(std::string const& path);

class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(TempFolder const&) = delete;
    TempFolder& operator=(TempFolder const&) = delete;

    /// Windows path of the folder, or of something in it.
    std::string Path(std::string const& name = {}) const;
    /// Makes a file, with the folders that it lies in. @return its Windows path.
    std::string MakeFile(std::string const& name, std::string const& text = {}) const;
    /// Makes a folder. @return its Windows path.
    std::string MakeFolder(std::string const& name) const;

  private:
    std::string path_;
};

}  // namespace testing_support
