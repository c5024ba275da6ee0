#include "output/print_page.h"

#include "base/guard.h"
#include "editing/fresh_figures.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/errors.h"
#include "program/program.h"

namespace modPrint {

namespace {

/// Main categories are bold rows of full width.
constexpr float kCategoryWidth = 8640, kCategoryLeft = 720, kCategoryRight = 11520;

enum class Align { Left, Right };

void DrawArea(const Program& program, DrawingSurface& surface, const TextArea& area, Align align) {
    if (area.Tag == kHide) {
        return;
    }
    surface.FontBold = area.FontBold;
    surface.Font = area.FontName;
    surface.FontSize = area.FontSize;
    surface.ForeColor = program.run.DefaultFontColor;
    surface.FontItalic = area.FontItalic;
    surface.FontUnderline = false;
    surface.CurrentY = area.Top;
    surface.CurrentX =
        align == Align::Right ? area.Left + area.Width - surface.TextWidth(area.Text) : area.Left;
    surface.Print(area.Text);
    if (program.printing.UnderlineCategories && area.Width == kCategoryWidth && area.FontBold) {
        const float y = area.Top + area.Height;
        surface.Line(kCategoryLeft, y, kCategoryRight, y);
    }
}

void DrawLabel(DrawingSurface& surface, const PageLabel& label) {
    if (label.Tag == kHide) {
        return;
    }
    surface.Font = label.FontName;
    surface.FontSize = label.FontSize;
    surface.FontBold = label.FontBold;
    surface.ForeColor = label.ForeColor;
    surface.FontItalic = label.FontItalic;
    surface.FontUnderline = label.FontUnderline;
    surface.CurrentX = label.Left;
    surface.CurrentY = label.Top;
    surface.Print(label.Caption);
}

void PrintSteps(Program& program, Printer& printer, const Page& sheet) {
    const Page& first = program.pages[PageId::frmP1];
    printer.ScaleHeight = first.Height;
    printer.ScaleWidth = first.Width;
    printer.CurrentX = 0;
    printer.CurrentY = 0;
    if (program.printing.PrinterOffsetX != 0) {
        printer.ScaleLeft = program.printing.PrinterOffsetX;
    }
    if (program.printing.PrinterOffsetY != 0) {
        printer.ScaleTop = program.printing.PrinterOffsetY;
    }
    // What a person types meanwhile must reach the proposal; only the drawing itself is silent, and it is of
    // the page as it stood.
    program.platform.events.LetEventsRun();
    const ScopedFlag printing(program.guards.Printing);
    const std::string font = printer.Font;
    const float size = printer.FontSize;
    DrawSheet(program, printer, sheet);
    printer.Font = font;
    printer.FontSize = size;
    printer.EndDoc();
    printer.Font = first.txt[0].FontName;
    printer.FontSize = first.txt[0].FontSize;
    printer.FontBold = false;
    printer.FontItalic = false;
    printer.FontUnderline = false;
}

} // namespace

void DrawPage(const Program& program, DrawingSurface& surface, PageId page) {
    DrawSheet(program, surface, program.pages[page]);
}

void DrawSheet(const Program& program, DrawingSurface& surface, const Page& record) {
    for (std::size_t index = 0; index < record.txt.size(); ++index) {
        const bool right = geometry::RightAligned(record.Id, static_cast<int>(index));
        DrawArea(program, surface, record.txt[index], right ? Align::Right : Align::Left);
    }
    for (const PageLabel& label : record.lbl) {
        DrawLabel(surface, label);
    }
    for (const PageImage& image : record.imgNoTax) {
        if (image.Tag != kHide) {
            surface.PaintPicture({PictureRef::Source::NoTaxMark, ""}, image.Left, image.Top,
                                 PictureSize{image.Width, image.Height});
        }
    }
    for (const auto* boxes : {&record.txtQty, &record.txtAmt}) {
        for (const TextArea& box : *boxes) {
            DrawArea(program, surface, box, Align::Left);
        }
    }
    for (const auto* labels : {&record.lblAt, &record.lblEach}) {
        for (std::size_t row = 0; row < labels->size(); ++row) {
            // Signs between nothing and nothing would be offered to the client.
            if (!modPages::IsBlankRow(record, static_cast<int>(row))) {
                DrawLabel(surface, (*labels)[row]);
            }
        }
    }
    // The boxes are black, as on the screen, whatever colour the label before them had.
    surface.ForeColor = colors::kBlack;
    for (const PageLine& line : record.lne) {
        surface.Line(line.X1, line.Y1, line.X2, line.Y2);
    }
    if (record.HasLogo && record.pic.Tag != kHide && record.pic.Picture.From != PictureRef::Source::None) {
        // The one field that the printer's offset does not move.
        const PagePicture& logo = record.pic;
        const float left = logo.Left + surface.ScaleLeft;
        const float top = logo.Top + surface.ScaleTop;
        surface.PaintPicture(logo.Picture, left, top, logo.Size);
        if (logo.BorderStyle != 0) {
            // Within the picture, as on the page on screen.
            constexpr float kHalfRule = 7.5F;
            const float right = left + logo.Size.Width - kHalfRule;
            const float bottom = top + logo.Size.Height - kHalfRule;
            const float inLeft = left + kHalfRule;
            const float inTop = top + kHalfRule;
            surface.Line(inLeft, inTop, right, inTop);
            surface.Line(right, inTop, right, bottom);
            surface.Line(inLeft, bottom, right, bottom);
            surface.Line(inLeft, inTop, inLeft, bottom);
        }
    }
}

void PrepareDrawing(Program& program) {
    modFigures::TakeFresh(program);
    Page& active = program.pages[program.main.ActivePage];
    active.CenterLines.clear();
    active.GridPoints.clear();
    ++active.InkVersion;
    Page& front = program.pages[program.main.PageInFront];
    if (front.Id != active.Id) { // the client's copy
        ++front.InkVersion;
    }
}

void PrintTheForm(Program& program, PageId page) {
    Guarded(program, "PrintTheForm", [&] {
        PrepareDrawing(program);
        const Page sheet = program.pages[page];
        PrintSteps(program, program.platform.printers.Device(), sheet);
    });
}

void PrintSheet(Program& program, const Page& sheet) {
    Guarded(program, "PrintTheForm", [&] { PrintSteps(program, program.platform.printers.Device(), sheet); });
}

} // namespace modPrint
