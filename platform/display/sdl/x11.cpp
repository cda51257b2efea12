#include "display/sdl/x11.h"

#include "display/sdl/scaling.h"

#include <SDL_syswm.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xrandr.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace platform::display {
namespace {

// The windows of others come and go while they are asked about, and a manager may refuse anything.
int PassOver(::Display*, XErrorEvent*) {
    return 0;
}

::Display* To(void* connection) {
    return static_cast<::Display*>(connection);
}

template <std::size_t Count>
void SetLongs(::Display* display, Window window, Atom property, Atom type, const std::array<long, Count>& values) {
    XChangeProperty(display, window, property, type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()), static_cast<int>(values.size()));
}

}  // namespace

void X11::PassOverErrors() {
    XSetErrorHandler(PassOver);
}

std::uintptr_t X11::IdOf(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    return window != nullptr && SDL_GetWindowWMInfo(window, &info) == SDL_TRUE ? info.info.x11.window : 0;
}

bool X11::Connect(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(window, &info) != SDL_TRUE) {
        return false;
    }
    connection = info.info.x11.display;
    root = DefaultRootWindow(To(connection));
    SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
    XSelectInput(To(connection), root, PropertyChangeMask | StructureNotifyMask);
    return true;
}

unsigned long X11::Named(const char* atom) const {
    return XInternAtom(To(connection), atom, False);
}

std::vector<long> X11::Property(unsigned long window, const char* name) const {
    constexpr long kMost = 4096;
    ::Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    std::vector<long> values;
    if (XGetWindowProperty(To(connection), window, Named(name), 0, kMost, False, AnyPropertyType, &type, &format,
                           &count, &rest, &data) == Success &&
        data != nullptr) {
        if (format == 32) {
            const auto* longs = reinterpret_cast<const long*>(data);
            values.assign(longs, longs + count);
        }
        XFree(data);
    }
    return values;
}

Box X11::Desktop() const {
    Window unused = 0;
    int x = 0;
    int y = 0;
    unsigned width = 0;
    unsigned height = 0;
    unsigned border = 0;
    unsigned depth = 0;
    XGetGeometry(To(connection), root, &unused, &x, &y, &width, &height, &border, &depth);
    return {0, 0, static_cast<int>(width), static_cast<int>(height)};
}

Box X11::MainMonitor() const {
    Box main;
    int count = 0;
    int event = 0;
    int error = 0;
    if (XRRQueryExtension(To(connection), &event, &error) == False) {
        return main;
    }
    XRRMonitorInfo* monitors = XRRGetMonitors(To(connection), root, True, &count);
    for (int i = 0; monitors != nullptr && i < count; ++i) {
        const XRRMonitorInfo& each = monitors[i];
        if (main.Empty() || each.primary != 0) {
            main = {each.x, each.y, each.x + each.width, each.y + each.height};
        }
    }
    if (monitors != nullptr) {
        XRRFreeMonitors(monitors);
    }
    return main;
}

Box X11::WorkArea() const {
    Box area = Desktop();
    const Box monitor = Cut(MainMonitor(), area);
    area = monitor.Empty() ? area : monitor;
    const std::vector<long> areas = Property(root, "_NET_WORKAREA");
    const std::vector<long> current = Property(root, "_NET_CURRENT_DESKTOP");
    std::size_t first = current.empty() ? 0 : static_cast<std::size_t>(current[0]) * 4;
    first = first + 4 <= areas.size() ? first : 0;
    if (areas.size() >= 4) {
        const auto at = [&](std::size_t i) { return static_cast<int>(areas[first + i]); };
        const Box free = Cut({at(0), at(1), at(0) + at(2), at(1) + at(3)}, area);
        area = free.Empty() ? area : free;
    }
    return area;
}

int X11::Density() const {
    const char* text = XGetDefault(To(connection), "Xft", "dpi");
    return text != nullptr ? static_cast<int>(std::strtod(text, nullptr) + 0.5) : 0;
}

bool X11::HasManager() const {
    const std::vector<long> check = Property(root, "_NET_SUPPORTING_WM_CHECK");
    // A manager that has died leaves the name of its window behind.
    return !check.empty() && Property(static_cast<unsigned long>(check[0]), "_NET_SUPPORTING_WM_CHECK") == check;
}

void X11::Describe(SDL_Window* target, const HostHints& hints) {
    ::Display* display = To(connection);
    const Window window = IdOf(target);
    // SDL has chosen other events of the root when it made the window, and gives the mouse free whenever the pointer enters
    // one: also one that is dragged.
    XSelectInput(display, root, PropertyChangeMask | StructureNotifyMask);
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display, window, &attributes) != 0) {
        XSelectInput(display, window, attributes.your_event_mask & ~EnterWindowMask);
    }
    if (hints.owner != nullptr) {
        XSetTransientForHint(display, window, IdOf(hints.owner));
    } else {
        XDeleteProperty(display, window, XA_WM_TRANSIENT_FOR);
    }
    if ((SDL_GetWindowFlags(target) & SDL_WINDOW_POPUP_MENU) != 0) {
        return;
    }
    const auto kind = hints.owner != nullptr ? "_NET_WM_WINDOW_TYPE_DIALOG" : "_NET_WM_WINDOW_TYPE_NORMAL";
    SetLongs(display, window, Named("_NET_WM_WINDOW_TYPE"), XA_ATOM, std::array{static_cast<long>(Named(kind))});
    // No frame, and what may be offered: size 2, move 4, minimise 8, maximise 16, close 32.
    constexpr long kFunctionsAndDecorations = 3;
    const long functions = 4 | 32 | (hints.sizes ? 2 | 16 : 0) | (hints.minimises ? 8 : 0);
    const unsigned long motif = Named("_MOTIF_WM_HINTS");
    SetLongs(display, window, motif, motif, std::array<long, 5>{kFunctionsAndDecorations, functions, 0, 0, 0});
    if (!hints.takesFocus) {
        SetLongs(display, window, Named("_NET_WM_USER_TIME"), XA_CARDINAL, std::array{0L});
    }
}

void X11::Limit(SDL_Window* window, const Box& place, bool sizes) {
    XSizeHints hints{};
    hints.flags = USPosition | USSize;
    hints.x = place.left;
    hints.y = place.top;
    hints.width = place.Width();
    hints.height = place.Height();
    if (!sizes) {
        hints.flags |= PMinSize | PMaxSize;
        hints.min_width = hints.max_width = place.Width();
        hints.min_height = hints.max_height = place.Height();
    }
    XSetWMNormalHints(To(connection), IdOf(window), &hints);
}

void X11::Place(SDL_Window* window, const Box& place) {
    XMoveResizeWindow(To(connection), IdOf(window), place.left, place.top, static_cast<unsigned>(place.Width()),
                      static_cast<unsigned>(place.Height()));
    XFlush(To(connection));
}

void X11::Map(SDL_Window* window) {
    XMapWindow(To(connection), IdOf(window));
    XFlush(To(connection));
}

void X11::Minimise(SDL_Window* window) {
    XIconifyWindow(To(connection), IdOf(window), DefaultScreen(To(connection)));
    XFlush(To(connection));
}

bool X11::IsMinimised(SDL_Window* window) const {
    const auto hidden = static_cast<long>(Named("_NET_WM_STATE_HIDDEN"));
    return std::ranges::count(Property(IdOf(window), "_NET_WM_STATE"), hidden) > 0;
}

void X11::Raise(SDL_Window* window) {
    XRaiseWindow(To(connection), IdOf(window));
    XFlush(To(connection));
}

void X11::PutBelow(SDL_Window* window, SDL_Window* above) {
    XWindowChanges changes{};
    changes.sibling = IdOf(above);
    changes.stack_mode = Below;
    XReconfigureWMWindow(To(connection), IdOf(window), DefaultScreen(To(connection)), CWSibling | CWStackMode,
                         &changes);
    XFlush(To(connection));
}

void X11::Focus(SDL_Window* target) {
    const Window window = IdOf(target);
    if (!HasManager()) {
        XSetInputFocus(To(connection), window, RevertToPointerRoot, CurrentTime);
        XFlush(To(connection));
        return;
    }
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = Named("_NET_ACTIVE_WINDOW");
    event.xclient.format = 32;
    event.xclient.data.l[0] = 1;  // asked for by a program
    event.xclient.data.l[1] = static_cast<long>(userTime);
    XSendEvent(To(connection), root, False, SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XFlush(To(connection));
}

bool X11::Grab(SDL_Window* window) {
    constexpr unsigned kMask = ButtonPressMask | ButtonReleaseMask | PointerMotionMask;
    return XGrabPointer(To(connection), IdOf(window), True, kMask, GrabModeAsync, GrabModeAsync, None, None,
                        CurrentTime) == GrabSuccess;
}

void X11::Ungrab() {
    XUngrabPointer(To(connection), CurrentTime);
    XFlush(To(connection));
}

Pointer X11::AskPointer() const {
    Pointer pointer;
    Window unused = 0;
    int x = 0;
    int y = 0;
    unsigned mask = 0;
    XQueryPointer(To(connection), root, &unused, &unused, &pointer.place.x, &pointer.place.y, &x, &y, &mask);
    pointer.buttons = ((mask & Button1Mask) != 0 ? SDL_BUTTON_LMASK : 0U) |
                      ((mask & Button2Mask) != 0 ? SDL_BUTTON_MMASK : 0U) |
                      ((mask & Button3Mask) != 0 ? SDL_BUTTON_RMASK : 0U);
    return pointer;
}

HostEvent X11::Read(const SDL_SysWMEvent& message) {
    HostEvent result;
    const XEvent& event = message.msg->msg.x11.event;
    switch (event.type) {
        case MotionNotify:
            result.kind = HostEvent::Kind::Move;
            result.place = {event.xmotion.x_root, event.xmotion.y_root};
            break;
        case LeaveNotify:
            result.kind = HostEvent::Kind::Move;
            result.place = {event.xcrossing.x_root, event.xcrossing.y_root};
            break;
        case FocusIn:
            result.window = event.xfocus.window;
            result.kind = HostEvent::Kind::Focused;
            break;
        case FocusOut:
        case MapNotify:
        case UnmapNotify:
            result.kind = HostEvent::Kind::Loosened;
            break;
        case ButtonPress:
        case ButtonRelease: {
            const bool wheel = event.xbutton.button == Button4 || event.xbutton.button == Button5;
            if (event.type == ButtonPress) {
                userTime = event.xbutton.time;
                result.kind = wheel ? HostEvent::Kind::Wheel : HostEvent::Kind::Press;
            } else if (!wheel) {
                result.kind = HostEvent::Kind::Release;
            }
            result.place = {event.xbutton.x_root, event.xbutton.y_root};
            result.button = static_cast<int>(event.xbutton.button);
            result.notches = event.xbutton.button == Button4 ? 1 : -1;
            break;
        }
        case KeyPress:
            userTime = event.xkey.time;
            break;
        case PropertyNotify:
            result.window = event.xproperty.window;
            if (event.xproperty.window == root) {
                result.kind =
                    event.xproperty.atom == Named("_NET_WORKAREA") ? HostEvent::Kind::Room : HostEvent::Kind::Other;
            } else if (event.xproperty.atom == Named("_NET_WM_STATE")) {
                result.kind = HostEvent::Kind::State;
            }
            break;
        case ConfigureNotify:
            result.kind = event.xconfigure.window == root ? HostEvent::Kind::Room : HostEvent::Kind::Other;
            break;
        default:
            break;
    }
    return result;
}

}  // namespace platform::display
