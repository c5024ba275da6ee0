#include "core/frm_tax.h"
#include "core/program.h"
#include "desktop/convert.h"
#include "desktop/frm_file_view.h"
#include "desktop/window_views.h"
#include "output/frm_dialog.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* Words(QDialog* dialog, const char* name, const std::string& caption) {
    auto* label = new QLabel(convert::ToQString(caption), dialog);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* Button(QDialog* dialog, const char* name, const CommandButton& record) {
    auto* button = new QPushButton(convert::ToQString(record.Caption), dialog);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

/// A line edit whose characters pass a filter of the model.
class FilteredEdit : public QLineEdit {
public:
    FilteredEdit(QWidget* parent, int (*filter)(int)) : QLineEdit(parent), filter_(filter) {
        connect(this, &QLineEdit::textEdited, this, [this](const QString& now) { Refilter(now); });
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const QString entered = event->text();
        if (entered.size() == 1 && entered.front().isPrint() && event->modifiers() <= Qt::ShiftModifier) {
            const auto byte = convert::ToByte(entered.front());
            if (!byte || filter_(static_cast<unsigned char>(*byte)) == 0) {
                return;
            }
        }
        QLineEdit::keyPressEvent(event);
    }

private:
    /// What came by paste or drop keeps only the characters that could have been typed.
    void Refilter(const QString& now) {
        QString kept;
        for (const QChar character : now) {
            const auto byte = convert::ToByte(character);
            if (byte && filter_(static_cast<unsigned char>(*byte)) != 0) {
                kept += character;
            }
        }
        if (kept != now) {
            setText(kept);
        }
    }
    int (*filter_)(int);
};

class FrmTaxView : public WindowView {
public:
    FrmTaxView(Program& program, frmTax& window, QWidget* over, std::function<void()> afterEvent)
        : WindowView(program, window, over, std::move(afterEvent)) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(18, 16, 18, 14);
        column->setSpacing(12);
        column->addWidget(Words(this, "lblTaxRate", window.lblTaxRate.Caption));
        auto* rate = new FilteredEdit(this, frmTax::txtTaxRate_KeyPress);
        rate->setObjectName(QStringLiteral("txtTaxRate"));
        rate->setAccessibleName(tr("New sales tax rate in percent"));
        rate->setMaximumWidth(120);
        column->addWidget(rate);
        auto* row = new QHBoxLayout;
        row->addStretch(1);
        QPushButton* ok = Button(this, "cmdOK", window.cmdOK);
        QPushButton* cancel = Button(this, "cmdCancel", window.cmdCancel);
        ok->setDefault(true);
        row->addWidget(ok);
        row->addWidget(cancel);
        column->addLayout(row);
        setMinimumWidth(360);
        connect(ok, &QPushButton::clicked, this, [this, rate, &window] {
            Do([&] {
                window.txtTaxRate.Text = convert::ToModel(rate->text());
                window.cmdOK_Click(program_);
            });
        });
        connect(cancel, &QPushButton::clicked, this,
                [this, &window] { Do([&] { window.cmdCancel_Click(program_); }); });
        rate->setFocus();
    }
};

class FrmDialogView : public WindowView {
public:
    FrmDialogView(Program& program, frmDialog& window, QWidget* over, std::function<void()> afterEvent)
        : WindowView(program, window, over, std::move(afterEvent)) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(24, 18, 24, 16);
        column->setSpacing(14);
        QLabel* message = Words(this, "lblMessage", window.lblMessage.Caption);
        message->setWordWrap(false);
        column->addWidget(message);
        QPushButton* cancel = Button(this, "cmdCancelPrint", window.cmdCancelPrint);
        column->addWidget(cancel);
        connect(cancel, &QPushButton::clicked, this,
                [this, &window] { Do([&] { window.cmdCancelPrint_Click(program_); }); });
    }
};

} // namespace

std::unique_ptr<WindowView> MakeWindowView(Program& program, Window& window, QWidget* over,
                                           std::function<void()> afterEvent) {
    if (auto* tax = dynamic_cast<frmTax*>(&window)) {
        return std::make_unique<FrmTaxView>(program, *tax, over, std::move(afterEvent));
    }
    if (auto* dialog = dynamic_cast<frmDialog*>(&window)) {
        return std::make_unique<FrmDialogView>(program, *dialog, over, std::move(afterEvent));
    }
    if (auto* file = dynamic_cast<frmFile*>(&window)) {
        return std::make_unique<FrmFileView>(program, *file, over, std::move(afterEvent));
    }
    return std::make_unique<WindowView>(program, window, over, std::move(afterEvent));
}
