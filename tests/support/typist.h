#pragma once

#include "program/page_records.h"

#include <string_view>

struct Program;

/// A person at the keyboard: feeds keys to the model in the order in which the front end does, and applies to
/// the text what a line of text on screen would.
class Typist {
public:
    explicit Typist(Program& program) : program_(program) {}

    /// Puts the focus into a field, as a click does; its page comes to the front first.
    void Click(const FieldRef& field);
    void Click(PageId page, int txtIndex) { Click({page, FieldKind::txt, txtIndex}); }
    /// Types characters, each with its own key.
    void Type(std::string_view text);
    /// Two characters in quick succession: the first key is let go after the second is pressed.
    void Roll(char first, char second);
    /// A key without a character: keys::kEnter, kTab, arrows, kBackspace, kDelete, F-keys.
    void Press(int keyCode, int shift = 0);
    /// Key down only, as when a key is held; no key up.
    void Hold(int keyCode, int shift = 0);
    /// Moves the cursor of the focused field by mouse or keyboard without an edit.
    void PutCursor(int selStart, int selLength = 0);
    /// An edit without keys: paste by mouse, drop, input method.
    void Insert(std::string_view text);
    /// What an input method or a dead key hands over, every character through the field's filter.
    void Commit(std::string_view text);
    /// Ctrl+V with this text on the clipboard, the clipboard's own key included.
    void PasteByKey(std::string_view text, std::string& clipboard);
    /// A text let go over a field, or the middle button's paste.
    void PasteByMouse(const FieldRef& field, int at, std::string_view text);
    /// Presses at one place of a field, moves to another and lets go; a click when both are one.
    void Drag(const FieldRef& field, int from, int to);
    void DoubleClick(const FieldRef& field);

private:
    void LetGo(int keyCode, int shift);
    void KeyDownAndCharacter(int keyCode, int keyAscii, int shift);
    Program& program_;
};
