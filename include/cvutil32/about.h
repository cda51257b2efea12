/// @file about.h
/// `ABOUT_`: the About box.
///
/// A modal dialog with an application's icon, product name, version line and notice. Under the notice stand the
/// registered user and organisation of the system, the processor and the physical memory:
///
///     ABOUT_DisplayAboutBox(window, instance, NULL, "Velmora Planner", "Version 2.1",
///                           "Copyright (C) 1995 Calverin", MAKEINTRESOURCEA(IDI_PLANNER));
///
/// Texts. Each text is a pointer to a text, or the identifier of a string (MAKEINTRESOURCEA) in the caller's module, of
/// which 255 characters are used. Null (or 0) keeps what the library has itself: a version line, a notice about the
/// library, no product name. Without a title the caption is "About " and the product name; without a product name either,
/// its last character is that blank. "\n" ends a line, and "&" is an ordinary character.
///
/// The user's name and organisation are the values "RegisteredOwner" and "RegisteredOrganization" of the key
/// "SOFTWARE\Microsoft\Windows\CurrentVersion" of HKEY_LOCAL_MACHINE. Without an owner neither is shown.
///
/// The box grows with the notice, in height: its width is fixed. Lines end between words, and a word that is wider than the
/// notice's field, such as a path, goes on in the next line. The box is centred over its owner. OK, Escape and the close box close it; the focus then
/// goes back to where it was.
#pragma once

#include "cvapi.h"

/// Shows the About box and waits until it is closed.
/// @param parent  owner window; may be null.
/// @param instance  module of the texts' identifiers and of the icon. It may be null only if there are no identifiers of
/// texts; the icon is then one of the system's.
/// @param title  the caption.
/// @param product  name of the product.
/// @param version  version line.
/// @param notice  copyright notice or whatever else there is to say.
/// @param icon  name or identifier of an icon; null, or one that is missing, for none.
/// @return 0 when the box was closed, -1 if it could not be shown.
CVAPI(int)
ABOUT_DisplayAboutBox(HWND parent, HINSTANCE instance, LPCSTR title, LPCSTR product, LPCSTR version, LPCSTR notice,
                      LPCSTR icon);
