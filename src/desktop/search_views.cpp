#include "desktop/search_views.h"

#include "base/guard.h"
#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "program/program.h"
#include "search/frm_search.h"
#include "search/frm_sr.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

FrmSearchView::FrmSearchView(Program& program, frmSearch& window, QWidget* over,
                             std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 16, 18, 14);
    column->setSpacing(10);
    QLabel* words = dialog::Words(this, "lblSearch", window.lblSearch.Caption);
    column->addWidget(words);
    phrase_ = new QComboBox(this);
    phrase_->setObjectName(QStringLiteral("cmbSearch"));
    phrase_->setAccessibleName(tr("Search for"));
    phrase_->setEditable(true);
    phrase_->setInsertPolicy(QComboBox::NoInsert);
    phrase_->setCompleter(nullptr);
    phrase_->setMinimumWidth(340);
    for (const std::string& item : window.cmbSearch.Items) {
        phrase_->addItem(convert::ToQString(item));
    }
    words->setBuddy(phrase_);
    column->addWidget(phrase_);
    for (std::size_t index = 0; index < options_.size(); ++index) {
        options_[index] = new QRadioButton(convert::ToQString(window.optSearch[index].Caption), this);
        options_[index]->setObjectName(QStringLiteral("optSearch(%1)").arg(index));
        column->addWidget(options_[index]);
        connect(options_[index], &QRadioButton::clicked, this, [this, index] {
            Do([this, index] { model_.optSearch_Click(program_, static_cast<int>(index)); });
        });
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch(1);
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    ok->setDefault(true);
    row->addWidget(ok);
    row->addWidget(cancel);
    column->addLayout(row);
    phrase_->setEditText(convert::ToQString(window.cmbSearch.Text));
    connect(phrase_, &QComboBox::editTextChanged, this, [this](const QString& now) {
        const convert::Incoming phrase = convert::FromPerson(now);
        if (phrase.Refused > 0) {
            phrase_->setEditText(convert::ToQString(phrase.Text)); // what shows is what is looked for
            return;
        }
        Do([&] { model_.cmbSearch_Change(program_, phrase.Text); });
    });
    connect(ok, &QPushButton::clicked, this, [this] { Do([this] { model_.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this,
            [this] { Do([this] { model_.cmdCancel_Click(program_); }); });
    phrase_->setFocus();
    phrase_->lineEdit()->selectAll();
}

void FrmSearchView::Follow() {
    WindowView::Follow();
    for (std::size_t index = 0; index < options_.size(); ++index) {
        if (options_[index]->isChecked() != model_.optSearch[index].Value) {
            options_[index]->setChecked(model_.optSearch[index].Value);
        }
    }
}

FrmSRView::FrmSRView(Program& program, frmSR& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    setWindowFlag(Qt::Tool);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 12);
    column->setSpacing(6);
    auto* top = new QHBoxLayout;
    top->setSpacing(6);
    QLabel* before = dialog::Words(this, "lblTop", window.lblTop.Caption);
    before->setWordWrap(false);
    top->addWidget(before);
    QLabel* phrase = dialog::Words(this, "lblSearch", window.lblSearch.Caption);
    phrase->setWordWrap(false);
    phrase->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    phrase->setToolTip(convert::ToQString(window.lblSearch.Caption));
    QFont strong = phrase->font();
    strong.setBold(true);
    phrase->setFont(strong);
    top->addWidget(phrase, 1);
    column->addLayout(top);
    Fill();
    resize(620, 260);
}

void FrmSRView::Fill() {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    const std::array<QString, 3> spoken{tr("Place"), tr("Area"), tr("Text")};
    constexpr std::array kShares{3, 2, 5};
    for (std::size_t list = 0; list < lists_.size(); ++list) {
        auto* widget = new QListWidget(this);
        lists_[list] = widget;
        widget->setObjectName(QStringLiteral("lstResults(%1)").arg(list));
        widget->setAccessibleName(spoken[list]);
        widget->setUniformItemSizes(true);
        widget->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the three stay equally high
        for (const std::string& item : model_.lstResults[list].Items) {
            widget->addItem(convert::ToQString(item));
        }
        row->addWidget(widget, kShares[list]);
        const int number = static_cast<int>(list);
        connect(widget, &QListWidget::currentRowChanged, this, [this](int chosen) {
            if (!following_) {
                Do([&] { model_.lstResults_Move(chosen); });
            }
        });
        const auto lead = [this, number, widget] {
            const int chosen = widget->currentRow();
            Do([&] { model_.lstResults_Click(program_, number, chosen); });
        };
        connect(widget, &QListWidget::itemClicked, this, lead);
        connect(widget, &QListWidget::itemActivated, this, lead);
        connect(widget->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
            if (!following_) {
                Do([&] { model_.lstResults_Scroll(value); });
            }
        });
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row, 1);
    lists_[0]->setFocus();
}

void FrmSRView::showEvent(QShowEvent* event) {
    WindowView::showEvent(event);
    if (!placed_) {
        placed_ = true;
        constexpr int kFoot = 60; // its own frame, and the status strip below
        const QRect over = parentWidget()->frameGeometry();
        move(over.center().x() - width() / 2, qMax(over.top(), over.bottom() - height() - kFoot));
    }
}

void FrmSRView::Follow() {
    WindowView::Follow();
    const ScopedFlag following(following_);
    for (std::size_t list = 0; list < lists_.size(); ++list) {
        if (lists_[list]->currentRow() != model_.lstResults[list].ListIndex) {
            lists_[list]->setCurrentRow(model_.lstResults[list].ListIndex);
        }
    }
    for (QListWidget* list : lists_) {
        if (list->verticalScrollBar()->value() != model_.TopIndex) {
            list->verticalScrollBar()->setValue(model_.TopIndex);
        }
    }
}
