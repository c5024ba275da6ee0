#include "desktop/import_panel_view.h"

#include "desktop/convert.h"
#include "desktop/mnemonics.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QLabel* Words(QWidget* parent, const char* name) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ImportPanelView::ImportPanelView(Program& program, frmAddress& window, QWidget* parent, Event event)
    : QWidget(parent), program_(program), address_(window), event_(std::move(event)) {
    setObjectName(QStringLiteral("picImport"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 12, 14, 12);
    column->setSpacing(10);
    auto* top = new QHBoxLayout;
    main_ = Words(this, "lblMain");
    top->addWidget(main_, 1);
    auto* exit = new QToolButton(this);
    exit->setObjectName(QStringLiteral("imgExit"));
    exit->setText(QStringLiteral("\u2715"));
    exit->setAutoRaise(true);
    exit->setFocusPolicy(Qt::TabFocus);
    exit->setToolTip(convert::ToQString(address_.imgExit.ToolTipText));
    exit->setAccessibleName(exit->toolTip());
    connect(exit, &QToolButton::clicked, this,
            [this] { event_([this] { address_.imgExit_Click(program_); }); });
    top->addWidget(exit, 0, Qt::AlignTop);
    column->addLayout(top);
    // On a low screen the choices scroll; the buttons below stay in sight.
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* choices = new QWidget(scroll);
    auto* middle = new QHBoxLayout(choices);
    middle->setContentsMargins(0, 0, 0, 0);
    middle->setSpacing(14);
    middle->addWidget(Categories(), 2);
    middle->addWidget(ListTypes(), 3);
    scroll->setWidget(choices);
    column->addWidget(scroll, 1);
    column->addWidget(Buttons());
}

QWidget* ImportPanelView::Categories() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    QLabel* words = Words(side, "lblCat");
    words->setText(convert::ToQString(address_.lblCat.Caption));
    column->addWidget(words);
    for (int index = 0; index < kBatchCategoryCount; ++index) {
        auto* category = new QPushButton(side);
        category->setObjectName(QStringLiteral("lblFormat(%1)").arg(index));
        category->setAutoDefault(false);
        category->setCheckable(true);
        connect(category, &QPushButton::clicked, this,
                [this, index] { event_([this, index] { address_.lblFormat_Click(program_, index); }); });
        categories_[static_cast<std::size_t>(index)] = category;
        column->addWidget(category);
    }
    column->addStretch(1);
    return side;
}

QWidget* ImportPanelView::ListTypes() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QGroupBox(convert::ToQString(address_.framList.Caption), side);
    frame->setObjectName(QStringLiteral("framList"));
    auto* options = new QVBoxLayout(frame);
    for (int index = 0; index < AddressWindow::kListTypeCount; ++index) {
        auto* option = new QRadioButton(frame);
        option->setObjectName(QStringLiteral("optList(%1)").arg(index));
        connect(option, &QRadioButton::clicked, this,
                [this, index] { event_([this, index] { address_.optList_Click(program_, index); }); });
        types_[static_cast<std::size_t>(index)] = option;
        options->addWidget(option);
    }
    column->addWidget(frame);
    QLabel* caption = Words(side, "lblSample");
    caption->setText(convert::ToQString(address_.lblSample.Caption));
    column->addWidget(caption);
    sample_ = new QPlainTextEdit(side);
    sample_->setObjectName(QStringLiteral("txtSample"));
    sample_->setAccessibleName(caption->text());
    sample_->setReadOnly(true);
    sample_->setTabChangesFocus(true);
    sample_->setMinimumHeight(sample_->fontMetrics().lineSpacing() * 6);
    column->addWidget(sample_, 1);
    return side;
}

QWidget* ImportPanelView::Buttons() {
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const CommandButton& record, void (frmAddress::*click)(Program&)) {
        auto* button = new QPushButton(convert::ToQString(record.Caption), bar);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, click] { event_([this, click] { (address_.*click)(program_); }); });
        row->addWidget(button);
        return button;
    };
    ok_ = add("cmdOK", address_.cmdOK, &frmAddress::cmdOK_Click);
    add("cmdRefresh", address_.cmdRefresh, &frmAddress::cmdRefresh_Click);
    add("cmdHelp", address_.cmdHelp, &frmAddress::cmdHelp_Click);
    row->addStretch(1);
    add("cmdCancel", address_.cmdCancel, &frmAddress::cmdCancel_Click);
    return bar;
}

void ImportPanelView::TakeFocus() {
    types_.front()->setFocus();
}

void ImportPanelView::Follow() {
    main_->setText(convert::ToQString(address_.lblMain.Caption));
    for (std::size_t index = 0; index < categories_.size(); ++index) {
        QPushButton& category = *categories_[index];
        const StripLabel& record = address_.lblFormat[index];
        mnemonics::SetCaption(category, convert::ToQString(record.Caption));
        category.setChecked(record.BackColor == colors::kFocused);
        const QString sheet =
            QStringLiteral("QPushButton { background: %1; color: black; border: 1px solid #606060; "
                           "border-radius: 3px; padding: 4px 8px; text-align: left; } "
                           "QPushButton:focus { border: 2px solid black; padding: 3px 7px; }")
                .arg(convert::ToQColor(record.BackColor).name());
        if (category.styleSheet() != sheet) {
            category.setStyleSheet(sheet);
        }
    }
    for (std::size_t index = 0; index < types_.size(); ++index) {
        QRadioButton& option = *types_[index];
        mnemonics::SetCaption(option, convert::ToQString(address_.optList[index].Caption));
        option.setToolTip(convert::ToQString(address_.optListTip[index]));
        if (option.isChecked() != address_.optList[index].Value) {
            option.setChecked(address_.optList[index].Value);
        }
    }
    if (const QString sample = convert::ToQString(address_.txtSample.Text).remove(u'\r');
        sample_->toPlainText() != sample) {
        sample_->setPlainText(sample);
    }
}
