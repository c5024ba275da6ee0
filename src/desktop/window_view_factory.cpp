#include "desktop/dialog_parts.h"
#include "desktop/frm_file_view.h"
#include "desktop/frm_splash_view.h"
#include "desktop/settings_views.h"
#include "desktop/window_views.h"
#include "output/frm_dialog.h"
#include "program/program.h"
#include "settings/frm_acstart.h"
#include "settings/frm_poffsets.h"
#include "settings/frm_pref.h"
#include "settings/frm_printers.h"
#include "settings/frm_tax.h"
#include "shell/frm_splash.h"

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
    ViewOf<frmTax, FrmTaxView>,           ViewOf<frmPref, FrmPrefView>,
    ViewOf<frmACStart, FrmACStartView>,   ViewOf<frmPOffsets, FrmPOffsetsView>,
    ViewOf<frmPrinters, FrmPrintersView>, ViewOf<frmDialog, FrmDialogView>,
    ViewOf<frmFile, FrmFileView>,         ViewOf<frmSplash, FrmSplashView>,
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
