// A folder with 10,000 folders in it: opened in the folder tree list, beside a plain walk over the same directories; and
// 10,000 items scrolled in a tree view.
#include <cvutil32/treelist.h>

#include <windows.h>

#include <benchmark/benchmark.h>
#include <commctrl.h>

#include <dirent.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

constexpr int kFolders = 10000;

/// The folders, made once: every second one has a folder below it.
class Folders {
  public:
    Folders() {
        char name[] = "/tmp/cvutil32-bench-XXXXXX";
        host = mkdtemp(name);
        for (int i = 0; i < kFolders; ++i) {
            std::filesystem::create_directories(host + "/Folder " + std::to_string(i) + (i % 2 ? "/below" : ""));
        }
    }
    ~Folders() {
        std::filesystem::remove_all(host);
    }
    Folders(Folders const&) = delete;
    Folders& operator=(Folders const&) = delete;

    std::string host;
};

Folders const& TheFolders() {
    static Folders const folders;
    return folders;
}

/// What any program has to do to know whether each folder holds folders: open it and read it to the first one.
int Walk(std::string const& path) {
    int found = 0;
    DIR* const outer = opendir(path.c_str());
    while (dirent const* entry = readdir(outer)) {
        if (entry->d_name[0] == '.' || entry->d_type != DT_DIR) {
            continue;
        }
        DIR* const inner = opendir((path + '/' + entry->d_name).c_str());
        while (dirent const* below = readdir(inner)) {
            if (below->d_name[0] != '.' && below->d_type == DT_DIR) {
                ++found;
                break;
            }
        }
        closedir(inner);
    }
    closedir(outer);
    return found;
}

void WalkDirectories(benchmark::State& state) {
    std::string const path = TheFolders().host;
    for (auto _ : state) {
        if (Walk(path) != kFolders / 2) {
            state.SkipWithError("wrong count");
        }
    }
}
BENCHMARK(WalkDirectories)->Unit(benchmark::kMillisecond);

class Window {
  public:
    explicit Window(LPCSTR className, DWORD style = 0)
        : parent(CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 400, nullptr, nullptr, nullptr,
                                 nullptr)),
          window(CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 0, 0, 300, 400, parent, nullptr,
                                 nullptr, nullptr)) {}
    ~Window() {
        DestroyWindow(parent);
    }
    Window(Window const&) = delete;
    Window& operator=(Window const&) = delete;

    HWND parent;
    HWND window;
};

/// Goes down to a folder by the names on its path. @return its item.
HTREEITEM Reach(HWND control, std::string const& path) {
    HWND const tree = GetWindow(control, GW_CHILD);
    auto next = [=](WPARAM code, HTREEITEM item) {
        return reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
    };
    HTREEITEM item = next(TVGN_CHILD, next(TVGN_ROOT, nullptr));
    while (item) {
        char folder[MAX_PATH] = "";
        SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
        TREELIST_GetFolder(control, folder);
        std::string const found = folder;
        if (found == path) {
            return item;
        }
        bool const above = path.starts_with(found) && (found.ends_with('\\') || path[found.size()] == '\\');
        if (above) {
            SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
        }
        item = next(above ? TVGN_CHILD : TVGN_NEXT, item);
    }
    return nullptr;
}

void OpenInTreeList(benchmark::State& state) {
    std::string path = "Z:" + TheFolders().host;
    for (char& ch : path) {
        ch = ch == '/' ? '\\' : ch;
    }
    for (auto _ : state) {
        state.PauseTiming();
        {
            Window const host(TREELIST_CLASSNAME);
            HTREEITEM const item = Reach(host.window, path);
            HWND const tree = GetWindow(host.window, GW_CHILD);
            UpdateWindow(tree);
            std::size_t const before = mallinfo2().uordblks;
            state.ResumeTiming();
            SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
            UpdateWindow(tree);
            state.PauseTiming();
            state.counters["KiB"] = static_cast<double>(mallinfo2().uordblks - before) / 1024;
            if (SendMessageA(tree, TVM_GETCOUNT, 0, 0) < kFolders) {
                state.SkipWithError("folders are missing");
            }
        }
        state.ResumeTiming();
    }
}
BENCHMARK(OpenInTreeList)->Unit(benchmark::kMillisecond);

void ScrollTenThousand(benchmark::State& state) {
    InitCommonControls();
    Window const host(WC_TREEVIEWA, TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT);
    for (int i = 0; i < kFolders; ++i) {
        std::string text = "Item " + std::to_string(i);
        TVINSERTSTRUCTA insert = {};
        insert.hParent = TVI_ROOT;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT;
        insert.item.pszText = text.data();
        SendMessageA(host.window, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert));
    }
    UpdateWindow(host.window);
    int lines = 0;
    for (auto _ : state) {
        // From end to end and back, a line at a time.
        SendMessageA(host.window, WM_VSCROLL, lines++ / kFolders % 2 ? SB_LINEUP : SB_LINEDOWN, 0);
    }
}
BENCHMARK(ScrollTenThousand)->Unit(benchmark::kMicrosecond);

}  // namespace
