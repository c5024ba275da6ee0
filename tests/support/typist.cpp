#include "support/typist.h"

#include "pages/fields.h"
#include "program/program.h"
#include "shell/input.h"
#include "shell/page_switch.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace {

constexpr int kHome = 36;
constexpr int kEnd = 35;

struct Line {
    FieldRef Field;
    std::string Text;
    int SelStart = 0;
    int SelLength = 0;
};

bool FocusedLine(Program& program, Line& line) {
    if (!program.main.Focus) {
        return false;
    }
    line.Field = *program.main.Focus;
    const TextArea& area = modFields::Area(program, line.Field);
    line.Text = area.Text;
    line.SelStart = std::clamp(area.SelStart, 0, static_cast<int>(line.Text.size()));
    line.SelLength = std::clamp(area.SelLength, 0, static_cast<int>(line.Text.size()) - line.SelStart);
    return true;
}

void Replace(Line& line, std::string_view with) {
    line.Text.replace(static_cast<std::size_t>(line.SelStart), static_cast<std::size_t>(line.SelLength),
                      with);
    line.SelStart += static_cast<int>(with.size());
    line.SelLength = 0;
}

void ApplyEditingKey(Line& line, int keyCode) {
    if (line.SelLength > 0) {
        Replace(line, "");
    } else if (keyCode == keys::kBackspace && line.SelStart > 0) {
        --line.SelStart;
        line.SelLength = 1;
        Replace(line, "");
    } else if (keyCode == keys::kDelete && line.SelStart < static_cast<int>(line.Text.size())) {
        line.SelLength = 1;
        Replace(line, "");
    }
}

int KeyCodeOf(char character) {
    const unsigned char byte = static_cast<unsigned char>(character);
    if (byte >= 'a' && byte <= 'z') {
        return byte - 32;
    }
    if ((byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == ' ') {
        return byte;
    }
    switch (byte) {
    case ',':
        return 188;
    case '-':
        return 189;
    case '.':
        return 190;
    case '/':
        return 191;
    default:
        return 192;
    }
}

} // namespace

void Typist::Click(const FieldRef& field) {
    if (program_.main.PageInFront != field.Page) {
        modScroll::UpdatePageButtons(program_, IndexOf(field.Page)); // only what is in front can be clicked
    }
    TextArea& area = modFields::Area(program_, field);
    const int end = static_cast<int>(area.Text.size());
    modInput::FieldMouseDown(program_, field, 1, end, 0);
    modInput::FieldMouseUp(program_, field, end, 0);
}

void Typist::KeyDownAndCharacter(int keyCode, int keyAscii, int shift) {
    Line before;
    if (!FocusedLine(program_, before)) {
        ADD_FAILURE() << "no field has the focus";
        return;
    }
    if (modInput::KeyDown(program_, keyCode, shift, before.SelStart, before.SelLength) == Taken::Yes) {
        return;
    }
    if (keyAscii != 0) {
        const int kept = modInput::KeyPress(program_, keyAscii);
        if (kept == 0) {
            return;
        }
        Line line;
        if (!FocusedLine(program_, line)) {
            return;
        }
        if (kept == keys::kBackspace) {
            ApplyEditingKey(line, keys::kBackspace);
        } else if (kept >= 32) {
            Replace(line, std::string(1, static_cast<char>(kept)));
        } else {
            return;
        }
        modInput::Edited(program_, line.Field, line.Text, line.SelStart, line.SelLength);
        return;
    }
    Line line;
    if (!FocusedLine(program_, line)) {
        return;
    }
    const int length = static_cast<int>(line.Text.size());
    if (keyCode == keys::kDelete) {
        if (!modInput::MayEdit(program_, line.Field)) {
            return;
        }
        ApplyEditingKey(line, keyCode);
        modInput::Edited(program_, line.Field, line.Text, line.SelStart, line.SelLength);
    } else if (keyCode == keys::kLeft) {
        modInput::CursorMoved(program_, line.Field, std::max(0, line.SelStart - 1), 0);
    } else if (keyCode == keys::kRight) {
        modInput::CursorMoved(program_, line.Field, std::min(length, line.SelStart + 1), 0);
    } else if (keyCode == kHome || keyCode == kEnd) {
        modInput::CursorMoved(program_, line.Field, keyCode == kHome ? 0 : length, 0);
    }
}

void Typist::Hold(int keyCode, int shift) {
    int keyAscii = 0;
    if (keyCode == keys::kEnter || keyCode == keys::kTab || keyCode == keys::kBackspace ||
        keyCode == keys::kBlank) {
        keyAscii = keyCode;
    }
    KeyDownAndCharacter(keyCode, keyAscii, shift);
}

void Typist::Press(int keyCode, int shift) {
    Hold(keyCode, shift);
    LetGo(keyCode, shift);
}

void Typist::LetGo(int keyCode, int shift) {
    Line line;
    if (FocusedLine(program_, line)) {
        modInput::KeyUp(program_, keyCode, shift, line.SelStart, line.SelLength);
    }
}

void Typist::Type(std::string_view text) {
    for (const char character : text) {
        const int keyCode = KeyCodeOf(character);
        KeyDownAndCharacter(keyCode, static_cast<unsigned char>(character), 0);
        LetGo(keyCode, 0);
    }
}

void Typist::Roll(char first, char second) {
    KeyDownAndCharacter(KeyCodeOf(first), static_cast<unsigned char>(first), 0);
    KeyDownAndCharacter(KeyCodeOf(second), static_cast<unsigned char>(second), 0);
    LetGo(KeyCodeOf(first), 0);
    LetGo(KeyCodeOf(second), 0);
}

void Typist::PutCursor(int selStart, int selLength) {
    Line line;
    if (FocusedLine(program_, line)) {
        modInput::CursorMoved(program_, line.Field, selStart, selLength);
    }
}

void Typist::Insert(std::string_view text) {
    Line line;
    if (FocusedLine(program_, line)) {
        Replace(line, text);
        modInput::EditedWithoutKey(program_, line.Field, line.Text, line.SelStart, line.SelLength);
    }
}

void Typist::Commit(std::string_view text) {
    std::string taken;
    for (const char character : text) {
        if (modInput::KeyPress(program_, static_cast<unsigned char>(character)) != 0) {
            taken += character;
        }
    }
    if (!taken.empty()) {
        Insert(taken);
    }
}

void Typist::PasteByKey(std::string_view text, std::string& clipboard) {
    clipboard = text;
    Line line;
    if (!FocusedLine(program_, line)) {
        return;
    }
    if (modInput::KeyDown(program_, keys::kV, keys::kCtrlState, line.SelStart, line.SelLength) == Taken::No) {
        modInput::Insert(program_, *program_.main.Focus, text, 0, modInput::By::Key);
    }
    if (FocusedLine(program_, line)) {
        modInput::KeyUp(program_, keys::kV, keys::kCtrlState, line.SelStart, line.SelLength);
    }
}

void Typist::PasteByMouse(const FieldRef& field, int at, std::string_view text) {
    Drag(field, at, at);
    modInput::Insert(program_, field, text, 0, modInput::By::Mouse);
}

void Typist::Drag(const FieldRef& field, int from, int to) {
    if (program_.main.PageInFront != field.Page) {
        modScroll::UpdatePageButtons(program_, IndexOf(field.Page));
    }
    const TextArea& area = modFields::Area(program_, field);
    const int length = static_cast<int>(area.Text.size());
    const int press = std::clamp(from, 0, length);
    modInput::FieldMouseDown(program_, field, 1, press, 0);
    if (program_.main.Focus != field) {
        return; // nothing there to press on
    }
    const int last = static_cast<int>(area.Text.size());
    const int begin = std::clamp(std::min(from, to), 0, last);
    const int end = std::clamp(std::max(from, to), 0, last);
    if (begin != end) {
        modInput::CursorMoved(program_, field, begin, end - begin);
    }
    modInput::FieldMouseUp(program_, field, begin, end - begin);
}

void Typist::DoubleClick(const FieldRef& field) {
    Drag(field, 0, 0);
    if (program_.main.Focus == field) {
        modInput::FieldDblClick(program_, field, 0);
    }
}
