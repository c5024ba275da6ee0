#include "desktop/settings_views.h"

#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "program/program.h"
#include "settings/frm_acstart.h"
#include "settings/frm_poffsets.h"
#include "settings/frm_pref.h"
#include "settings/frm_printers.h"
#include "settings/frm_tax.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

constexpr int kBoxWidth = 120;

void ShowText(QLabel* label, const std::string& text) {
    const QString shown = convert::ToQString(text);
    if (label->text() != shown) {
        label->setText(shown);
    }
}

void ShowText(QLineEdit* edit, const std::string& text) {
    const QString shown = convert::ToQString(text);
    if (edit->text() != shown) {
        edit->setText(shown);
    }
}

} // namespace

FrmTaxView::FrmTaxView(Program& program, frmTax& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)) {
    QVBoxLayout* column = dialog::Column(this);
    column->addWidget(dialog::Words(this, "lblTaxRate", window.lblTaxRate.Caption));
    auto* rate = dialog::FilteredEdit(this, "txtTaxRate", tr("New sales tax rate in percent"),
                                      frmTax::txtTaxRate_KeyPress);
    rate->setMaximumWidth(kBoxWidth);
    column->addWidget(rate);
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    dialog::Foot(column, {ok, cancel});
    setMinimumWidth(360);
    rate->setText(convert::ToQString(window.txtTaxRate.Text));
    rate->setSelection(window.txtTaxRate.SelStart, window.txtTaxRate.SelLength);
    connect(rate, &QLineEdit::textChanged, this,
            [rate, &window] { window.txtTaxRate.Text = convert::ToModel(rate->text()); });
    connect(ok, &QPushButton::clicked, this, [this, &window] { Do([&] { window.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdCancel_Click(program_); }); });
    rate->setFocus();
}

FrmPrefView::FrmPrefView(Program& program, frmPref& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)) {
    QVBoxLayout* column = dialog::Column(this);
    const std::array<std::pair<const char*, CheckBox*>, 7> boxes{
        {{"chkShowFUT", &window.chkShowFUT},
         {"chkShowCalc", &window.chkShowCalc},
         {"chkMinimizeFUT", &window.chkMinimizeFUT},
         {"chkACStart", &window.chkACStart},
         {"chkACEnable", &window.chkACEnable},
         {"chkLoadDefaultFormat", &window.chkLoadDefaultFormat},
         {"chkLoadFUT", &window.chkLoadFUT}}};
    for (const auto& [name, record] : boxes) {
        auto* box = new QCheckBox(convert::ToQString(record->Caption), this);
        box->setObjectName(QLatin1String(name));
        column->addWidget(box);
        connect(box, &QCheckBox::clicked, this,
                [this, box, record = record] { Do([&] { record->Value = box->isChecked(); }); });
        boxes_.push_back({box, record});
    }
    QPushButton* save = dialog::Button(this, "cmdSave", window.cmdSave);
    QPushButton* leave = dialog::Button(this, "cmdExit", window.cmdExit);
    dialog::Foot(column, {save, leave});
    connect(save, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdSave_Click(program_); }); });
    connect(leave, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdExit_Click(program_); }); });
}

void FrmPrefView::Follow() {
    WindowView::Follow();
    for (const Shown& shown : boxes_) {
        if (shown.Widget->isChecked() != shown.Record->Value) {
            shown.Widget->setChecked(shown.Record->Value);
        }
    }
}

FrmACStartView::FrmACStartView(Program& program, frmACStart& window, QWidget* over,
                               std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    column->addWidget(new QLabel(tr("Characters typed before a word is completed:"), this));
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    for (std::size_t index = 0; index < window.optACStart.size(); ++index) {
        auto* option = new QRadioButton(convert::ToQString(window.optACStart[index].Caption), this);
        option->setObjectName(QStringLiteral("optACStart(%1)").arg(index));
        option->setAccessibleName(tr("Complete after %1 characters").arg(index));
        option->setAutoExclusive(false); // a position beyond the options leaves all of them off
        connect(option, &QRadioButton::clicked, this,
                [this, index] { Do([&] { model_.optACStart_Click(program_, static_cast<int>(index)); }); });
        row->addWidget(option);
        options_.push_back(option);
    }
    row->addStretch(1);
    column->addLayout(row);
    auto* second = new QHBoxLayout;
    second->setSpacing(8);
    QLabel* words = dialog::Words(this, "lblACStart", window.lblACStart.Caption);
    words->setWordWrap(false);
    second->addWidget(words);
    other_ = dialog::FilteredEdit(this, "txtACStart", convert::ToQString(window.lblACStart.Caption),
                                  frmACStart::txtACStart_KeyPress);
    other_->setMaximumWidth(kBoxWidth);
    second->addWidget(other_);
    second->addStretch(1);
    column->addLayout(second);
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    dialog::Foot(column, {ok, cancel});
    connect(other_, &QLineEdit::textChanged, this,
            [this] { model_.txtACStart.Text = convert::ToModel(other_->text()); });
    connect(ok, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdCancel_Click(program_); }); });
    const auto chosen = std::find_if(window.optACStart.begin(), window.optACStart.end(),
                                     [](const OptionButton& option) { return option.Value; });
    if (chosen != window.optACStart.end()) {
        options_[static_cast<std::size_t>(chosen - window.optACStart.begin())]->setFocus();
    } else {
        other_->setFocus();
    }
}

void FrmACStartView::Follow() {
    WindowView::Follow();
    for (std::size_t index = 0; index < options_.size(); ++index) {
        if (options_[index]->isChecked() != model_.optACStart[index].Value) {
            options_[index]->setChecked(model_.optACStart[index].Value);
        }
    }
    ShowText(other_, model_.txtACStart.Text);
}

FrmPOffsetsView::FrmPOffsetsView(Program& program, frmPOffsets& window, QWidget* over,
                                 std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    const auto box = [this, column](const char* label, const char* name, const QString& spoken) {
        QLabel* words = dialog::Words(this, label, {});
        words->setWordWrap(false);
        column->addWidget(words);
        auto* edit = dialog::FilteredEdit(this, name, spoken, frmPOffsets::txt_KeyPress);
        edit->setMaximumWidth(kBoxWidth);
        column->addWidget(edit);
        return std::pair<QLabel*, QLineEdit*>(words, edit);
    };
    std::tie(labelX_, x_) = box("lblX", "txtX", tr("New horizontal offset in inches"));
    std::tie(labelY_, y_) = box("lblY", "txtY", tr("New vertical offset in inches"));
    QPushButton* apply = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* save = dialog::Button(this, "cmdSavePrinterOffsets", window.cmdSavePrinterOffsets);
    auto* help = new QPushButton(tr("Help"), this);
    help->setObjectName(QStringLiteral("mnuHelpPrinterOffsets"));
    help->setAutoDefault(false);
    help->setShortcut(QKeySequence(Qt::Key_F1));
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(help);
    row->addStretch(1);
    row->addWidget(apply);
    row->addWidget(save);
    apply->setDefault(true);
    column->addSpacing(4);
    column->addLayout(row);
    setTabOrder(save, help);
    connect(apply, &QPushButton::clicked, this, [this] {
        Take();
        Do([&] { model_.cmdOK_Click(program_); });
    });
    connect(save, &QPushButton::clicked, this, [this] {
        Take();
        Do([&] { model_.cmdSavePrinterOffsets_Click(program_); });
    });
    connect(help, &QPushButton::clicked, this,
            [this] { Do([&] { frmPOffsets::mnuHelpPrinterOffsets_Click(program_); }); });
    ShowText(x_, window.txtX.Text);
    ShowText(y_, window.txtY.Text);
    x_->setFocus();
    x_->selectAll();
}

void FrmPOffsetsView::Take() {
    model_.txtX.Text = convert::ToModel(x_->text());
    model_.txtY.Text = convert::ToModel(y_->text());
}

void FrmPOffsetsView::Follow() {
    WindowView::Follow();
    ShowText(labelX_, model_.lblX.Caption);
    ShowText(labelY_, model_.lblY.Caption);
}

FrmPrintersView::FrmPrintersView(Program& program, frmPrinters& window, QWidget* over,
                                 std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    printers_ = new QComboBox(this);
    printers_->setObjectName(QStringLiteral("cmbPrinters"));
    printers_->setAccessibleName(tr("Available printers"));
    printers_->setMinimumWidth(340);
    printers_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    column->addWidget(printers_);
    choose_ = dialog::Button(this, "cmdPrinter", window.cmdPrinter);
    auto* leave = new QPushButton(tr("Close"), this);
    leave->setObjectName(QStringLiteral("cmdClose"));
    leave->setAutoDefault(false);
    dialog::Foot(column, {choose_, leave});
    connect(printers_, &QComboBox::activated, this,
            [this](int index) { Do([&] { model_.cmbPrinters_Click(program_, index); }); });
    connect(choose_, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdPrinter_Click(program_); }); });
    connect(leave, &QPushButton::clicked, this, [this] { Do([&] { model_.Form_Cancel(program_); }); });
    printers_->setFocus();
}

void FrmPrintersView::Follow() {
    WindowView::Follow();
    QStringList names;
    for (const std::string& name : model_.cmbPrinters.Items) {
        names.push_back(convert::ToQString(name));
    }
    QStringList shown;
    for (int index = 0; index < printers_->count(); ++index) {
        shown.push_back(printers_->itemText(index));
    }
    if (shown != names) {
        printers_->clear();
        printers_->addItems(names);
    }
    printers_->setPlaceholderText(convert::ToQString(model_.cmbPrinters.Placeholder));
    if (printers_->currentIndex() != model_.cmbPrinters.ListIndex) {
        printers_->setCurrentIndex(model_.cmbPrinters.ListIndex);
    }
}
