#pragma once

#include "program/page_records.h"

#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

class QtTextMeasure;
struct Program;

/// What the fields of a page share with it.
struct PageContext {
    Program& program;
    const QtTextMeasure& measure;
    PageId Id = PageId::frmP1;
    double Scale = 1; ///< device-independent pixels to the twip

    /// Runs when an event has been dealt with.
    std::function<void()> AfterEvent;
    /// A right click on a text area asks for the menu of its commands.
    std::function<void(QPoint)> AskForMenu;
    /// The same for a label and for the logo.
    std::function<void(QPoint)> AskForLabelMenu;
    std::function<void(QPoint)> AskForLogoMenu;
    /// What is marked anywhere on the desktop, for the middle button; the desktop's own where not set.
    std::function<QString()> MarkedText;

    /// The whole pixels that a place on the paper, in twips, touches.
    [[nodiscard]] QRect OnScreen(double left, double top, double width, double height) const;
};
