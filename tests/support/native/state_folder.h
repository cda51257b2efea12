/// @file state_folder.h
/// Tests of what lies in the state folder, as files.
#pragma once

#include <gtest/gtest.h>

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

namespace testing_support {

/// The state folder of a test. It goes with the test, or with its process where that ends within the test (not with one that was
/// forked from it).
class OwnStateFolder {
  public:
    OwnStateFolder() : process_(getpid()) {
        char name[] = "/tmp/cvutil32-state-XXXXXX";
        path_ = mkdtemp(name);
        char const* const home = getenv("CVUTIL32_HOME");
        former_ = home ? home : "";
        setenv("CVUTIL32_HOME", path_.c_str(), 1);
    }
    ~OwnStateFolder() {
        if (getpid() == process_) {
            Leave();
            std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
            std::filesystem::remove_all(path_);
        }
    }
    OwnStateFolder(OwnStateFolder const&) = delete;
    OwnStateFolder& operator=(OwnStateFolder const&) = delete;

    /// Goes back to the state folder that was in use before.
    void Leave() const {
        former_.empty() ? unsetenv("CVUTIL32_HOME") : setenv("CVUTIL32_HOME", former_.c_str(), 1);
    }
    std::filesystem::path const& path() const {
        return path_;
    }

  private:
    pid_t process_;
    std::filesystem::path path_;
    std::string former_;
};

/// A test with a state folder of its own.
class StateFolder : public ::testing::Test {
  protected:
    /// @param file  the name of the file in it that the test is about.
    explicit StateFolder(std::string file) : folder_(own_.emplace().path()), file_(std::move(file)) {}
    ~StateFolder() override {
        own_.reset();
    }
    static void Leave() {
        own_->Leave();
    }

    std::filesystem::path File() const {
        return folder_ / file_;
    }
    void Put(std::string const& text) const {
        std::ofstream(File(), std::ios::binary) << text;
    }
    std::string Text() const {
        std::ostringstream text;
        text << std::ifstream(File(), std::ios::binary).rdbuf();
        return text.str();
    }

    std::filesystem::path const folder_;

  private:
    static inline std::optional<OwnStateFolder> own_;
    std::string file_;
};

}  // namespace testing_support
