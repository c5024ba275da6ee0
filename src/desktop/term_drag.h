#pragma once

class QMimeData;
class QWidget;
struct Program;

/// Dragging a term or a result, which `program.terms.DraggedTerm` holds, onto a field of a page.
namespace termdrag {

/// Whether what is over a field is such a drag of this program.
[[nodiscard]] bool Is(const QMimeData* data);

enum class Ended { LetGo, Refused };
/// Runs the drag with a picture of the term under the pointer, until it is let go.
Ended Run(Program& program, QWidget* from);

} // namespace termdrag
