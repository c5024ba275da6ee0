#include "desktop/text_area_press.h"

#include <QGuiApplication>
#include <QStyleHints>

void TextAreaPress::Begin(Doing doing, int anchor, double x) {
    doing_ = doing;
    anchor_ = anchor;
    pressedAt_ = x;
}

void TextAreaPress::Move(int position, double x) {
    // A clicking hand is never quite still, and a figure makes room for the caret as its field is entered.
    constexpr int kStill = 4;
    const int moved = qAbs(qRound(x - pressedAt_));
    if (doing_ == Doing::Nothing && moved >= kStill) {
        doing_ = Doing::Marking;
    } else if (doing_ == Doing::InMarked && moved >= QGuiApplication::styleHints()->startDragDistance()) {
        doing_ = Doing::Dragging;
    }
    dropAt_ = position;
}

void TextAreaPress::End() {
    if (HoldsMarked()) {
        doing_ = Doing::Nothing;
    }
}

std::optional<int> TextAreaPress::DropAt() const {
    return doing_ == Doing::Dragging ? std::optional(dropAt_) : std::nullopt;
}
