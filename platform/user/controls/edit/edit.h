/// @file edit.h
/// The edit control. edit.cpp holds the procedure, edit_text.cpp the text and its undo, edit_lines.cpp where lines and
/// characters stand, edit_paint.cpp the picture, edit_keys.cpp and edit_mouse.cpp input, edit_query.cpp the messages
/// that ask, edit_clipboard.cpp and edit_menu.cpp what is done with other texts and how it is chosen.
///
/// The text is one string with lines set over it: a single-line field has one line, the whole text. Handlers hold the
/// data shared and ask IsWindow after each notification, since the parent may end the control in it.
#pragma once

#include <string_view>

#include "user/controls/controls.h"

namespace platform::user {

/// One line of the control: [start, start + length), then a line break or, where it was wrapped, nothing.
struct EditLine {
    std::size_t start = 0;
    std::size_t length = 0;

    std::size_t End() const {
        return start + length;
    }
};

/// How the last change is taken back: what is between start and start + inserted is exchanged for `removed`.
struct EditUndo {
    bool possible = false;
    std::size_t start = 0;
    std::size_t inserted = 0;
    std::string removed;
};

struct EditData : ControlData {
    enum class Drag { None, Characters, Words };

    std::string text;
    std::size_t anchor = 0;  ///< the selection lies between anchor and caret
    std::size_t caret = 0;
    std::size_t limit = 32767;  ///< of what the user may enter
    EditUndo undo;
    char password = 0;  ///< shown in place of every character; 0: the text itself is shown
    char lead = 0;      ///< first byte of a double-byte character whose second one has yet to be typed

    int margin = 0;  ///< left and right of the text
    RECT format{};   ///< where text goes, client coordinates
    int lineHeight = 1;
    std::vector<EditLine> lines{EditLine{}};
    int scrollX = 0;            ///< pixels of the lines that are left of the format rectangle
    std::size_t firstLine = 0;  ///< uppermost visible line
    int wantedX = -1;           ///< column that Up and Down keep to, from the line's left; -1: that of the caret

    bool focused = false;
    bool inDialog = false;  ///< has been asked for WM_GETDLGCODE
    Drag drag = Drag::None;
    std::size_t wordStart = 0;  ///< the word that a drag by words began in
    std::size_t wordEnd = 0;
    POINT dragPoint{};

    std::size_t SelectionStart() const {
        return anchor < caret ? anchor : caret;
    }
    std::size_t SelectionEnd() const {
        return anchor < caret ? caret : anchor;
    }
    bool HasSelection() const {
        return anchor != caret;
    }
};

inline bool IsMultiLine(HWND edit) {
    return (ControlStyle(edit) & ES_MULTILINE) != 0;
}

inline bool IsReadOnly(HWND edit) {
    return (ControlStyle(edit) & ES_READONLY) != 0;
}

// --- characters (edit_text.cpp)

/// Positions of the characters next to one; never inside a double-byte character.
std::size_t NextPosition(const std::string& text, std::size_t position);
std::size_t PreviousPosition(const std::string& text, std::size_t position);

/// Start of the word to the left, or of the next one to the right.
std::size_t WordLeft(const EditData& data, std::size_t position);
std::size_t WordRight(const EditData& data, std::size_t position);

// --- changes (edit_text.cpp). All tell the parent and draw; the control may be gone when they return. Those by the user come to
// nothing with ES_READONLY.

/// Replaces the selection as the user does it: within the limit, in the case of the style, with EN_MAXTEXT when it does
/// not fit.
void InsertText(HWND edit, EditData& data, std::string_view text);
/// Removes a range, which becomes one step of undo, or grows the last one when it continues it.
void RemoveText(HWND edit, EditData& data, std::size_t start, std::size_t end);
/// WM_SETTEXT: no limit, no undo, nothing selected.
void SetEditText(HWND edit, EditData& data, LPCSTR text);
/// @returns false when there was nothing to take back.
bool UndoEdit(HWND edit, EditData& data);

/// @returns text in the case that the style asks for.
std::string InStyleCase(HWND edit, std::string_view text);

// --- selection and scrolling (edit_lines.cpp)

/// Moves the selection and draws, without scrolling.
void Select(HWND edit, EditData& data, std::size_t anchor, std::size_t caret);
/// Moves the caret and scrolls to it; the anchor stays if the selection is to grow.
void MoveEditCaret(HWND edit, EditData& data, std::size_t position, bool extend);
/// Scrolls as little as needed to see the caret. @returns whether anything moved.
bool ScrollToCaret(HWND edit, EditData& data);
/// Scrolls a multi-line control.
void ScrollLines(HWND edit, EditData& data, int lines);
/// Lines that fit in full, at least 1.
int PageLines(const EditData& data);

/// Shows the lines and the visible ones among them on the bar of a multi-line control that has one (edit_bar.cpp). To be called
/// after any change of either.
void ShowEditBar(HWND edit, const EditData& data);

// --- layout (edit_lines.cpp, edit_measure.cpp)

/// Works out the format rectangle and the lines anew, after a change of size, font, style or text.
void LayOut(HWND edit, EditData& data);
/// Only the lines.
void BreakLines(HWND edit, EditData& data);
/// The margin goes by the font.
void TakeFontMargin(HWND edit, EditData& data);

/// The index of the line that a position is in; at a wrap that is the lower one.
std::size_t LineOf(const EditData& data, std::size_t position);
/// Where a character begins, client coordinates.
POINT PointOf(HWND edit, const EditData& data, std::size_t position);
/// The position nearest to a point.
std::size_t PositionAt(HWND edit, const EditData& data, POINT point);

/// A device context with the control's font, to measure with.
class EditMeasure {
  public:
    EditMeasure(HWND edit, const EditData& data);
    ~EditMeasure();
    EditMeasure(const EditMeasure&) = delete;
    EditMeasure& operator=(const EditMeasure&) = delete;

    /// Width of the first characters of a line, as they are shown.
    int Width(std::size_t start, std::size_t count) const;
    /// How many characters of a line lie left of a distance: those that do wholly, or by more than half (`nearest`).
    std::size_t Fit(const EditLine& line, int distance, bool nearest) const;
    /// Where a line's first pixel is, by the alignment, without scrolling: from the format rectangle's left.
    int Indent(const EditLine& line) const;
    int LineHeight() const;
    int AverageWidth() const;

  private:
    HWND edit_;
    const EditData& data_;
    HDC context_;
    HGDIOBJ former_ = nullptr;
};

/// What is shown of a range: the text, or as many password characters.
std::string Shown(const EditData& data, std::size_t start, std::size_t count);

// --- picture (edit_paint.cpp)

void PaintEdit(HWND edit, const EditData& data, HDC context);
/// Draws at once.
void RedrawEdit(HWND edit);
/// Puts the caret where the text goes in; does nothing without the focus.
void PlaceEditCaret(HWND edit, const EditData& data);

// --- input

void OnEditKey(HWND edit, EditData& data, WPARAM key);
void OnEditCharacter(HWND edit, EditData& data, WPARAM character);
void OnEditPress(HWND edit, EditData& data, WPARAM flags, LPARAM point);
void OnEditDoubleClick(HWND edit, EditData& data, LPARAM point);
void OnEditMove(HWND edit, EditData& data, LPARAM point);
void OnEditTimer(HWND edit, EditData& data);
void EndEditDrag(HWND edit, EditData& data);

/// The context menu, at a point or by the keyboard; it acts on the control by messages. @returns false for a scroll bar, which
/// has no menu.
bool OnEditContextMenu(HWND edit, EditData& data, LPARAM where);
/// The middle button inserts what was selected last in any program of the desktop.
void OnEditMiddlePress(HWND edit, EditData& data, LPARAM point);

/// Shows other programs of the desktop what the user has selected.
void OfferSelection(const EditData& data);

/// @returns whether there is text to paste.
bool CanPaste(HWND edit);
void CopySelection(HWND edit, const EditData& data);
void CutSelection(HWND edit, EditData& data);
void PasteText(HWND edit, EditData& data);

/// The messages that only ask or that set no text (EM_GET..., EM_LINE...).
LRESULT OnEditQuery(HWND edit, EditData& data, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform::user
