#include "gallery/capture.h"
#include "gallery/desktop.h"
#include "gallery/frame.h"
#include "gallery/options.h"
#include "gallery/pages.h"
#include "gallery/png.h"
#include "gallery/resource.h"
#include "gallery/text.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

using namespace gallery;

enum ExitCode { kDone = 0, kCancelled = 1, kFailed = 2 };

void Say(const std::string& line) {
    std::fprintf(stderr, "%s\n", line.c_str());
}

int Fail(const std::string& line) {
    Say(line);
    return kFailed;
}

// Shows the dialog and has every window of it paint itself: the first complete picture.
void ShowPainted(HWND dialog) {
    ShowWindow(dialog, SW_SHOWNORMAL);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void RunDialog(HWND dialog) {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (!TurnPageByKey(dialog, message) && !IsDialogMessageA(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        FollowFields(dialog);
    }
}

// -1 where there is no such page.
int PageByName(HINSTANCE instance, const std::string& name) {
    const auto pages = Pages();
    const auto page = std::ranges::find_if(pages, [&](const Page& candidate) {
        return lstrcmpiA(LoadText(instance, candidate.titleId).c_str(), name.c_str()) == 0;
    });
    return page == pages.end() ? -1 : static_cast<int>(page - pages.begin());
}

int WritePicture(HINSTANCE instance, HWND dialog, const std::string& file) {
    const auto picture = CaptureWindow(dialog);
    return picture && WritePng(file, *picture) ? kDone : Fail(LoadText(instance, IDS_CANNOT_WRITE) + file);
}

// A picture of every page, named after the page.
int WritePictures(HINSTANCE instance, HWND dialog, const std::filesystem::path& folder) {
    int index = 0;
    for (const Page& page : Pages()) {
        std::string name = LoadText(instance, page.titleId);
        std::ranges::replace(name, ' ', '-');
        CharLowerA(name.data());
        ShowPage(dialog, index++);
        RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        if (const int code = WritePicture(instance, dialog, (folder / (name + ".png")).string()); code != kDone) {
            return code;
        }
    }
    return kDone;
}

int Capture(HINSTANCE instance, HWND dialog, const std::string& path) {
    std::error_code none;
    return std::filesystem::is_directory(path, none) ? WritePictures(instance, dialog, path)
                                                     : WritePicture(instance, dialog, path);
}

// Ends at once with a picture. Standard output stays empty: it is for the date that somebody chose.
int ShowWithoutDesktop(HINSTANCE instance, HWND dialog) {
    const std::string file = PictureFile();
    const int code = WritePicture(instance, dialog, file);
    if (code == kDone) {
        Say(LoadText(instance, IDS_NO_DESKTOP) + file);
    }
    return code;
}

int ShowToPerson(HWND dialog, const Result& result) {
    RunDialog(dialog);
    if (!result.accepted) {
        return kCancelled;
    }
    std::printf("%s\n", result.isoDate.c_str());
    return std::fflush(stdout) == 0 ? kDone : kFailed;
}

int Show(HINSTANCE instance, const Options& options) {
    Result result;
    HWND dialog = OpenFrame(instance, result);
    if (dialog == nullptr) {
        return Fail(LoadText(instance, IDS_NO_WINDOW));
    }
    if (!options.pageName.empty() && !ShowPage(dialog, PageByName(instance, options.pageName))) {
        DestroyWindow(dialog);
        return Fail(LoadText(instance, IDS_NO_PAGE) + options.pageName);
    }
    ShowPainted(dialog);
    if (options.capturePath.empty() && HasDesktop()) {
        return ShowToPerson(dialog, result);
    }
    const int code = options.capturePath.empty() ? ShowWithoutDesktop(instance, dialog)
                                                 : Capture(instance, dialog, options.capturePath);
    DestroyWindow(dialog);
    return code;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int) {
    const Options options = ParseOptions(commandLine);
    switch (options.action) {
        case Options::Action::Help:
            std::fputs(LoadText(instance, IDS_USAGE).c_str(), stdout);
            return kDone;
        case Options::Action::Version:
            std::puts("gallery (CVUTIL32) " GALLERY_VERSION);
            return kDone;
        case Options::Action::UnknownOption:
            return Fail(LoadText(instance, IDS_UNKNOWN_OPTION) + options.wrong);
        case Options::Action::ValueMissing:
            return Fail(LoadText(instance, IDS_NO_VALUE) + options.wrong);
        case Options::Action::Show:
            break;
    }
    return Show(instance, options);
}
