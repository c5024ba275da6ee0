#include "format/unkept_values.h"

#include "base/text.h"
#include "format/assignment_lines.h"
#include "format/format_lines.h"
#include "pages/page_geometry.h"
#include "program/program.h"

#include <string>
#include <string_view>

namespace modUnkept {

namespace {

using assignment::Value;

class Finds {
public:
    void Look(Value what, std::string_view noun, std::string_view value) {
        if (!assignment::CannotBeKept(what, value)) {
            return;
        }
        ++count_;
        constexpr int kMostShown = 5;
        if (count_ <= kMostShown) {
            words_ += (words_.empty() ? "" : std::string(text::kCrLf)) + "The " + std::string(noun) + " \"" +
                      std::string(value) + "\" cannot be kept in a format.";
        } else {
            more_ = std::string(text::kCrLf) + "and " + std::to_string(count_ - kMostShown) + " more.";
        }
    }
    void Tell(const Program& program) const {
        if (count_ > 0) {
            program.platform.questions.MsgBox(words_ + more_, Buttons::Ok, "");
        }
    }

private:
    int count_ = 0;
    std::string words_;
    std::string more_;
};

void LookAtLabels(const Program& program, const LabelChangeTable& table, Finds& finds) {
    for (const PageId page : kEditedPages) {
        const auto& labels = program.pages[page].lbl;
        for (std::size_t index = 0; index < labels.size(); ++index) {
            if (table[page][index].Changed) {
                finds.Look(Value::Caption, "caption", labels[index].Caption);
                finds.Look(Value::LabelFont, "font name", labels[index].FontName);
            }
        }
    }
}

} // namespace

void TellUnkeptFormat(const Program& program) {
    Finds finds;
    const FormatRecords& format = program.format;
    for (const auto& page : format.FormatTextChanges) {
        for (const TextChangeRecord& record : page) {
            finds.Look(Value::Text, "text", record.Text);
            if (record.QtyBox) {
                finds.Look(Value::Quantity, "text", record.QtyValue);
                finds.Look(Value::Price, "text", record.AmtValue);
            }
        }
    }
    LookAtLabels(program, format.FormatLabelChanges, finds);
    finds.Look(Value::AreaFontName, "font name", program.run.DefaultFontName);
    finds.Look(Value::Picture, "logo", format.LogoPath);
    finds.Tell(program);
}

void TellUnkeptProperties(const Program& program) {
    Finds finds;
    LookAtLabels(program, program.format.PropLabelChanges, finds);
    finds.Look(Value::AreaFontName, "font name", program.run.DefaultFontName);
    finds.Tell(program);
}

} // namespace modUnkept
