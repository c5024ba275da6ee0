#pragma once

#include "desktop/window_views.h"
#include "output/frm_text_file.h"

class FrmTextFileView : public WindowView {
    Q_OBJECT
public:
    FrmTextFileView(Program& program, frmTextFile& window, QWidget* over, std::function<void()> afterEvent);
};
