#include "addresses/frm_address.h"
#include "calculator/frm_calc.h"
#include "calendar/frm_dates.h"
#include "contract/frm_editor.h"
#include "contract/frm_notes.h"
#include "deposits/frm_deposits.h"
#include "desktop/dialog_parts.h"
#include "desktop/format_views.h"
#include "desktop/frm_address_view.h"
#include "desktop/frm_calc_view.h"
#include "desktop/frm_dates_view.h"
#include "desktop/frm_deposits_view.h"
#include "desktop/frm_editor_view.h"
#include "desktop/frm_file_view.h"
#include "desktop/frm_fut_view.h"
#include "desktop/frm_notes_view.h"
#include "desktop/frm_spelling_view.h"
#include "desktop/frm_splash_view.h"
#include "desktop/frm_text_file_view.h"
#include "desktop/search_views.h"
#include "desktop/settings_views.h"
#include "desktop/term_views.h"
#include "desktop/window_views.h"
#include "format/frm_label_props.h"
#include "format/frm_rgb.h"
#include "format/frm_snap.h"
#include "format/frm_text_props.h"
#include "format/frm_title.h"
#include "output/frm_dialog.h"
#include "program/program.h"
#include "search/frm_search.h"
#include "search/frm_sr.h"
#include "settings/frm_acstart.h"
#include "settings/frm_poffsets.h"
#include "settings/frm_pref.h"
#include "settings/frm_printers.h"
#include "settings/frm_tax.h"
#include "shell/frm_splash.h"
#include "terms/frm_add_fut.h"
#include "terms/frm_edit_fut.h"
#include "terms/frm_fut.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace {

class FrmDialogView : public WindowView {
public:
    FrmDialogView(Program& program, frmDialog& window, QWidget* over, std::function<void()> afterEvent)
        : WindowView(program, window, over, std::move(afterEvent)) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(24, 18, 24, 16);
        column->setSpacing(14);
        QLabel* message = dialog::Words(this, "lblMessage", window.lblMessage.Caption);
        message->setWordWrap(false);
        column->addWidget(message);
        QPushButton* cancel = dialog::Button(this, "cmdCancelPrint", window.cmdCancelPrint);
        column->addWidget(cancel);
        connect(cancel, &QPushButton::clicked, this,
                [this, &window] { Do([&] { window.cmdCancelPrint_Click(program_); }); });
    }
};

/// The view of a window, if it is of that class.
template <typename Model, typename View>
std::unique_ptr<WindowView> ViewOf(Program& program, Window& window, QWidget* over,
                                   const std::function<void()>& afterEvent) {
    auto* model = dynamic_cast<Model*>(&window);
    return model == nullptr ? nullptr : std::make_unique<View>(program, *model, over, afterEvent);
}

constexpr std::array kViews{
    ViewOf<frmTax, FrmTaxView>,
    ViewOf<frmPref, FrmPrefView>,
    ViewOf<frmACStart, FrmACStartView>,
    ViewOf<frmPOffsets, FrmPOffsetsView>,
    ViewOf<frmPrinters, FrmPrintersView>,
    ViewOf<frmDialog, FrmDialogView>,
    ViewOf<frmLabelProps, FrmLabelPropsView>,
    ViewOf<frmTextProps, FrmTextPropsView>,
    ViewOf<frmRGB, FrmRGBView>,
    ViewOf<frmSnap, FrmSnapView>,
    ViewOf<frmTitle, FrmTitleView>,
    ViewOf<frmFile, FrmFileView>,
    ViewOf<frmSplash, FrmSplashView>,
    ViewOf<frmDeposits, FrmDepositsView>,
    ViewOf<frmNotes, FrmNotesView>,
    ViewOf<frmDates, FrmDatesView>,
    ViewOf<frmEditor, FrmEditorView>,
    ViewOf<frmFUT, FrmFutView>,
    ViewOf<frmAddFUT, FrmAddFutView>,
    ViewOf<frmEditFUT, FrmEditFutView>,
    ViewOf<frmCalc, FrmCalcView>,
    ViewOf<frmSearch, FrmSearchView>,
    ViewOf<frmSR, FrmSRView>,
    ViewOf<frmAddress, FrmAddressView>,
    ViewOf<frmSpelling, FrmSpellingView>,
    ViewOf<frmTextFile, FrmTextFileView>,
};

} // namespace

std::unique_ptr<WindowView> MakeWindowView(Program& program, Window& window, QWidget* over,
                                           const std::function<void()>& afterEvent) {
    for (const auto& make : kViews) {
        if (std::unique_ptr<WindowView> view = make(program, window, over, afterEvent)) {
            return view;
        }
    }
    return std::make_unique<WindowView>(program, window, over, afterEvent);
}
