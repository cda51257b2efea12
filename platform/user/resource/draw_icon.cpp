// Drawing icons: the ground is kept where the mask lets it through, then the picture is laid over it by exclusive or. Where
// the mask is clear the picture's black leaves the ground as it is; any other colour there inverts it.
#include "user/resource/icons.h"

#include <new>

#include "base/handle.h"
#include "gdi/bitmap/bitmaps.h"

namespace platform::user {
namespace {

/// White where the background shows, black elsewhere.
std::vector<std::uint32_t> MaskOf(const IconPicture& picture) {
    std::vector<std::uint32_t> mask;
    mask.reserve(picture.pixels.size());
    for (const std::uint32_t pixel : picture.pixels) {
        mask.push_back(pixel & kTransparent ? 0xFFFFFF : 0);
    }
    return mask;
}

std::vector<std::uint32_t> ColoursOf(const IconPicture& picture) {
    std::vector<std::uint32_t> colours = picture.pixels;
    for (std::uint32_t& pixel : colours) {
        pixel &= 0xFFFFFF;
    }
    return colours;
}

bool Put(HDC context, const RECT& place, const IconPicture& picture, const std::vector<std::uint32_t>& pixels,
         DWORD operation) {
    return gdi::StretchBits(context, place, pixels.data(), {picture.width, picture.height}, operation);
}

}  // namespace

bool DrawIconIn(HDC context, const RECT& place, HICON handle) try {
    const Icon* icon = base::Find<Icon>(handle, base::HandleKind::Icon);
    if (!icon) {
        SetLastError(ERROR_INVALID_ICON_HANDLE);
        return false;
    }
    const IconPicture& picture = icon->picture;
    return Put(context, place, picture, MaskOf(picture), SRCAND) &&
           Put(context, place, picture, ColoursOf(picture), SRCINVERT);
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return false;
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI DrawIcon(HDC context, int x, int y, HICON icon) {
    return DrawIconIn(context, {x, y, x + GetSystemMetrics(SM_CXICON), y + GetSystemMetrics(SM_CYICON)}, icon);
}
