#include "display/sdl/view.h"

#include <algorithm>

namespace platform::display {

bool View::Attach(SDL_Window* target) {
    window = target;
    return SDL_GetWindowSurface(window) != nullptr;
}

SDL_Point View::ToPicture(int x, int y) const {
    int windowWidth = 0;
    int windowHeight = 0;
    SDL_GetWindowSize(window, &windowWidth, &windowHeight);
    const Placement placement(width, height, windowWidth, windowHeight);
    return {placement.PictureX(x), placement.PictureY(y)};
}

bool View::Draw(const Picture& picture, SDL_Surface* shown, const Placement& placement, const Box& part) {
    const Box target = placement.ToWindow(part);
    SDL_Rect to{target.left, target.top, target.Width(), target.Height()};
    if (!placement.Scales()) {
        auto* pixels = const_cast<std::uint32_t*>(picture.pixels);
        SDL_Surface* all = SDL_CreateRGBSurfaceWithFormatFrom(pixels, picture.width, picture.height, 32,
                                                              picture.stride * 4, SDL_PIXELFORMAT_RGB888);
        SDL_Rect from{part.left, part.top, part.Width(), part.Height()};
        const bool drawn = all != nullptr && SDL_BlitSurface(all, &from, shown, &to) == 0;
        SDL_FreeSurface(all);
        return drawn;
    }
    if (scaled == nullptr || scaled->w != shown->w || scaled->h != shown->h) {
        SDL_FreeSurface(scaled);
        scaled = SDL_CreateRGBSurfaceWithFormat(0, shown->w, shown->h, 32, SDL_PIXELFORMAT_RGB888);
    }
    if (scaled == nullptr) {
        return false;
    }
    DrawScaled(picture.pixels, picture.stride, width, height, placement.Area(), target,
               static_cast<std::uint32_t*>(scaled->pixels), scaled->pitch / 4);
    SDL_Rect from = to;
    return SDL_BlitSurface(scaled, &from, shown, &to) == 0;
}

bool View::Present(bool whole) {
    SDL_Surface* shown = SDL_GetWindowSurface(window);
    if (shown == nullptr) {
        return false;
    }
    const Placement placement(width, height, shown->w, shown->h);
    if (whole) {
        SDL_FillRect(shown, nullptr, SDL_MapRGB(shown->format, 0, 0, 0));
    }
    const Box all{0, 0, width, height};
    Box part;
    source.lock();
    const Picture picture = source.picture();
    source.takeDirty(&dirty);
    for (const Box& box : dirty) {
        part = part.Empty() ? box : Around(part, box);
    }
    part = whole ? all : Cut(part, all);
    const bool drawn =
        picture.width >= width && picture.height >= height && (part.Empty() || Draw(picture, shown, placement, part));
    source.unlock();
    if (!drawn) {
        return false;
    }
    if (whole) {
        return SDL_UpdateWindowSurface(window) == 0;
    }
    const Box box = part.Empty() ? part : placement.ToWindow(part);
    const SDL_Rect rect{box.left, box.top, box.Width(), box.Height()};
    return box.Empty() || SDL_UpdateWindowSurfaceRects(window, &rect, 1) == 0;
}

}  // namespace platform::display
