// What a field editor must be told about the kind of value that it edits.
#pragma once

#include <windows.h>

namespace fieldedit {

/// Rules of one kind of field (dates, times). One object a kind; it has no state of its own but the settings that the
/// kind keeps for the process.
class Rules {
  public:
    /// @return characters of the text; the caret stands at 0 to one less.
    virtual UINT TextLength() const = 0;

    /// @return bytes of the text with its NUL, at most kMaxTextSize.
    virtual int TextSize() const = 0;

    virtual bool IsSeparator(UINT position) const = 0;

    /// @return whether a position is the second byte of a character, which the caret passes over.
    virtual bool IsInsideCharacter(UINT) const {
        return false;
    }

    virtual bool IsValid(SYSTEMTIME const& value) const = 0;

    /// @return the value of a field that has just been created: now, or what counts of it.
    virtual SYSTEMTIME InitialValue() const = 0;

    /// @return what the kind keeps of a value that it was given; everything else 0.
    virtual SYSTEMTIME Reduced(SYSTEMTIME const& value) const = 0;

    virtual bool Format(SYSTEMTIME const& value, char* text, int size) const = 0;

    /// Reads the user's international settings anew.
    virtual void ReloadSettings() const = 0;

    /// Types a character at a position that is no separator.
    /// @param value    changed only if the result is true.
    /// @param advance  by how much the caret moves on, before it steps off a separator.
    /// @return whether the character was taken.
    virtual bool Type(char character, UINT position, SYSTEMTIME& value, int& advance) const = 0;

    /// Steps the part of the value at a position that is no separator.
    /// @param code  SB_LINEUP or SB_LINEDOWN; any other code does nothing.
    /// @return whether the value was stepped, be the result valid or not.
    virtual bool Step(WORD code, UINT position, SYSTEMTIME& value) const = 0;

  protected:
    ~Rules() = default;
};

/// Room for the longest text of any kind.
constexpr int kMaxTextSize = 16;

}  // namespace fieldedit
