#pragma once

#include "program/controls.h"
#include "program/page_records.h"
#include "program/window.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A combo box whose text can be typed.
struct TypedComboBox {
    std::string Text;
    std::vector<std::string> Items;
    int SelStart = 0;
    int SelLength = 0;
};

/// "Searching for...": the phrase, and whether on all pages or this one.
class frmSearch : public Window {
public:
    StripLabel lblSearch{.Caption = "Search for...", .ToolTipText = ""};
    TypedComboBox cmbSearch;
    std::array<OptionButton, 2> optSearch{OptionButton{.Caption = "Search All Pages", .Value = true},
                                          OptionButton{.Caption = "Search this Page Only"}};
    CommandButton cmdOK{.Caption = "OK", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};
    int HitCount = 0; ///< of the search under way
    /// Runs when the window closes; the tool button that opened it comes up again.
    std::function<void(Program&)> Closed;

    [[nodiscard]] std::string_view Name() const override { return "frmSearch"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;

    void cmbSearch_Change(Program& program, std::string_view text);
    void optSearch_Click(Program& program, int index);
    /// Searches; goes to a single hit, shows several, tells of none. Closes the window.
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);

    /// Looks through the pages that the options name and fills the list of hits.
    void SearchPages(Program& program);
    /// Tests one area and appends a hit.
    void SearchForPhrase(Program& program, PageId page, int index);
    /// The phrases searched since the start, for the list of `cmbSearch`. Reports as "UpDateRecentSearches".
    void UpDateRecentSearches(const Program& program);

private:
    void SearchPage(Program& program, PageId page);
};

namespace modSearch {

/// What comes before the dialog: refused on the client's copy, confirmed while results stand. Whether a
/// search may start.
[[nodiscard]] bool MayStart(Program& program);

} // namespace modSearch
