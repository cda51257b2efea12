#include "gallery/capture.h"
#include "gallery/desktop.h"
#include "gallery/first_page.h"
#include "gallery/options.h"
#include "gallery/png.h"
#include "gallery/resource.h"
#include "gallery/text.h"

#include <windows.h>

#include <cstdio>
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
        if (!IsDialogMessageA(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
}

int WritePicture(HINSTANCE instance, HWND dialog, const std::string& file) {
    const auto picture = CaptureWindow(dialog);
    DestroyWindow(dialog);
    return picture && WritePng(file, *picture) ? kDone : Fail(LoadText(instance, IDS_CANNOT_WRITE) + file);
}

int Show(HINSTANCE instance, const Options& options) {
    Result result;
    HWND dialog = OpenFirstPage(instance, result);
    if (dialog == nullptr) {
        return Fail(LoadText(instance, IDS_NO_WINDOW));
    }
    ShowPainted(dialog);
    if (!options.captureFile.empty()) {
        return WritePicture(instance, dialog, options.captureFile);
    }
    if (!HasDesktop()) {
        // Standard output stays empty: it is for the date that somebody chose.
        const std::string file = PictureFile();
        const int code = WritePicture(instance, dialog, file);
        if (code == kDone) {
            Say(LoadText(instance, IDS_NO_DESKTOP) + file);
        }
        return code;
    }
    RunDialog(dialog);
    if (!result.accepted) {
        return kCancelled;
    }
    std::printf("%s\n", result.isoDate.c_str());
    return std::fflush(stdout) == 0 ? kDone : kFailed;
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
            return Fail(LoadText(instance, IDS_UNKNOWN_OPTION) + options.unknown);
        case Options::Action::FileMissing:
            return Fail(LoadText(instance, IDS_NO_FILE));
        case Options::Action::Show:
            break;
    }
    return Show(instance, options);
}
