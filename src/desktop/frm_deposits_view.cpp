#include "desktop/frm_deposits_view.h"

#include "deposits/frm_deposits.h"
#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "desktop/entry_edit.h"
#include "desktop/row_table.h"
#include "desktop/window_menu_bar.h"
#include "program/program.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

FrmDepositsView::FrmDepositsView(Program& program, frmDeposits& window, QWidget* over,
                                 std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), deposits_(window) {
    Build();
    Connect();
    FrmDepositsView::Follow();
}

void FrmDepositsView::Build() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(14, 10, 14, 12);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    menu_ = new WindowMenuBar(
        this, deposits_, [this](std::string_view name) { Do([&] { deposits_.Choose(program_, name); }); });
    grid->setMenuBar(menu_);

    const auto entry = [&](const char* name, const StripLabel& label) {
        const QString spoken = convert::ToQString(label.Caption);
        return new EntryEdit(this, name, spoken);
    };
    name_ = entry("txtName", deposits_.lblName);
    date_ = entry("txtDate", deposits_.lblDate);
    amount_ = entry("txtAmount", deposits_.lblAmount);
    amount_->setAlignment(Qt::AlignRight);
    amount_->KeyFilter = frmDeposits::txtAmount_KeyPress;
    amount_->TextFilter = frmDeposits::txtAmount_KeyPress;
    save_ = dialog::Button(this, "cmdSave", deposits_.cmdSave);
    grid->addWidget(dialog::Words(this, "lblName", deposits_.lblName.Caption), 0, 0, 1, 3);
    grid->addWidget(name_, 1, 0, 1, 3);
    grid->addWidget(dialog::Words(this, "lblDate", deposits_.lblDate.Caption), 2, 0);
    grid->addWidget(dialog::Words(this, "lblAmount", deposits_.lblAmount.Caption), 2, 1);
    grid->addWidget(date_, 3, 0);
    grid->addWidget(amount_, 3, 1);
    grid->addWidget(save_, 3, 2);

    list_ = new RowTable(this, "lst", tr("Deposits received"));
    list_->Rows.Columns = 2;
    list_->Rows.RightColumn = 1;
    list_->Rows.Words = [this](int row, int column) {
        const std::string& item = deposits_.lst.Items[static_cast<std::size_t>(row)];
        const std::size_t first = item.find('\t');
        if (first == std::string::npos) {
            return column == 0 ? convert::ToQString(item) : QString();
        }
        return convert::ToQString(column == 0 ? item.substr(0, first) : item.substr(item.rfind('\t') + 1));
    };
    list_->Rows.Tip = [this](int row) {
        return convert::ToQString(deposits_.lst.Items[static_cast<std::size_t>(row)]).simplified();
    };
    list_->setColumnWidth(0, 200);
    grid->addWidget(list_, 4, 0, 1, 3);
    grid->setRowStretch(4, 1);

    total_ = dialog::Words(this, "lblTotal", deposits_.lblTotal.Caption);
    QFont strong = total_->font();
    strong.setBold(true);
    total_->setFont(strong);
    total_->setAlignment(Qt::AlignRight);
    grid->addWidget(total_, 5, 0, 1, 3);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    resize(440, 420);
    setTabOrder(name_, date_);
    setTabOrder(date_, amount_);
    setTabOrder(amount_, save_);
    setTabOrder(save_, list_);
}

void FrmDepositsView::Connect() {
    name_->Edited = [this](const std::string& text) {
        Do([&] { deposits_.txtName_Change(program_, text); });
    };
    date_->Edited = [this](const std::string& text) {
        Do([&] { deposits_.txtDate_Change(program_, text); });
    };
    amount_->Edited = [this](const std::string& text) {
        Do([&] { deposits_.txtAmount_Change(program_, text); });
    };
    date_->Entered = [this] { Do([this] { deposits_.txtDate_Enter(program_); }); };
    amount_->Entered = [this] { Do([this] { deposits_.txtAmount_Enter(program_); }); };
    connect(save_, &QPushButton::clicked, this,
            [this] { Do([this] { deposits_.cmdSave_Click(program_); }); });
    list_->Selected = [this](const std::vector<int>& rows, int current) {
        Do([&] { deposits_.lst_Click(rows, current); });
    };
    for (QWidget* control :
         {static_cast<QWidget*>(name_), static_cast<QWidget*>(date_), static_cast<QWidget*>(amount_),
          static_cast<QWidget*>(save_), static_cast<QWidget*>(list_)}) {
        control->installEventFilter(this);
    }
}

bool FrmDepositsView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const std::string control = watched->objectName().toStdString();
        if (control != deposits_.ActiveControl) {
            active_ = control;
            Do([&] { deposits_.MoveFocus(program_, control); });
        }
        // The next amount replaces the one that stands there, however the keyboard came; a click sets the
        // caret, and a window that comes back to the front leaves it where it was.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (watched == amount_ && reason != Qt::MouseFocusReason && reason != Qt::ActiveWindowFocusReason &&
            reason != Qt::PopupFocusReason) {
            amount_->selectAll();
        }
    }
    return WindowView::eventFilter(watched, event);
}

void FrmDepositsView::Follow() {
    WindowView::Follow();
    menu_->Follow(deposits_);
    name_->Follow(deposits_.txtName);
    date_->Follow(deposits_.txtDate);
    amount_->Follow(deposits_.txtAmount);
    list_->Follow(deposits_.lst);
    const QString total = convert::ToQString(deposits_.lblTotal.Caption);
    if (total_->text() != total) {
        total_->setText(total);
    }
    if (save_->isEnabled() != deposits_.cmdSave.Enabled) {
        save_->setEnabled(deposits_.cmdSave.Enabled);
    }
    if (save_->isDefault() != deposits_.SaveIsDefault) {
        save_->setDefault(deposits_.SaveIsDefault);
    }
    if (active_ != deposits_.ActiveControl) {
        active_ = deposits_.ActiveControl;
        if (auto* control = findChild<QWidget*>(QString::fromStdString(active_))) {
            control->setFocus();
        }
    }
}
