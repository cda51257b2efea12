// The shell's namespace: what folders hold, names that lead back, attributes, and that nothing is left over.
#include <windows.h>

#include <cvplatform.h>
#include <shellapi.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::u16string Wide(const std::string& text) {
    std::u16string wide(MAX_PATH, u'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

class ShellTest : public ::testing::Test {
  protected:
    void SetUp() override {
        objects_ = CvPlatformCount(CV_PLATFORM_COMPONENT_OBJECTS);
        blocks_ = CvPlatformCount(CV_PLATFORM_SHELL_BLOCKS);
        root_ = fs::temp_directory_path() / ("cvshell" + std::to_string(getpid()));
        fs::remove_all(root_);
        fs::create_directories(root_);
        ASSERT_EQ(S_OK, SHGetDesktopFolder(&desktop_));
        ASSERT_EQ(S_OK, SHGetMalloc(&allocator_));
    }
    void TearDown() override {
        CvPlatformFailShell(0);
        desktop_->Release();
        EXPECT_EQ(objects_, CvPlatformCount(CV_PLATFORM_COMPONENT_OBJECTS));
        EXPECT_EQ(blocks_, CvPlatformCount(CV_PLATFORM_SHELL_BLOCKS));
        fs::permissions(root_ / "locked", fs::perms::owner_all, ignored_);
        fs::remove_all(root_);
    }

    std::string Path(const std::string& below = {}) const {
        std::string path = "Z:" + (root_ / below).string();
        std::replace(path.begin(), path.end(), '/', '\\');
        while (path.ends_with('\\')) {
            path.pop_back();
        }
        return path;
    }
    LPITEMIDLIST Parse(const std::string& path) {
        LPITEMIDLIST list = nullptr;
        std::u16string wide = Wide(path);
        const HRESULT result = desktop_->ParseDisplayName(nullptr, nullptr, wide.data(), nullptr, &list, nullptr);
        EXPECT_EQ(SUCCEEDED(result), list != nullptr);
        return list;
    }
    IShellFolder* Bind(const std::string& path) {
        const LPITEMIDLIST list = Parse(path);
        void* folder = nullptr;
        if (list) {
            desktop_->BindToObject(list, nullptr, IID_IShellFolder, &folder);
            allocator_->Free(list);
        }
        return static_cast<IShellFolder*>(folder);
    }
    static std::string NameOf(IShellFolder* folder, LPCITEMIDLIST item, DWORD form) {
        STRRET name{};
        return folder->GetDisplayNameOf(item, form, &name) == S_OK && name.uType == STRRET_CSTR ? name.cStr : "(none)";
    }
    /// The names in a folder, '/' behind those of folders, '+' behind those with folders below.
    std::string List(IShellFolder* folder, DWORD flags = SHCONTF_FOLDERS | SHCONTF_NONFOLDERS) {
        IEnumIDList* items = nullptr;
        if (FAILED(folder->EnumObjects(nullptr, flags, &items))) {
            return "(failed)";
        }
        std::string names;
        LPITEMIDLIST item = nullptr;
        while (items->Next(1, &item, nullptr) == S_OK) {
            LPCITEMIDLIST one = item;
            SFGAOF attributes = SFGAO_FOLDER | SFGAO_HASSUBFOLDER;
            EXPECT_EQ(S_OK, folder->GetAttributesOf(1, &one, &attributes));
            names += NameOf(folder, item, SHGDN_NORMAL) + (attributes & SFGAO_FOLDER ? "/" : "") +
                     (attributes & SFGAO_HASSUBFOLDER ? "+ " : " ");
            allocator_->Free(item);
        }
        items->Release();
        return names;
    }
    std::string ListPath(const std::string& path, DWORD flags = SHCONTF_FOLDERS | SHCONTF_NONFOLDERS) {
        IShellFolder* const folder = Bind(path);
        if (!folder) {
            return "(unbound)";
        }
        const std::string names = List(folder, flags);
        folder->Release();
        return names;
    }

    fs::path root_;
    IShellFolder* desktop_ = nullptr;
    IMalloc* allocator_ = nullptr;
    std::size_t objects_ = 0;
    std::size_t blocks_ = 0;
    std::error_code ignored_;
};

TEST_F(ShellTest, TheDesktopHoldsTheComputerWithItsDrives) {
    EXPECT_TRUE(List(desktop_).starts_with("My Computer/+ "));
    const std::string drives = ListPath("::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");
    EXPECT_NE(std::string::npos, drives.find("(C:)/"));
    EXPECT_NE(std::string::npos, drives.find("(Z:)/+"));
}

TEST_F(ShellTest, FoldersComeBeforeFilesAndHiddenItemsAreLeftOut) {
    fs::create_directories(root_ / "one" / "below");
    fs::create_directories(root_ / "two" / ".below");
    fs::create_directory(root_ / ".hidden");
    fs::create_directory(root_ / "a folder; with \"odd\" name");
    std::ofstream(root_ / "file.txt") << "x";
    EXPECT_EQ("a folder; with \"odd\" name/ one/+ two/ file.txt ", ListPath(Path()));
    EXPECT_EQ("file.txt ", ListPath(Path(), SHCONTF_NONFOLDERS));
}

TEST_F(ShellTest, NamesLeadBack) {
    fs::create_directory(root_ / "Case");
    fs::create_directory(root_ / "case");
    fs::create_directory(root_ / "caf\xC3\xA9");
    fs::create_directory(root_ / std::string(200, 'n'));
    IShellFolder* const folder = Bind(Path());
    ASSERT_NE(nullptr, folder);
    IEnumIDList* items = nullptr;
    ASSERT_EQ(S_OK, folder->EnumObjects(nullptr, SHCONTF_FOLDERS, &items));
    LPITEMIDLIST item = nullptr;
    int count = 0;
    for (; items->Next(1, &item, nullptr) == S_OK; ++count) {
        const std::string name = NameOf(folder, item, SHGDN_FORPARSING);
        const LPITEMIDLIST list = Parse(name);
        ASSERT_NE(nullptr, list) << name;
        char path[MAX_PATH];
        EXPECT_TRUE(SHGetPathFromIDListA(list, path));
        EXPECT_EQ(name, path);
        allocator_->Free(list);
        allocator_->Free(item);
    }
    EXPECT_EQ(4, count);
    items->Release();
    folder->Release();
    // Any case will do where there is only one such name.
    const LPITEMIDLIST list = Parse(Path("CAF\xC9"));
    ASSERT_NE(nullptr, list);
    char path[MAX_PATH];
    EXPECT_TRUE(SHGetPathFromIDListA(list, path));
    EXPECT_EQ(Path("caf\xE9"), path);
    allocator_->Free(list);
    for (const char* wrong : {"", "Q:\\", "Z:\\no\\such", "relative\\x", "::{1}", "Z:\\..\\etc"}) {
        EXPECT_EQ(nullptr, Parse(wrong)) << wrong;
    }
}

TEST_F(ShellTest, TheComponentLibraryCountsItsStarts) {
    CvPlatformFailShell(1);
    EXPECT_TRUE(FAILED(CoInitialize(nullptr)));
    EXPECT_EQ(S_OK, CoInitialize(nullptr));
    EXPECT_EQ(S_FALSE, CoInitialize(nullptr));
    CoUninitialize();
    CoUninitialize();
}

TEST_F(ShellTest, FoldersThatCannotBeReadOrAreGone) {
    fs::create_directories(root_ / "gone");
    fs::create_directory_symlink(root_, root_ / "loop");
    fs::create_directory_symlink(root_ / "nowhere", root_ / "broken");
    EXPECT_EQ("gone/ loop/+ broken ", ListPath(Path()));
    // A link to a folder above goes round and round, one level at a time.
    EXPECT_EQ("gone/ loop/+ broken ", ListPath(Path("loop/loop/loop")));
    const LPITEMIDLIST list = Parse(Path("gone"));
    fs::remove(root_ / "gone");
    void* folder = nullptr;
    EXPECT_TRUE(FAILED(desktop_->BindToObject(list, nullptr, IID_IShellFolder, &folder)));
    EXPECT_EQ(nullptr, folder);
    allocator_->Free(list);
    if (geteuid() != 0) {
        fs::create_directory(root_ / "locked");
        fs::permissions(root_ / "locked", fs::perms::none);
        EXPECT_EQ("(failed)", ListPath(Path("locked")));
    }
}

TEST_F(ShellTest, ANameThatIsTooLongForAPathIsShownAllTheSame) {
    const std::string name(255, 'n');
    fs::create_directory(root_ / name);
    IShellFolder* const folder = Bind(Path());
    ASSERT_NE(nullptr, folder);
    IEnumIDList* items = nullptr;
    ASSERT_EQ(S_OK, folder->EnumObjects(nullptr, SHCONTF_FOLDERS, &items));
    LPITEMIDLIST item = nullptr;
    ASSERT_EQ(S_OK, items->Next(1, &item, nullptr));
    EXPECT_EQ(name, NameOf(folder, item, SHGDN_NORMAL));
    EXPECT_EQ("(none)", NameOf(folder, item, SHGDN_FORPARSING));
    allocator_->Free(item);
    items->Release();
    folder->Release();
}

TEST_F(ShellTest, ADriveWithoutAMediumIsThereAndCannotBeOpened) {
    const char* home = std::getenv("CVUTIL32_HOME");
    if (!home) {
        GTEST_SKIP() << "needs a state folder of its own";
    }
    const fs::path drive = fs::path(home) / "drive_b";
    fs::create_directories(home);
    fs::remove(drive);
    fs::create_directory_symlink("/nowhere/at/all", drive);
    const std::string drives = ListPath("::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");
    EXPECT_EQ("(unbound)", ListPath("B:\\"));
    fs::remove(drive);
    EXPECT_NE(std::string::npos, drives.find("Disk (B:)/+")) << drives;
}

TEST_F(ShellTest, ListsFromElsewhereAreRefused) {
    // A size that leads nowhere, a kind that there is not, a name that climbs, a name without an end.
    const std::vector<std::vector<BYTE>> wrong = {
        {3, 0, 0x1F, 0, 0},
        {6, 0, 0x77, 'x', 0, 0, 0, 0},
        {6, 0, 0x31, '.', '.', 0, 0, 0},
        {6, 0, 0x31, 'a', 'b', 'c', 0, 0},
        {6, 0, 0x23, '!', 0, 0, 0, 0},
    };
    for (const auto& bytes : wrong) {
        const auto* list = reinterpret_cast<LPCITEMIDLIST>(bytes.data());
        char path[MAX_PATH];
        void* folder = nullptr;
        EXPECT_FALSE(SHGetPathFromIDListA(list, path));
        EXPECT_TRUE(FAILED(desktop_->BindToObject(list, nullptr, IID_IShellFolder, &folder)));
        EXPECT_EQ("(none)", NameOf(desktop_, list, SHGDN_NORMAL));
    }
}

}  // namespace
