#include "desktop/format_views.h"

#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "desktop/font_list_view.h"
#include "desktop/paper_surface.h"
#include "format/frm_label_props.h"
#include "format/frm_rgb.h"
#include "format/frm_snap.h"
#include "format/frm_text_props.h"
#include "format/frm_title.h"
#include "program/program.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

void Show(QLabel* label, const std::string& text) {
    const QString shown = convert::ToQString(text);
    if (label->text() != shown) {
        label->setText(shown);
    }
}

void Show(QLineEdit* edit, const std::string& text) {
    const QString shown = convert::ToQString(text);
    if (edit->text() != shown) {
        edit->setText(shown);
    }
}

void Show(QAbstractButton* button, bool checked) {
    if (button->isChecked() != checked) {
        button->setChecked(checked);
    }
}

QIcon Swatch(Color colour) {
    constexpr int kSide = 20;
    QPixmap picture(kSide, kSide);
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), convert::ToQColor(colour));
    painter.setPen(QColor(0x60, 0x60, 0x60));
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    return QIcon(picture);
}

/// A row of colour buttons; `press` takes the index.
template <std::size_t count, typename Press>
QHBoxLayout* ColourRow(QDialog* dialog, const std::array<CommandButton, count>& records, Press press) {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    for (std::size_t index = 0; index < count; ++index) {
        auto* button = new QToolButton(dialog);
        button->setObjectName(QStringLiteral("cmdColor(%1)").arg(index));
        button->setIcon(Swatch(records[index].BackColor));
        button->setIconSize(QSize(20, 20));
        button->setToolTip(convert::ToQString(records[index].ToolTipText));
        button->setAccessibleName(button->toolTip());
        button->setFocusPolicy(Qt::StrongFocus);
        QObject::connect(button, &QToolButton::clicked, dialog,
                         [press, index] { press(static_cast<int>(index)); });
        row->addWidget(button);
    }
    row->addStretch(1);
    return row;
}

/// What a person types, less the characters that cannot be kept; those are told in place.
template <typename Take> void Connect(QLineEdit* edit, Take take) {
    QObject::connect(edit, &QLineEdit::textEdited, edit, [edit, take](const QString& now) {
        const convert::Incoming incoming = convert::FromPerson(now);
        if (incoming.Refused > 0) {
            const int at = edit->cursorPosition();
            edit->setText(convert::ToQString(incoming.Text));
            edit->setCursorPosition(qMax(0, at - incoming.Refused));
            edit->setToolTip(QObject::tr("A character was not taken: it cannot be kept here."));
        }
        take(incoming.Text);
    });
}

QLineEdit* Edit(QDialog* dialog, const char* name, const QString& spoken) {
    auto* edit = new QLineEdit(dialog);
    edit->setObjectName(QLatin1String(name));
    edit->setAccessibleName(spoken);
    return edit;
}

QCheckBox* Check(QDialog* dialog, const char* name, const CheckBox& record) {
    auto* box = new QCheckBox(convert::ToQString(record.Caption), dialog);
    box->setObjectName(QLatin1String(name));
    return box;
}

/// Gives the keyboard to the control that the model has named.
void TakeFocus(QDialog* dialog, std::string& next) {
    if (next.empty()) {
        return;
    }
    if (auto* control = dialog->findChild<QWidget*>(QString::fromStdString(next))) {
        control->setFocus(Qt::OtherFocusReason);
        if (auto* edit = qobject_cast<QLineEdit*>(control)) {
            edit->selectAll();
        }
    }
    next.clear();
}

} // namespace

FrmLabelPropsView::FrmLabelPropsView(Program& program, frmLabelProps& window, QWidget* over,
                                     std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    QLabel* title = dialog::Words(this, "lblCaption", window.lblCaption.Caption);
    column->addWidget(title);
    caption_ = Edit(this, "txtCaption", tr("Label caption"));
    title->setBuddy(caption_);
    caption_->installEventFilter(this);
    column->addWidget(caption_);
    notHere_ = dialog::Words(this, "lblNotHere", "");
    column->addWidget(notHere_);
    column->addWidget(dialog::Words(this, "lblFont", window.lblFont.Caption));
    fonts_ = new FontListView(this, window.lstFont.Items);
    fonts_->setMinimumHeight(150);
    column->addWidget(fonts_, 1);
    fontName_ = dialog::Words(this, "lblFontName", "");
    size_ = dialog::Words(this, "lblSize", "");
    column->addWidget(fontName_);
    column->addWidget(size_);
    auto* sizes = new QHBoxLayout;
    sizes->setSpacing(4);
    for (std::size_t index = 0; index < window.cmdSize.size(); ++index) {
        auto* button = new QToolButton(this);
        button->setObjectName(QStringLiteral("cmdSize(%1)").arg(index));
        button->setText(convert::ToQString(window.cmdSize[index].Caption));
        button->setToolTip(convert::ToQString(window.cmdSize[index].ToolTipText));
        button->setAccessibleName(button->toolTip());
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this,
                [this, index] { Do([&] { model_.cmdSize_Click(program_, static_cast<int>(index)); }); });
        sizes->addWidget(button);
    }
    sizes->addStretch(1);
    column->addLayout(sizes);
    auto* looks = new QHBoxLayout;
    checks_ = {Check(this, "chkBold", window.chkBold), Check(this, "chkItalic", window.chkItalic),
               Check(this, "chkUnderline", window.chkUnderline)};
    for (QCheckBox* box : checks_) {
        looks->addWidget(box);
    }
    looks->addStretch(1);
    column->addLayout(looks);
    column->addLayout(ColourRow(this, window.cmdColor,
                                [this](int index) { Do([&] { model_.cmdColor_Click(program_, index); }); }));
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    QPushButton* more = dialog::Button(this, "cmdColors", window.cmdColors);
    dialog::Foot(column, {ok, cancel, more});
    column->addStrut(360); // at least; a wide caption makes the window wider
    Connect(caption_,
            [this](const std::string& text) { Do([&] { model_.txtCaption_Change(program_, text); }); });
    fonts_->Chosen = [this](int index) { Do([&] { model_.lstFont_Click(program_, index); }); };
    connect(checks_[0], &QCheckBox::clicked, this, [this] { Do([&] { model_.chkBold_Click(program_); }); });
    connect(checks_[1], &QCheckBox::clicked, this, [this] { Do([&] { model_.chkItalic_Click(program_); }); });
    connect(checks_[2], &QCheckBox::clicked, this,
            [this] { Do([&] { model_.chkUnderline_Click(program_); }); });
    connect(more, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdColors_Click(program_); }); });
    connect(ok, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdCancel_Click(program_); }); });
    caption_->setFocus();
    if (over != nullptr) {
        // At the side, so that the page can be seen to change.
        const QRect main = over->frameGeometry();
        const double pixels = static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
        move(main.right() - sizeHint().width() - 40,
             main.top() + qRound(static_cast<double>(window.Top - program.main.Top) * pixels));
    }
}

bool FrmLabelPropsView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == caption_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Do([&] { model_.txtCaption_Enter(program_); });
            return true;
        }
    }
    return WindowView::eventFilter(watched, event);
}

void FrmLabelPropsView::Follow() {
    WindowView::Follow();
    Show(caption_, model_.txtCaption.Text);
    caption_->setEnabled(model_.txtCaption.Enabled);
    Show(notHere_, model_.lblNotHere.Caption);
    notHere_->setVisible(!model_.lblNotHere.Caption.empty());
    fonts_->Follow(model_.lstFont.ListIndex);
    Show(fontName_, model_.lblFontName.Caption);
    Show(size_, model_.lblSize.Caption);
    Show(checks_[0], model_.chkBold.Value);
    Show(checks_[1], model_.chkItalic.Value);
    Show(checks_[2], model_.chkUnderline.Value);
    TakeFocus(this, model_.FocusNext);
}

FrmTextPropsView::FrmTextPropsView(Program& program, frmTextProps& window, QWidget* over,
                                   std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    auto* left = new QVBoxLayout;
    left->addWidget(dialog::Words(this, "lblFont", window.lblFont.Caption));
    fonts_ = new FontListView(this, window.lstFont.Items);
    fonts_->setMinimumSize(240, 200);
    left->addWidget(fonts_, 1);
    fontName_ = dialog::Words(this, "lblFontName", "");
    left->addWidget(fontName_);
    halves->addLayout(left, 1);
    auto* right = new QVBoxLayout;
    for (std::size_t index = 0; index < window.optFontSize.size(); ++index) {
        auto* option = new QRadioButton(convert::ToQString(window.optFontSize[index].Caption), this);
        option->setObjectName(QStringLiteral("optFontSize(%1)").arg(index));
        option->setAutoExclusive(false); // a size that is not among them leaves all of them off
        connect(option, &QRadioButton::clicked, this,
                [this, index] { Do([&] { model_.optFontSize_Click(program_, static_cast<int>(index)); }); });
        right->addWidget(option);
        sizes_[index] = option;
    }
    italic_ = Check(this, "chkItalic", window.chkItalic);
    right->addWidget(italic_);
    right->addStretch(1);
    halves->addLayout(right);
    column->addLayout(halves, 1);
    color_ = dialog::Words(this, "lblFontColor", "");
    column->addWidget(color_);
    QHBoxLayout* colours = ColourRow(
        this, window.cmdColor, [this](int index) { Do([&] { model_.cmdColor_Click(program_, index); }); });
    QPushButton* more = dialog::Button(this, "cmdColors", window.cmdColors);
    colours->addWidget(more);
    column->addLayout(colours);
    sample_ = dialog::Words(this, "txtSample", "");
    sample_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    sample_->setMargin(8);
    sample_->setAutoFillBackground(true);
    QPalette paper = sample_->palette();
    paper.setColor(QPalette::Window, Qt::white);
    sample_->setPalette(paper);
    column->addWidget(sample_);
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    QPushButton* standard = dialog::Button(this, "cmdDefault", window.cmdDefault);
    dialog::Foot(column, {ok, cancel, standard});
    column->addStrut(440); // at least; a wide caption makes the window wider
    fonts_->Chosen = [this](int index) { Do([&] { model_.lstFont_Click(program_, index); }); };
    connect(italic_, &QCheckBox::clicked, this, [this] { Do([&] { model_.chkItalic_Click(program_); }); });
    connect(more, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdColors_Click(program_); }); });
    connect(ok, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdCancel_Click(program_); }); });
    connect(standard, &QPushButton::clicked, this,
            [this] { Do([&] { model_.cmdDefault_Click(program_); }); });
    fonts_->setFocus();
}

void FrmTextPropsView::Follow() {
    WindowView::Follow();
    fonts_->Follow(model_.lstFont.ListIndex);
    Show(fontName_, model_.lblFontName.Caption);
    Show(color_, model_.lblFontColor.Caption);
    for (std::size_t index = 0; index < sizes_.size(); ++index) {
        Show(sizes_[index], model_.optFontSize[index].Value);
    }
    Show(italic_, model_.chkItalic.Value);
    Show(sample_, model_.txtSample.Text);
    QFont font(convert::ToQString(model_.SampleFont.Name));
    font.setPointSizeF(model_.SampleFont.Size > 0 ? static_cast<double>(model_.SampleFont.Size) : 10);
    font.setItalic(model_.SampleFont.Italic);
    sample_->setFont(font);
    QPalette ink = sample_->palette();
    ink.setColor(QPalette::WindowText, convert::ToQColor(model_.SampleFont.ForeColor));
    sample_->setPalette(ink);
}

FrmRGBView::FrmRGBView(Program& program, frmRGB& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    struct Part {
        const char* Slider;
        const char* Name;
        const char* Value;
        const StripLabel& Caption;
        QString Spoken;
    };
    const std::array<Part, 3> parts{{{"Red", "lblRed", "lblR", window.lblRed, tr("Red")},
                                     {"Grn", "lblGrn", "lblG", window.lblGrn, tr("Green")},
                                     {"Blu", "lblBlu", "lblB", window.lblBlu, tr("Blue")}}};
    for (std::size_t at = 0; at < parts.size(); ++at) {
        const int row = static_cast<int>(at);
        grid->addWidget(dialog::Words(this, parts[at].Name, parts[at].Caption.Caption), row, 0);
        auto* slider = new QSlider(Qt::Horizontal, this);
        slider->setObjectName(QLatin1String(parts[at].Slider));
        slider->setAccessibleName(parts[at].Spoken);
        slider->setRange(0, 256);
        slider->setMinimumWidth(200);
        connect(slider, &QSlider::valueChanged, this, [this, at](int value) {
            using Change = void (frmRGB::*)(Program&, int);
            constexpr std::array<Change, 3> kChanges{&frmRGB::Red_Change, &frmRGB::Grn_Change,
                                                     &frmRGB::Blu_Change};
            Do([&] { (model_.*kChanges[at])(program_, value); });
        });
        grid->addWidget(slider, row, 1);
        sliders_[at] = slider;
        for (int kind = 0; kind < 2; ++kind) {
            auto* label = new QLabel(this);
            label->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(parts[at].Value)).arg(kind));
            label->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000")));
            grid->addWidget(label, row, 2 + kind);
            parts_[at][static_cast<std::size_t>(kind)] = label;
        }
    }
    column->addLayout(grid);
    swatch_ = dialog::Words(this, "lblRGB", window.lblRGB.Caption);
    swatch_->setAlignment(Qt::AlignCenter);
    swatch_->setMinimumHeight(44);
    swatch_->setAutoFillBackground(true);
    swatch_->setFrameStyle(QFrame::Box | QFrame::Plain);
    column->addWidget(swatch_);
    auto* values = new QGridLayout;
    const std::array<std::pair<const char*, const StripLabel*>, 3> boxes{
        {{"txtHexValue", &window.lblHexValue},
         {"txtIntValue", &window.lblIntValue},
         {"txtHttpValue", &window.lblHttpValue}}};
    for (std::size_t at = 0; at < boxes.size(); ++at) {
        const QString words = convert::ToQString(boxes[at].second->Caption).trimmed();
        auto* label = new QLabel(words, this);
        values->addWidget(label, static_cast<int>(at), 0);
        values_[at] = Edit(this, boxes[at].first, words);
        values_[at]->setReadOnly(true);
        values->addWidget(values_[at], static_cast<int>(at), 1);
    }
    column->addLayout(values);
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    QPushButton* normal = dialog::Button(this, "cmdNormInc", window.cmdNormInc);
    QPushButton* small = dialog::Button(this, "cmdSmInc", window.cmdSmInc);
    dialog::Foot(column, {ok, cancel, normal, small});
    connect(normal, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdNormInc_Click(program_); }); });
    connect(small, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdSmInc_Click(program_); }); });
    connect(ok, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdCancel_Click(program_); }); });
    sliders_[0]->setFocus();
}

void FrmRGBView::Follow() {
    WindowView::Follow();
    const std::array<const ColourSlider*, 3> sliders{&model_.Red, &model_.Grn, &model_.Blu};
    const std::array<const std::array<StripLabel, 2>*, 3> parts{&model_.lblR, &model_.lblG, &model_.lblB};
    for (std::size_t at = 0; at < sliders.size(); ++at) {
        sliders_[at]->setSingleStep(sliders[at]->SmallChange);
        sliders_[at]->setPageStep(sliders[at]->SmallChange);
        if (sliders_[at]->value() != sliders[at]->Value) {
            sliders_[at]->setValue(sliders[at]->Value);
        }
        for (std::size_t kind = 0; kind < 2; ++kind) {
            Show(parts_[at][kind], (*parts[at])[kind].Caption);
        }
    }
    Show(values_[0], model_.txtHexValue.Text);
    Show(values_[1], model_.txtIntValue.Text);
    Show(values_[2], model_.txtHttpValue.Text);
    const QColor colour = convert::ToQColor(model_.lblRGB.BackColor);
    QPalette palette = swatch_->palette();
    palette.setColor(QPalette::Window, colour);
    constexpr double kMiddle = 0.5;
    palette.setColor(QPalette::WindowText, colour.lightnessF() > kMiddle ? Qt::black : Qt::white);
    swatch_->setPalette(palette);
}

FrmSnapView::FrmSnapView(Program& program, frmSnap& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)) {
    QVBoxLayout* column = dialog::Column(this);
    auto* first = new QHBoxLayout;
    QLabel* words = dialog::Words(this, "lblSnapValue", window.lblSnapValue.Caption);
    words->setWordWrap(false);
    first->addWidget(words);
    QLineEdit* snap = Edit(this, "txtSnap", tr("Snap value in inches"));
    snap->setText(convert::ToQString(window.txtSnap.Text));
    words->setBuddy(snap);
    constexpr int kWidth = 120;
    snap->setMaximumWidth(kWidth);
    first->addWidget(snap);
    first->addStretch(1);
    column->addLayout(first);
    column->addWidget(dialog::Words(this, "lblSnap", window.lblSnap.Caption));
    auto* quick = new QHBoxLayout;
    for (std::size_t index = 0; index < window.cmdSnap.size(); ++index) {
        QPushButton* button = new QPushButton(convert::ToQString(window.cmdSnap[index].Caption), this);
        button->setObjectName(QStringLiteral("cmdSnap(%1)").arg(index));
        button->setAutoDefault(false);
        window.cmdSnap_MouseMove(static_cast<int>(index)); // its tip is there before the pointer is
        button->setToolTip(convert::ToQString(window.cmdSnap[index].ToolTipText));
        connect(button, &QPushButton::clicked, this, [this, &window, index] {
            Do([&] { window.cmdSnap_Click(program_, static_cast<int>(index)); });
        });
        quick->addWidget(button);
    }
    column->addLayout(quick);
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* cancel = dialog::Button(this, "cmdCancel", window.cmdCancel);
    dialog::Foot(column, {ok, cancel});
    Connect(snap, [&window](const std::string& text) { window.txtSnap.Text = text; });
    connect(ok, &QPushButton::clicked, this, [this, &window] { Do([&] { window.cmdOK_Click(program_); }); });
    connect(cancel, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdCancel_Click(program_); }); });
    snap->setFocus();
    snap->selectAll();
}

FrmTitleView::FrmTitleView(Program& program, frmTitle& window, QWidget* over,
                           std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = dialog::Column(this);
    const std::array<const char*, 2> names{"txtTitle", "txtSubTitle"};
    const std::array<const char*, 2> labels{"lblMain", "lblSubTitle"};
    const std::array<const StripLabel*, 2> records{&window.lblMain, &window.lblSubTitle};
    for (std::size_t at = 0; at < names.size(); ++at) {
        QLabel* words = dialog::Words(this, labels[at], records[at]->Caption);
        column->addWidget(words);
        auto* row = new QHBoxLayout;
        boxes_[at] = Edit(this, names[at], at == 0 ? tr("Title of the pages") : tr("Sub-title of the pages"));
        words->setBuddy(boxes_[at]);
        row->addWidget(boxes_[at], 1);
        QPushButton* clear = new QPushButton(convert::ToQString(window.cmdClear[at].Caption), this);
        clear->setObjectName(QStringLiteral("cmdClear(%1)").arg(at));
        clear->setAutoDefault(false);
        row->addWidget(clear);
        column->addLayout(row);
        connect(clear, &QPushButton::clicked, this,
                [this, at] { Do([&] { model_.cmdClear_Click(static_cast<int>(at)); }); });
    }
    Connect(boxes_[0], [&window](const std::string& text) { window.txtTitle_Change(text); });
    Connect(boxes_[1], [&window](const std::string& text) { window.txtSubTitle_Change(text); });
    QPushButton* ok = dialog::Button(this, "cmdOK", window.cmdOK);
    QPushButton* standard = dialog::Button(this, "cmdDefault", window.cmdDefault);
    dialog::Foot(column, {ok, standard});
    column->addStrut(460); // at least; a wide caption makes the window wider
    connect(ok, &QPushButton::clicked, this, [this] { Do([&] { model_.cmdOK_Click(program_); }); });
    connect(standard, &QPushButton::clicked, this,
            [this] { Do([&] { model_.cmdDefault_Click(program_); }); });
    WindowView::Follow();
    Show(boxes_[0], window.txtTitle.Text);
    Show(boxes_[1], window.txtSubTitle.Text);
    boxes_[1]->selectAll();
    boxes_[0]->setFocus();
    boxes_[0]->selectAll();
}

void FrmTitleView::Follow() {
    WindowView::Follow();
    Show(boxes_[0], model_.txtTitle.Text);
    Show(boxes_[1], model_.txtSubTitle.Text);
    TakeFocus(this, model_.FocusNext);
}
