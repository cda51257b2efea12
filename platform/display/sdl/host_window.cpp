#include "display/sdl/host_window.h"

#include "display/sdl/scaling.h"

#include <algorithm>
#include <utility>

namespace platform::display {
namespace {

constexpr std::size_t kMostAsked = 64;

}  // namespace

HostWindow::~HostWindow() {
    if (window != nullptr) {
        SDL_DestroyWindow(window);
    }
}

bool HostWindow::Open(const Pane& shown, SDL_Window* ownerWindow, bool active) {
    pane = shown;
    reported = pane.heard;
    owner = ownerWindow;
    actual = OnHost(pane.place);
    Uint32 flags = SDL_WINDOW_HIDDEN | SDL_WINDOW_BORDERLESS | SDL_WINDOW_RESIZABLE;
    if (pane.popup) {
        flags |= SDL_WINDOW_POPUP_MENU;
    } else if (pane.topmost) {
        flags |= SDL_WINDOW_ALWAYS_ON_TOP;
    }
    window = SDL_CreateWindow(pane.title.c_str(), actual.left, actual.top, actual.Width(), actual.Height(), flags);
    if (window == nullptr) {
        return false;
    }
    host.Describe(window, {owner, pane.minimises, pane.sizes, active});
    AskPlace(actual);
    return true;
}

void HostWindow::AskPlace(const Box& place) {
    asked.push_back({place.left, place.top});
    if (asked.size() > kMostAsked) {
        asked.pop_front();
    }
    if (const SDL_Point size{place.Width(), place.Height()}; size.x != askedSize.x || size.y != askedSize.y) {
        askedSize = size;
        host.Limit(window, place, pane.sizes);
    }
    host.Place(window, place);
}

void HostWindow::Appear() {
    host.Map(window);
    exposed = true;
}

void HostWindow::Follow(const Pane& now, SDL_Window* ownerWindow, bool managed) {
    const Pane before = std::exchange(pane, now);
    const bool described = before.minimises == pane.minimises && before.sizes == pane.sizes && owner == ownerWindow;
    owner = ownerWindow;
    if (!described) {
        host.Describe(window, {owner, pane.minimises, pane.sizes, true});
        host.Limit(window, OnHost(pane.place), pane.sizes);
    }
    if (before.title != pane.title) {
        SDL_SetWindowTitle(window, pane.title.c_str());
    }
    if (before.topmost != pane.topmost && !pane.popup) {
        SDL_SetWindowAlwaysOnTop(window, pane.topmost ? SDL_TRUE : SDL_FALSE);
    }
    // What the person does comes to the pane some time later; until then its state is an older one.
    const bool wanted = managed && pane.minimised;
    if (wanted != minimised && static_cast<int>(pane.heard - reported) >= 0) {
        AskState(wanted);
    }
    if (wanted) {
        return;
    }
    if (before.place != pane.place) {
        AskPlace(OnHost(pane.place));
        actual = OnHost(pane.place);
    }
}

void HostWindow::SetIcon(const IconImage& image) {
    auto* pixels = const_cast<std::uint32_t*>(image.pixels.data());
    SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormatFrom(pixels, image.width, image.height, 32, image.width * 4,
                                                              SDL_PIXELFORMAT_ARGB8888);
    if (surface != nullptr) {
        SDL_SetWindowIcon(window, surface);
        SDL_FreeSurface(surface);
    }
}

// Whole multiples keep every pixel sharp.
void HostWindow::Blit(SDL_Surface* picture, SDL_Surface* surface, const Box& part, const Box& place) {
    SDL_Rect from{part.left, part.top, part.Width(), part.Height()};
    SDL_Rect to{(part.left - place.left) * scale, (part.top - place.top) * scale, part.Width() * scale,
                part.Height() * scale};
    const SDL_Rect shown = to;
    if (scale == 1) {
        SDL_BlitSurface(picture, &from, surface, &to);
    } else {
        SDL_BlitScaled(picture, &from, surface, &to);
    }
    const SDL_Rect all{0, 0, surface->w, surface->h};
    SDL_Rect inside{};
    if (SDL_IntersectRect(&shown, &all, &inside) == SDL_TRUE) {
        touched.push_back(inside);
    }
}

void HostWindow::Copy(const Picture& picture, const Box& place, const std::vector<Box>& parts) {
    SDL_Surface* surface = SDL_GetWindowSurface(window);
    if (surface == nullptr || (parts.empty() && !fresh)) {
        return;
    }
    auto* pixels = const_cast<std::uint32_t*>(picture.pixels);
    SDL_Surface* all = SDL_CreateRGBSurfaceWithFormatFrom(pixels, picture.width, picture.height, 32, picture.stride * 4,
                                                          SDL_PIXELFORMAT_RGB888);
    if (all == nullptr) {
        return;
    }
    const Box room = Cut(place, {0, 0, picture.width, picture.height});
    if (fresh) {
        Blit(all, surface, room, place);
        fresh = false;
        exposed = true;
    } else {
        for (const Box& part : parts) {
            if (const Box inside = Cut(part, room); !inside.Empty()) {
                Blit(all, surface, inside, place);
            }
        }
    }
    SDL_FreeSurface(all);
}

bool HostWindow::Show() {
    // A window that was sized since has lost its picture, and waits for the next one.
    if (fresh) {
        return false;
    }
    const bool shown = exposed ? SDL_UpdateWindowSurface(window) == 0
                               : touched.empty() || SDL_UpdateWindowSurfaceRects(window, touched.data(),
                                                                                 static_cast<int>(touched.size())) == 0;
    touched.clear();
    exposed = !shown;
    return shown;
}

bool HostWindow::Moved(SDL_Point corner) {
    actual = {corner.x, corner.y, corner.x + actual.Width(), corner.y + actual.Height()};
    const auto found = std::find_if(asked.begin(), asked.end(),
                                    [&](SDL_Point each) { return each.x == corner.x && each.y == corner.y; });
    if (found == asked.end()) {
        asked.clear();
        return !minimised;
    }
    asked.erase(asked.begin(), found);  // the host may say it twice
    return false;
}

bool HostWindow::Sized(int width, int height) {
    actual.right = actual.left + width;
    actual.bottom = actual.top + height;
    fresh = true;
    return (width != askedSize.x || height != askedSize.y) && !minimised && pane.sizes;
}

bool HostWindow::StateChanged(bool focused) {
    const bool is = host.IsMinimised(window);
    const bool restored = focused && !is;
    if (deadline && is != minimised && !restored && !IsOverdue()) {
        return false;  // it speaks of something else
    }
    deadline.reset();
    return std::exchange(minimised, is) != is;
}

void HostWindow::AskState(bool wanted) {
    minimised = wanted;
    deadline = SDL_GetTicks() + kAnswerPatience;
    if (wanted) {
        host.Minimise(window);
    } else {
        host.Map(window);
    }
}

Box HostWindow::Place() const {
    return {RoundDown(actual.left, scale), RoundDown(actual.top, scale),
            RoundDown(actual.left, scale) + actual.Width() / scale,
            RoundDown(actual.top, scale) + actual.Height() / scale};
}

}  // namespace platform::display
