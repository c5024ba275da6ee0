#pragma once

#include <optional>

/// The pressed mouse in a text area, until it is let go: it marks text, or drags what is marked.
class TextAreaPress {
public:
    /// Not moved far enough to mark text, marking it, in marked text that may be dragged, dragging it.
    enum class Doing { Nothing, Marking, InMarked, Dragging };

    /// Pressed at `x`, in pixels. The mark reaches from `anchor`, a place in the text, to the pointer.
    void Begin(Doing doing, int anchor, double x);
    /// Moved to `x`, over that place in the text.
    void Move(int position, double x);
    /// Let go. Text goes on being marked when a second click follows with a drag.
    void End();

    [[nodiscard]] bool Marks() const { return doing_ == Doing::Marking; }
    [[nodiscard]] bool HoldsMarked() const { return doing_ == Doing::InMarked || doing_ == Doing::Dragging; }
    [[nodiscard]] int Anchor() const { return anchor_; }
    /// Where the dragged text would be let go.
    [[nodiscard]] std::optional<int> DropAt() const;

private:
    Doing doing_ = Doing::Nothing;
    int anchor_ = 0;
    double pressedAt_ = 0;
    int dropAt_ = 0;
};
