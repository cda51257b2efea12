#include "gdi/context/context.h"

#include <cvplatform.h>

#include <algorithm>

#include "gdi/context/device_context.h"

namespace platform::gdi {

namespace {

void Hold(Object* object) {
    object->selected.fetch_add(1, std::memory_order_relaxed);
}

void Drop(Object* object) {
    object->selected.fetch_sub(1, std::memory_order_relaxed);
}

void Drop(Font* font) {
    if (font->selected.fetch_sub(1, std::memory_order_relaxed) == 1 && font->doomed) {
        base::RemoveHandle(font->handle, Font::kKind);
        delete font;
    }
}

void Drop(Bitmap* bitmap) {
    if (bitmap->selected.fetch_sub(1, std::memory_order_relaxed) <= 1) {
        bitmap->context = nullptr;
    }
}

void HoldAll(const DrawState& state) {
    Hold(state.pen);
    Hold(state.brush);
    Hold(state.font);
    if (state.bitmap) {
        Hold(state.bitmap);
    }
}

void DropAll(const DrawState& state) {
    Drop(state.pen);
    Drop(state.brush);
    Drop(state.font);
    if (state.bitmap) {
        Drop(state.bitmap);
    }
}

DrawState DefaultState(bool memory) {
    const StockObjects& stock = Stock();
    DrawState state;
    state.pen = stock.blackPen;
    state.brush = stock.whiteBrush;
    state.font = stock.systemFont;
    state.bitmap = memory ? stock.defaultBitmap : nullptr;
    return state;
}

void UseBitmap(DeviceContext& context) {
    context.surface = context.state.bitmap->View();
    context.visible.Set(context.surface.Bounds());
    context.ClipChanged();
}

void TakeScreen(DeviceContext& context) {
    const ScreenView view = Screen();
    context.surface.bits = reinterpret_cast<std::byte*>(view.pixels);
    context.surface.width = view.width;
    context.surface.height = view.height;
    context.surface.stride = static_cast<std::ptrdiff_t>(view.stride) * 4;
    context.surface.bitsPerPixel = 32;
    context.visible.Intersect(context.surface.Bounds());
    context.ClipChanged();
}

void UseScreen(DeviceContext& context, POINT origin, const Region& visible) {
    context.screen = true;
    context.origin = origin;
    context.visible = visible;
    TakeScreen(context);
}

HDC FileContext(std::unique_ptr<DeviceContext> context) {
    context->state = DefaultState(!context->screen);
    HoldAll(context->state);
    if (!context->screen) {
        UseBitmap(*context);
    }
    context->handle = base::InsertHandle(DeviceContext::kKind, context.get());
    if (!context->handle) {
        DropAll(context->state);
        return Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    return base::ToHandle<HDC>(context.release()->handle);
}

/// What is selected, now and in saved states, becomes free.
void DropStates(DeviceContext& context) {
    for (const DrawState& state : context.saved) {
        DropAll(state);
    }
    context.saved.clear();
    DropAll(context.state);
}

void Destroy(DeviceContext* context) {
    base::RemoveHandle(context->handle, DeviceContext::kKind);
    DropStates(*context);
    delete context;
}

std::atomic<std::size_t> windowContexts{0};

template <class Kind>
HGDIOBJ Replace(Kind*& slot, Kind* object) {
    Kind* previous = slot;
    const auto result = base::ToHandle<HGDIOBJ>(previous->handle);
    Hold(object);
    Drop(previous);
    slot = object;
    return result;
}

}  // namespace

void FollowScreen(DeviceContext& context) {
    if (context.surface.bits != reinterpret_cast<std::byte*>(Screen().pixels)) {
        TakeScreen(context);
    }
}

const Region& DeviceContext::Drawable() {
    if (drawableStale) {
        drawable = visible;
        if (state.clip) {
            Region clip(*state.clip);
            clip.Offset(origin.x, origin.y);
            drawable.Intersect(clip);
        }
        drawableStale = false;
    }
    return drawable;
}

void DeviceContext::Drawn(const RECT& rect) const {
    if (screen) {
        MarkDirty(rect);
    }
}

HDC CreateScreenContext(POINT origin, const Region& visible) {
    auto context = NewObject<DeviceContext>();
    if (!context) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    UseScreen(*context, origin, visible);
    context->windowContext = true;
    const HDC handle = FileContext(std::move(context));
    if (handle) {
        ++windowContexts;
    }
    return handle;
}

bool ReplaceVisible(HDC handle, POINT origin, const Region& visible) {
    auto* context = base::Find<DeviceContext>(handle, DeviceContext::kKind);
    if (!context || !context->screen) {
        return false;
    }
    const ScreenGuard guard(ScreenLock());
    UseScreen(*context, origin, visible);
    return true;
}

void DeleteScreenContext(HDC handle) {
    auto* context = base::Find<DeviceContext>(handle, DeviceContext::kKind);
    if (context && context->windowContext) {
        --windowContexts;
        Destroy(context);
    }
}

void ResetContext(HDC handle) {
    auto* context = base::Find<DeviceContext>(handle, DeviceContext::kKind);
    if (!context) {
        return;
    }
    const DrawState fresh = DefaultState(!context->screen);
    HoldAll(fresh);
    DropStates(*context);
    context->state = fresh;
    context->ClipChanged();
    if (!context->screen) {
        UseBitmap(*context);
    }
}

std::size_t CountObjects() {
    const std::size_t count = CvPlatformCount(CV_PLATFORM_GDI_OBJECTS);
    const std::size_t without = StockCount() + windowContexts.load();
    return count > without ? count - without : 0;
}

void DeleteFontWhenFree(HFONT handle) {
    if (auto* font = FindObject<Font>(handle); font && !DeleteObject(handle)) {
        font->doomed = true;
    }
}

}  // namespace platform::gdi

using namespace platform::gdi;

HDC WINAPI CreateCompatibleDC(HDC context) {
    if (context && !FindObject<DeviceContext>(context)) {
        return nullptr;
    }
    auto memory = NewObject<DeviceContext>();
    return memory ? FileContext(std::move(memory)) : Fail(ERROR_NOT_ENOUGH_MEMORY, HDC{});
}

BOOL WINAPI DeleteDC(HDC handle) {
    auto* context = FindObject<DeviceContext>(handle);
    // A window's context goes back with ReleaseDC.
    if (!context || context->windowContext) {
        return FALSE;
    }
    Destroy(context);
    return TRUE;
}

HGDIOBJ WINAPI SelectObject(HDC handle, HGDIOBJ object) {
    using platform::base::HandleKind;
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return nullptr;
    }
    switch (platform::base::KindOfHandle(platform::base::ToNumber(object))) {
        case HandleKind::Pen:
            return Replace(context->state.pen, FindObject<Pen>(object));
        case HandleKind::Brush:
            return Replace(context->state.brush, FindObject<Brush>(object));
        case HandleKind::Font:
            return Replace(context->state.font, FindObject<Font>(object));
        case HandleKind::Bitmap: {
            auto* bitmap = FindObject<Bitmap>(object);
            if (context->screen || !bitmap || (bitmap->context && bitmap->context != context)) {
                return nullptr;
            }
            const HGDIOBJ result = Replace(context->state.bitmap, bitmap);
            bitmap->context = bitmap->stock ? nullptr : context;
            UseBitmap(*context);
            return result;
        }
        default:
            return Fail(ERROR_INVALID_HANDLE, nullptr);
    }
}

int WINAPI SaveDC(HDC handle) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return 0;
    }
    return Guarded(0, [&] {
        context->saved.push_back(context->state);
        HoldAll(context->state);
        return static_cast<int>(context->saved.size());
    });
}

BOOL WINAPI RestoreDC(HDC handle, int saved) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return FALSE;
    }
    const int depth = static_cast<int>(context->saved.size());
    const int level = saved < 0 ? depth + 1 + saved : saved;
    if (level < 1 || level > depth) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    DropAll(context->state);
    while (static_cast<int>(context->saved.size()) > level) {
        DropAll(context->saved.back());
        context->saved.pop_back();
    }
    context->state = std::move(context->saved.back());
    context->saved.pop_back();
    if (!context->screen) {
        if (!context->state.bitmap->stock) {
            context->state.bitmap->context = context;
        }
        UseBitmap(*context);
    }
    context->ClipChanged();
    return TRUE;
}
