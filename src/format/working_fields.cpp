#include "format/working_fields.h"

namespace assignment {

namespace {

std::optional<std::string> AsText(std::string_view value) {
    return std::string(value);
}

} // namespace

std::optional<AreaAssignment> WorkingFields::TakeArea(const Fields& fields) {
    AreaAssignment area{fields.Page, fields.Index, fields.FontBold.has_value(), false, std::nullopt, false};
    if (!Settle(fields.FontBold, ToFlag, areaBold_, areaBold_)) {
        return std::nullopt;
    }
    area.Bold = areaBold_;
    if (fields.Text) {
        area.Text = *fields.Text;
    }
    areaExempt_ = false;
    if (!Settle(fields.TaxExempt, ToFlag, areaExempt_, area.TaxExempt)) {
        return std::nullopt;
    }
    return area;
}

std::optional<RowAssignment> WorkingFields::TakeRow(const Fields& fields, bool columnsNow) {
    RowAssignment row{fields.Page, fields.Index, columnsNow, "", ""};
    if (!Settle(fields.QtyBox, ToFlag, rowColumns_, row.Columns)) {
        return std::nullopt;
    }
    row.Quantity = fields.QtyValue.value_or("");
    row.Price = fields.AmtValue.value_or("");
    return row;
}

std::optional<LabelLook> WorkingFields::TakeLabel(const Fields& fields, const LabelLook& own) {
    LabelLook look = own;
    if (fields.EndsAtColor) {
        // Older files end there; such a label leans and is underlined as the one before it.
        look.FontItalic = label_.FontItalic;
        look.FontUnderline = label_.FontUnderline;
    }
    const bool taken = Settle(fields.Left, ToPlace, label_.Left, look.Left) &&
                       Settle(fields.Top, ToPlace, label_.Top, look.Top) &&
                       Settle(fields.Caption, AsText, label_.Caption, look.Caption) &&
                       Settle(fields.FontName, AsText, label_.FontName, look.FontName) &&
                       Settle(fields.FontBold, ToFlag, label_.FontBold, look.FontBold) &&
                       Settle(fields.FontSize, ToSize, label_.FontSize, look.FontSize) &&
                       Settle(fields.ForeColor, ToColor, label_.ForeColor, look.ForeColor) &&
                       Settle(fields.FontItalic, ToFlag, label_.FontItalic, look.FontItalic) &&
                       Settle(fields.FontUnderline, ToFlag, label_.FontUnderline, look.FontUnderline);
    if (!taken) {
        return std::nullopt;
    }
    return look;
}

std::optional<PictureAssignment> WorkingFields::TakePicture(const Fields& fields, float ownLeft,
                                                            float ownTop) {
    PictureAssignment picture{"", ownLeft, ownTop};
    if (!fields.Picture || !Settle(fields.Left, ToPlace, pictureLeft_, picture.Left) ||
        !Settle(fields.Top, ToPlace, pictureTop_, picture.Top)) {
        return std::nullopt;
    }
    picture.Path = *fields.Picture;
    return picture;
}

std::optional<AreaFont> WorkingFields::TakeFont(const Fields& fields, const AreaFont& own) {
    AreaFont font = own;
    if (!Settle(fields.FontName, AsText, font_.Name, font.Name) ||
        !Settle(fields.FontSize, ToSize, font_.Size, font.Size) ||
        !Settle(fields.ForeColor, ToColor, font_.ForeColor, font.ForeColor) ||
        !Settle(fields.FontItalic, ToFlag, font_.Italic, font.Italic)) {
        return std::nullopt;
    }
    return font;
}

} // namespace assignment
