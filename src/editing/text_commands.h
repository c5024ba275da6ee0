#pragma once

struct Program;

/// Commands of the text areas' menu that act on one area: bold, and the case of the selected text.
namespace modText {

/// Bold of the current area and of both text tables; counts as a changed property. No text changes. On the
/// final page the client's copy follows.
void mnuEditTextBold_Click(Program& program);
void mnuEditTextNormal_Click(Program& program);

/// The selection that the menu found becomes lower, proper or upper case, through the change handler; the
/// changed text is selected again.
void mnuEditTextSelLCase_Click(Program& program);
void mnuEditTextSelPCase_Click(Program& program);
void mnuEditTextSelUCase_Click(Program& program);

/// Says "ok" and does nothing else.
void mnuEditTextCenter_Click(Program& program);

} // namespace modText
