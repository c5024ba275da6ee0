#include "support/whole_state.h"

#include "editing/text_menu.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "shell/main_controls.h"

#include <cstddef>
#include <optional>
#include <sstream>
#include <string_view>

namespace {

class Teller {
public:
    explicit Teller(WholeState& state) : state_(state) {}

    bool OnShow = true; ///< on a page that nobody sees, fields may be shown or not

    Teller In(const std::string& name) const {
        Teller inner(state_);
        inner.prefix_ = prefix_ + name + ".";
        inner.OnShow = OnShow;
        return inner;
    }
    template <class Value> void Tell(std::string_view name, const Value& value) const {
        std::ostringstream text;
        text << value;
        state_[prefix_ + std::string(name)] = text.str();
    }
    void Tell(std::string_view name, const std::optional<FieldRef>& field) const {
        Tell(name, field ? std::to_string(IndexOf(field->Page)) + "/" +
                               std::to_string(static_cast<int>(field->Kind)) + "/" +
                               std::to_string(field->Index)
                         : std::string("none"));
    }

private:
    WholeState& state_;
    std::string prefix_;
};

std::string At(std::string_view name, std::size_t index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

void TellArea(const Teller& to, const TextArea& area) {
    to.Tell("Text", area.Text);
    to.Tell("Tag", area.Tag);
    to.Tell("ToolTipText", area.ToolTipText);
    to.Tell("Left", area.Left);
    to.Tell("Top", area.Top);
    to.Tell("Width", area.Width);
    to.Tell("Height", area.Height);
    to.Tell("BackColor", area.BackColor);
    to.Tell("ForeColor", area.ForeColor);
    to.Tell("FontName", area.FontName);
    to.Tell("FontSize", area.FontSize);
    to.Tell("FontBold", area.FontBold);
    to.Tell("FontItalic", area.FontItalic);
    to.Tell("Visible", to.OnShow && area.Visible);
    to.Tell("Enabled", area.Enabled);
    to.Tell("Locked", area.Locked);
}

void TellLabel(const Teller& to, const PageLabel& label) {
    to.Tell("Caption", label.Caption);
    to.Tell("Tag", label.Tag);
    to.Tell("ToolTipText", label.ToolTipText);
    to.Tell("Left", label.Left);
    to.Tell("Top", label.Top);
    to.Tell("FontName", label.FontName);
    to.Tell("FontSize", label.FontSize);
    to.Tell("FontBold", label.FontBold);
    to.Tell("FontItalic", label.FontItalic);
    to.Tell("FontUnderline", label.FontUnderline);
    to.Tell("ForeColor", label.ForeColor);
    to.Tell("BackColor", label.BackColor);
    to.Tell("BackStyle", label.BackStyle);
    to.Tell("Visible", to.OnShow && label.Visible);
}

void TellPage(Teller to, const Page& page) {
    to.OnShow = page.Visible;
    to.Tell("Tag", page.Tag);
    to.Tell("Caption", page.Caption);
    to.Tell("Left", page.Left);
    to.Tell("Visible", page.Visible);
    if (page.Visible) { // a page that comes to the front is put in its place, and without the grid
        to.Tell("Top", page.Top);
        to.Tell("CenterLines", page.CenterLines.size());
        to.Tell("GridPoints", page.GridPoints.size());
    }
    to.Tell("FontName", page.FontName);
    to.Tell("FontSize", page.FontSize);
    to.Tell("FontBold", page.FontBold);
    to.Tell("FontItalic", page.FontItalic);
    for (std::size_t at = 0; at < page.txt.size(); ++at) {
        TellArea(to.In(At("txt", at)), page.txt[at]);
    }
    for (std::size_t at = 0; at < page.txtQty.size(); ++at) {
        TellArea(to.In(At("txtQty", at)), page.txtQty[at]);
        TellArea(to.In(At("txtAmt", at)), page.txtAmt[at]);
        TellLabel(to.In(At("lblAt", at)), page.lblAt[at]);
        TellLabel(to.In(At("lblEach", at)), page.lblEach[at]);
    }
    for (std::size_t at = 0; at < page.lbl.size(); ++at) {
        TellLabel(to.In(At("lbl", at)), page.lbl[at]);
    }
    for (std::size_t at = 0; at < page.imgNoTax.size(); ++at) {
        to.Tell(At("imgNoTax", at) + ".Tag", page.imgNoTax[at].Tag);
        to.Tell(At("imgNoTax", at) + ".Visible", page.Visible && page.imgNoTax[at].Visible);
    }
    to.Tell("pic.Left", page.pic.Left);
    to.Tell("pic.Top", page.pic.Top);
    to.Tell("pic.Width", page.pic.Size.Width);
    to.Tell("pic.Tag", page.pic.Tag);
    to.Tell("pic.BorderStyle", page.pic.BorderStyle);
    to.Tell("pic.Visible", page.Visible && page.pic.Visible);
    to.Tell("shpSelect.Visible", page.shpSelect.Visible);
    to.Tell("InkShown", page.InkShown);
}

void TellTexts(const Teller& to, const TextChangeTable& table) {
    for (const PageId page : kEditedPages) {
        for (std::size_t at = 0; at < table[page].size(); ++at) {
            const TextChangeRecord& record = table[page][at];
            const Teller here = to.In(At(geometry::PageName(page), at));
            here.Tell("Dirty", record.Dirty);
            here.Tell("FontBold", record.FontBold);
            here.Tell("Text", record.Text);
            here.Tell("FormatText", record.FormatText);
            here.Tell("TaxExempt", record.TaxExempt);
            here.Tell("QtyBox", record.QtyBox);
            here.Tell("QtyValue", record.QtyValue);
            here.Tell("AmtValue", record.AmtValue);
            here.Tell("QtyChanged", record.QtyChanged);
        }
    }
}

void TellLabels(const Teller& to, const LabelChangeTable& table) {
    for (const PageId page : kEditedPages) {
        for (std::size_t at = 0; at < table[page].size(); ++at) {
            const LabelChangeRecord& record = table[page][at];
            const Teller here = to.In(At(geometry::PageName(page), at));
            here.Tell("Left", record.Left);
            here.Tell("Top", record.Top);
            here.Tell("Caption", record.Caption);
            here.Tell("FontName", record.FontName);
            here.Tell("FontSize", record.FontSize);
            here.Tell("FontBold", record.FontBold);
            here.Tell("ForeColor", record.ForeColor);
            here.Tell("FontItalic", record.FontItalic);
            here.Tell("FontUnderline", record.FontUnderline);
            here.Tell("Changed", record.Changed);
            here.Tell("Saved", record.Saved);
            here.Tell("FromFormat", record.FromFormat);
        }
    }
}

void TellFormat(const Teller& to, const FormatRecords& format) {
    TellTexts(to.In("PropTextChanges"), format.PropTextChanges);
    TellTexts(to.In("FormatTextChanges"), format.FormatTextChanges);
    TellLabels(to.In("PropLabelChanges"), format.PropLabelChanges);
    TellLabels(to.In("FormatLabelChanges"), format.FormatLabelChanges);
    TellLabels(to.In("LabelSavedState"), format.LabelSavedState);
    to.Tell("PropertyLines", format.PropertyLines.size());
    to.Tell("FormatOpen", format.FormatOpen);
    to.Tell("EditingFormat", format.EditingFormat);
    to.Tell("FormatName", format.FormatName);
    to.Tell("Touched", format.Touched);
    to.Tell("LogoPath", format.LogoPath);
    to.Tell("LogoLeft", format.LogoLeft);
    to.Tell("LogoTop", format.LogoTop);
    to.Tell("LogoChanged", format.LogoChanged);
    to.Tell("LogoPending", format.LogoPending);
}

void TellDocument(const Teller& to, const DocumentState& document) {
    to.Tell("FilePath", document.FilePath);
    to.Tell("FileName", document.FileName);
    to.Tell("BaseName", document.BaseName);
    to.Tell("TextFileName", document.TextFileName);
    to.Tell("FootnoteFile", document.FootnoteFile);
    to.Tell("DepositFile", document.DepositFile);
    to.Tell("FileExists", document.FileExists);
    to.Tell("FromBackup", document.FromBackup);
    to.Tell("ClientCaption", document.ClientCaption);
    to.Tell("TitleGiven", document.TitleGiven);
    to.Tell("DocumentKind", document.DocumentKind);
    to.Tell("PageHeading", document.PageHeading);
    to.Tell("Cancelled", document.Cancelled);
    to.Tell("SaveAsActive", document.SaveAsActive);
    to.Tell("PagesInUse", document.PagesInUse);
    to.Tell("WindowTitle", document.WindowTitle);
    to.Tell("HasNotes", document.HasNotes);
    to.Tell("HasClient", document.HasClient);
    to.Tell("IgnoreProperties", document.IgnoreProperties);
    to.Tell("PropertiesIgnored", document.PropertiesIgnored);
    to.Tell("SavedFile", document.SavedFile.Sum);
    to.Tell("OwnBackup", document.OwnBackup);
    to.Tell("SavedStateStale", document.SavedStateStale);
    for (const PageId page : kEditedPages) {
        for (std::size_t at = 0; at < document.CurrentTextBuf[page].size(); ++at) {
            to.Tell(At(std::string("CurrentTextBuf.") + std::string(geometry::PageName(page)), at),
                    document.CurrentTextBuf[page][at]);
        }
        for (std::size_t at = 0; at < document.SavedTextBuf[page].size(); ++at) {
            to.Tell(At(std::string("SavedTextBuf.") + std::string(geometry::PageName(page)), at),
                    document.SavedTextBuf[page][at]);
        }
    }
}

void TellTotals(const Teller& to, const TotalsRecords& totals) {
    for (const PageId page : kLinePages) {
        for (std::size_t row = 0; row < kRowCount; ++row) {
            to.Tell(At(std::string("AmountTable.") + std::string(geometry::PageName(page)), row),
                    totals.AmountTable[row][page]);
            to.Tell(At(std::string("TaxableTable.") + std::string(geometry::PageName(page)), row),
                    totals.TaxableTable[row][page]);
        }
    }
    to.Tell("SubTotal", totals.SubTotal);
    to.Tell("TaxableTotal", totals.TaxableTotal);
    to.Tell("SalesTax", totals.SalesTax);
    to.Tell("Total", totals.Total);
    to.Tell("Deposit", totals.Deposit);
    to.Tell("Balance", totals.Balance);
    to.Tell("TotalsHidden", totals.TotalsHidden);
    to.Tell("TotalsStale", totals.TotalsStale);
}

void TellEditing(const Teller& to, const EditingState& editing) {
    to.Tell("BlockMode", editing.BlockMode);
    to.Tell("RefireMode", editing.RefireMode);
    to.Tell("MoveInProgress", editing.MoveInProgress);
    to.Tell("PushNeeded", editing.PushNeeded);
    to.Tell("RightClickPending", editing.RightClickPending);
    to.Tell("UndoAvailable", editing.UndoAvailable);
    to.Tell("SelectedCount", editing.Block.SelectedCount);
    to.Tell("ManySelected", editing.Block.ManySelected);
    to.Tell("BandDragging", editing.Block.BandDragging);
    to.Tell("UndoMemory", editing.Block.UndoMemory.size());
    to.Tell("EmptiedAmount", editing.EmptiedAmount);
    for (const PageId page : kLinePages) {
        to.Tell(At("ACActive", static_cast<std::size_t>(IndexOf(page))), editing.ACActive[page]);
    }
}

void TellMain(const Teller& to, MainWindow& main) {
    to.Tell("Caption", main.Caption);
    to.Tell("CurrentPage", main.CurrentPage);
    to.Tell("ActivePage", IndexOf(main.ActivePage));
    to.Tell("PageInFront", IndexOf(main.PageInFront));
    to.Tell("LastTextIndex", main.LastTextIndex);
    to.Tell("LastLabelIndex", main.LastLabelIndex);
    to.Tell("Busy", main.Busy);
    to.Tell("Focus", main.Focus);
    for (const auto& [name, button] :
         {std::pair("cmdClearMem", &main.cmdClearMem), std::pair("cmdPreview", &main.cmdPreview),
          std::pair("cmdReCalc", &main.cmdReCalc), std::pair("cmdTaxRate", &main.cmdTaxRate)}) {
        to.Tell(std::string(name) + ".Caption", button->Caption);
        to.Tell(std::string(name) + ".BackColor", button->BackColor);
        to.Tell(std::string(name) + ".Enabled", button->Enabled);
        to.Tell(std::string(name) + ".Visible", button->Visible);
    }
    for (const auto& [name, image] :
         {std::pair("imgSave", &main.imgSave), std::pair("imgSaveAs", &main.imgSaveAs),
          std::pair("imgPrint", &main.imgPrint), std::pair("imgSearch", &main.imgSearch),
          std::pair("imgFootNotes", &main.imgFootNotes)}) {
        to.Tell(std::string(name) + ".Picture", image->Picture);
        to.Tell(std::string(name) + ".Enabled", image->Enabled);
        to.Tell(std::string(name) + ".Visible", image->Visible);
    }
    for (std::size_t at = 0; at < main.imgPage.size(); ++at) {
        to.Tell(At("imgPage", at) + ".Picture", main.imgPage[at].Picture);
        to.Tell(At("imgPage", at) + ".Enabled", main.imgPage[at].Enabled);
        to.Tell(At("imgPage", at) + ".Visible", main.imgPage[at].Visible);
    }
    for (const auto& [name, label] :
         {std::pair("lblPage", &main.lblPage), std::pair("lblEvent", &main.lblEvent),
          std::pair("lblHighestPage", &main.lblHighestPage), std::pair("lblTotal", &main.lblTotal)}) {
        to.Tell(std::string(name) + ".Caption", label->Caption);
        to.Tell(std::string(name) + ".ForeColor", label->ForeColor);
        to.Tell(std::string(name) + ".Visible", label->Visible);
    }
    for (std::size_t at = 0; at < main.Commands.size(); ++at) {
        const CommandState& command = main.Commands[at];
        to.Tell(At("Command", at) + ".Caption", command.Caption);
        to.Tell(At("Command", at) + ".Enabled", command.Enabled);
        to.Tell(At("Command", at) + ".Visible", command.Visible);
        to.Tell(At("Command", at) + ".Checked", command.Checked);
    }
}

} // namespace

WholeState StateOf(Program& program) {
    modTextMenu::UpdateTextMenu(program);
    modMain::WorkOutControls(program);
    WholeState state;
    const Teller all(state);
    for (const PageId page : kAllPages) {
        TellPage(all.In(std::string(geometry::PageName(page))), program.pages[page]);
    }
    TellDocument(all.In("document"), program.document);
    TellTotals(all.In("totals"), program.totals);
    TellFormat(all.In("format"), program.format);
    TellEditing(all.In("editing"), program.editing);
    TellMain(all.In("main"), program.main);
    all.Tell("run.DefaultFontName", program.run.DefaultFontName);
    all.Tell("run.DefaultFontSize", program.run.DefaultFontSize);
    all.Tell("run.DefaultFontColor", program.run.DefaultFontColor);
    all.Tell("run.DefaultFontItalic", program.run.DefaultFontItalic);
    all.Tell("run.LogoChecked", program.run.LogoChecked);
    all.Tell("designer.LabelMode", program.designer.LabelMode);
    all.Tell("designer.LabelPropsOpen", program.designer.LabelPropsOpen);
    return state;
}

std::string Differences(const WholeState& expected, const WholeState& actual) {
    constexpr int kMost = 30;
    std::ostringstream text;
    int told = 0;
    const auto tell = [&](const std::string& name, const std::string& one, const std::string& other) {
        if (++told <= kMost) {
            text << "\n  " << name << ": [" << other << "] and not [" << one << "]";
        }
    };
    for (const auto& [name, value] : expected) {
        const auto found = actual.find(name);
        if (found == actual.end()) {
            tell(name, value, "(none)");
        } else if (found->second != value) {
            tell(name, value, found->second);
        }
    }
    for (const auto& [name, value] : actual) {
        if (!expected.contains(name)) {
            tell(name, "(none)", value);
        }
    }
    return text.str();
}
