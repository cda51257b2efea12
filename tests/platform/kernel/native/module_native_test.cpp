// Modules that announce themselves, with whole and with damaged resources.
#include <gtest/gtest.h>
#include <windows.h>

#include <dlfcn.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/kernel/modules/start/module_registration.h"
#include "tests/support/temp_folder.h"

namespace {

using testing_support::HostPathOf;
using testing_support::TempFolder;
using File = std::vector<unsigned char>;

void Put(File& file, DWORD value, int size) {
    for (int i = 0; i < size; ++i) {
        file.push_back(static_cast<unsigned char>(value >> (8 * i)));
    }
}

// One entry of a compiled script, its type and name numbers.
void PutEntry(File& file, WORD type, WORD name, const std::string& data) {
    Put(file, static_cast<DWORD>(data.size()), 4);
    Put(file, 32, 4);
    Put(file, 0xFFFFu | DWORD{type} << 16, 4);
    Put(file, 0xFFFFu | DWORD{name} << 16, 4);
    Put(file, 0, 4);
    Put(file, 0x1030, 2);
    Put(file, 0x0409, 2);
    Put(file, 0, 4);
    Put(file, 0, 4);
    file.insert(file.end(), data.begin(), data.end());
    while (file.size() % 4) {
        file.push_back(0);
    }
}

// A block of strings that ends after its first one.
std::string Block(const std::string& text) {
    std::string block{static_cast<char>(text.size()), '\0'};
    for (const char character : text) {
        block += {character, '\0'};
    }
    return block;
}

File TwoEntries() {
    File file;
    PutEntry(file, 0, 0, "");
    PutEntry(file, 6, 1, Block("first"));
    PutEntry(file, 6, 2, Block("second!"));
    return file;
}

class Attached {
  public:
    explicit Attached(const File& file) : bytes_(new unsigned char[file.size()]) {
        // In memory of its own size, so that the sanitizer sees a read past the end.
        std::copy(file.begin(), file.end(), bytes_.get());
        CvModuleStart start{};
        start.resources = bytes_.get();
        start.resourcesEnd = bytes_.get() + file.size();
        start.address = reinterpret_cast<const void*>(&GlobalAlloc);  // any module but the application
        instance_ = CvPlatformAttachModule(&start);
    }
    ~Attached() {
        CvPlatformDetachModule(instance_);
    }
    HINSTANCE instance() const {
        return instance_;
    }
    /// The first string of a block.
    std::string First(int block) const {
        char text[16] = "";
        LoadStringA(instance_, static_cast<UINT>(block - 1) * 16, text, sizeof text);
        return text;
    }

  private:
    std::unique_ptr<unsigned char[]> bytes_;
    HINSTANCE instance_;
};

TEST(DamagedResources, EveryTruncationKeepsWhatIsWhole) {
    const File whole = TwoEntries();
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const Attached module(File(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_EQ(module.First(1), size >= 32 + 44 ? "first" : "") << size;
        EXPECT_EQ(module.First(2), size >= 32 + 44 + 48 ? "second!" : "") << size;
    }
}

TEST(DamagedResources, EveryWrongByteIsSurvived) {
    const File whole = TwoEntries();
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const unsigned char value : {0x00, 0x7F, 0x80, 0xFF}) {
            File file = whole;
            file[at] = value;
            const Attached module(file);
            for (int name = 1; name <= 2; ++name) {
                module.First(name);
            }
        }
    }
}

TEST(DamagedResources, AStringBlockThatLiesHasNoStrings) {
    File file;
    PutEntry(file, 6, 1,
             std::string("\x02\0a\0b\0\xFF\x7F"
                         "c\0",
                         10));
    const Attached module(file);
    char buffer[16];
    EXPECT_EQ(LoadStringA(module.instance(), 0, buffer, sizeof buffer), 2);
    EXPECT_STREQ(buffer, "ab");
    EXPECT_EQ(LoadStringA(module.instance(), 1, buffer, sizeof buffer), 0);
    EXPECT_EQ(LoadStringA(module.instance(), 2, buffer, sizeof buffer), 0);
}

TEST(ModulesDeathTest, ALibraryThatRefusesToStartEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            CvModuleStart start{};
            start.entry = [](HINSTANCE, DWORD, LPVOID) -> BOOL { return FALSE; };
            start.address = reinterpret_cast<const void*>(&GlobalAlloc);
            CvPlatformAttachModule(&start);
        },
        ::testing::ExitedWithCode(1), "could not be initialised");
}

// Any library of the host, under a name with a version: what an installed package has.
TEST(Modules, LibrariesAreFoundInAnyCaseAndVersion) {
    const TempFolder folder;
    Dl_info any{};
    ASSERT_NE(dladdr(dlsym(RTLD_DEFAULT, "sqlite3_libversion"), &any), 0);
    std::filesystem::copy_file(std::filesystem::canonical(any.dli_fname), HostPathOf(folder.Path("libCvNamed.so.1.2")));
    const HMODULE library = LoadLibraryA(folder.Path("CVNAMED.DLL").c_str());
    ASSERT_NE(library, nullptr);
    for (const std::string& name : {std::string("cvnamed"), std::string("CVNAMED.dll"), folder.Path("cvNamed"),
                                    folder.Path("libcvnamed.so.1.2")}) {
        EXPECT_EQ(GetModuleHandleA(name.c_str()), library) << name;
        EXPECT_EQ(LoadLibraryA(name.c_str()), library) << name;
        EXPECT_TRUE(FreeLibrary(library));
    }
    for (const std::string& name : {std::string("cvnamed.exe"), std::string("named"), folder.Path("other\\cvnamed")}) {
        EXPECT_EQ(GetModuleHandleA(name.c_str()), nullptr) << name;
    }
    EXPECT_TRUE(FreeLibrary(library));
    EXPECT_EQ(GetModuleHandleA("cvnamed"), nullptr) << "the last use is given back";
    EXPECT_EQ(LoadLibraryA(folder.Path("none").c_str()), nullptr);
}

}  // namespace
