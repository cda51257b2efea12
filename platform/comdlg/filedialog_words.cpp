// What the open-file dialog says, in the system's words.
#include <algorithm>

#include "comdlg/filedialog.h"

namespace platform::comdlg {
namespace {

const char* WordsOf(Refusal why) {
    switch (why) {
        case Refusal::NoPath:
            return "Path does not exist.\nPlease verify the correct path was given.";
        case Refusal::NoFile:
            return "File not found.\nPlease verify the correct file name was given.";
        case Refusal::BadName:
            break;
    }
    return "The above file name is invalid.";
}

const char* WordsOf(HRESULT why) {
    switch (why) {
        case HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED):
            return "Access is denied.";
        case kNoFolder:
            return "The system cannot find the path specified.";
        default:
            return "The folder cannot be read.";
    }
}

/// A name that somebody has typed, short enough for a line on the screen: its middle is left out.
std::string Shown(const std::string& name) {
    constexpr std::ptrdiff_t kStart = 40;
    constexpr std::ptrdiff_t kRest = 40;
    const char* const first = name.c_str();
    const char* const last = first + name.size();
    if (last - first <= kStart + kRest) {
        return name;
    }
    const char* start = first;
    while (start - first < kStart) {
        start = CharNextA(start);
    }
    const char* rest = start;
    while (last - rest > kRest) {
        rest = CharNextA(rest);
    }
    return std::string(first, start) + "..." + rest;
}

void Tell(const FileDialog& dialog, const std::string& text) {
    MessageBoxA(dialog.window, text.c_str(), TextOf(dialog.window).c_str(), MB_OK | MB_ICONEXCLAMATION);
}

/// @returns whether a full path has characters that no name has.
bool HasForbidden(const std::string& path) {
    return path.find_first_of("<>|\"*?:", 2) != path.npos ||
           std::any_of(path.begin(), path.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

}  // namespace

void SelectName(const FileDialog& dialog) {
    if (const HWND field = dialog.Control(edt1)) {
        SetFocus(field);
        SendMessageA(field, EM_SETSEL, 0, -1);
    }
}

bool Exists(const std::string& path) {
    return !TrailOf(path).empty();
}

Choice Split(const std::string& path) {
    const std::size_t at = path.rfind('\\');
    return {path.substr(0, at == 2 ? 3 : at), {path.substr(at + 1)}};
}

std::optional<Refusal> WhyRefused(const std::string& path, bool mustExist) {
    if (Exists(path)) {
        return std::nullopt;
    }
    if (HasForbidden(path)) {
        return Refusal::BadName;
    }
    if (!mustExist) {
        return std::nullopt;
    }
    return Exists(Split(path).folder) ? Refusal::NoFile : Refusal::NoPath;
}

void TellRefused(const FileDialog& dialog, const std::string& name, Refusal why) {
    Tell(dialog, Shown(name) + '\n' + WordsOf(why));
    SelectName(dialog);
}

void TellRefusedByHook(const FileDialog& dialog, const std::vector<std::string>& paths) {
    if (!IsWindowVisible(dialog.window)) {
        return;  // it has ended the dialog instead
    }
    if (dialog.interrupted) {
        SelectName(dialog);
        return;
    }
    for (const std::string& path : paths) {
        if (const auto why = WhyRefused(path, true)) {
            TellRefused(dialog, path, *why);
            return;
        }
    }
    TellRefused(dialog, paths.front(), Refusal::BadName);
}

void TellNotAccessible(const FileDialog& dialog, const std::string& folder, HRESULT why) {
    Tell(dialog, Shown(folder) + " is not accessible.\n\n" + WordsOf(why));
}

}  // namespace platform::comdlg
