#include "pages/text_width.h"

#include "program/program.h"

namespace modPages {

namespace {

TextFont FontOf(const PageLabel& label) {
    return {label.FontName, label.FontSize, label.FontBold, label.FontItalic};
}

} // namespace

float LabelWidth(const Program& program, const PageLabel& label) {
    return program.platform.measure.Width(label.Caption, FontOf(label));
}

float MeasureTextWidth(const Program& program, PageId page, std::string_view value) {
    const Page& record = program.pages[page];
    return program.platform.measure.Width(value,
                                          {record.FontName, record.FontSize, false, record.FontItalic});
}

} // namespace modPages
