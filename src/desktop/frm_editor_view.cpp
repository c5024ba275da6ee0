#include "desktop/frm_editor_view.h"

#include "contract/frm_editor.h"
#include "desktop/contract_edit.h"
#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "desktop/mnemonics.h"
#include "desktop/paper_surface.h"
#include "desktop/window_menu_bar.h"
#include "program/program.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

void FollowBox(QComboBox& box, const ListBox& record) {
    if (box.count() != static_cast<int>(record.Items.size())) {
        box.clear();
        for (const std::string& item : record.Items) {
            box.addItem(convert::ToQString(item));
        }
    }
    if (box.currentIndex() != record.ListIndex) {
        box.setCurrentIndex(record.ListIndex);
    }
}

QComboBox* Box(QWidget* parent, const char* name, const StripLabel& label) {
    auto* box = new QComboBox(parent);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(convert::ToQString(label.Caption));
    return box;
}

} // namespace

FrmEditorView::FrmEditorView(Program& program, frmEditor& window, QWidget* over,
                             std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), editor_(window) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(10, 8, 10, 8);
    column->setSpacing(6);
    menu_ = new WindowMenuBar(this, editor_,
                              [this](std::string_view name) { Do([&] { editor_.Choose(program_, name); }); });
    column->setMenuBar(menu_);
    BuildFonts();
    BuildText();
    BuildFind();
    Connect();
    const double pixels = static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
    QSize wanted(static_cast<int>(static_cast<double>(ContractText::kLineWidth) * pixels) + 90, 640);
    if (const QScreen* place = screen()) {
        wanted = wanted.boundedTo(place->availableSize() - QSize(16, 48));
    }
    resize(wanted);
    FrmEditorView::Follow();
    text_->setFocus();
}

void FrmEditorView::BuildFonts() {
    fonts_ = new QGroupBox(this);
    fonts_->setObjectName(QStringLiteral("framTop"));
    auto* row = new QHBoxLayout(fonts_);
    row->addWidget(dialog::Words(this, "lblFont", editor_.lblFont.Caption));
    font_ = Box(this, "cmbFont", editor_.lblFont);
    font_->setPlaceholderText(convert::ToQString(editor_.cmbFont.Placeholder));
    row->addWidget(font_, 2);
    row->addWidget(dialog::Words(this, "lblFontSize", editor_.lblFontSize.Caption));
    size_ = Box(this, "cmbFontSize", editor_.lblFontSize);
    row->addWidget(size_);
    italic_ = new QCheckBox(convert::ToQString(editor_.chkItalic.Caption), this);
    italic_->setObjectName(QStringLiteral("chkItalic"));
    row->addWidget(italic_);
    layout()->addWidget(fonts_);
}

void FrmEditorView::BuildText() {
    QLabel* main = dialog::Words(this, "lblMain", editor_.lblMain.Caption);
    layout()->addWidget(main);
    counts_ = new QGroupBox(convert::ToQString(editor_.framCharCount.Caption), this);
    counts_->setObjectName(QStringLiteral("framCharCount"));
    auto* column = new QVBoxLayout(counts_);
    auto* row = new QHBoxLayout;
    lines_ = dialog::Button(this, "cmdLines", editor_.cmdLines);
    import_ = dialog::Button(this, "cmdImport", editor_.cmdImport);
    position_ = new QLabel(this);
    position_->setObjectName(QStringLiteral("lblCharCount"));
    row->addWidget(lines_);
    row->addWidget(import_);
    row->addWidget(position_, 1);
    column->addLayout(row);
    text_ = new ContractEdit(this, editor_);
    text_->setAccessibleName(tr("Contract language"));
    column->addWidget(text_, 1);
    static_cast<QVBoxLayout*>(layout())->addWidget(counts_, 1);
}

void FrmEditorView::BuildFind() {
    find_ = new QWidget(this);
    auto* row = new QHBoxLayout(find_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(tr("Find:"), find_));
    words_ = new QLineEdit(find_);
    words_->setObjectName(QStringLiteral("txtFind"));
    words_->setAccessibleName(tr("Words to find"));
    row->addWidget(words_, 1);
    for (const bool back : {false, true}) {
        auto* button = new QPushButton(back ? tr("Pre&vious") : tr("&Next"), find_);
        button->setObjectName(back ? QStringLiteral("cmdFindPrevious") : QStringLiteral("cmdFindNext"));
        button->setAutoDefault(false);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, back] { FindNext(back); });
    }
    notice_ = new QLabel(find_);
    notice_->setObjectName(QStringLiteral("lblNotice"));
    row->addWidget(notice_, 1);
    find_->hide();
    layout()->addWidget(find_);
    words_->installEventFilter(this);
    auto* open = new QAction(this);
    open->setShortcut(QKeySequence::Find);
    addAction(open);
    connect(open, &QAction::triggered, this, [this] { OpenFind(); });
}

void FrmEditorView::Connect() {
    connect(font_, &QComboBox::activated, this,
            [this](int index) { Do([&] { editor_.cmbFont_Click(program_, index); }); });
    connect(size_, &QComboBox::activated, this,
            [this](int index) { Do([&] { editor_.cmbFontSize_Click(program_, index); }); });
    connect(italic_, &QCheckBox::clicked, this,
            [this] { Do([this] { editor_.chkItalic_Click(program_); }); });
    connect(lines_, &QPushButton::clicked, this,
            [this] { Do([this] { editor_.cmdLines_Click(program_); }); });
    connect(import_, &QPushButton::clicked, this,
            [this] { Do([this] { editor_.cmdImport_Click(program_); }); });
    text_->Do = [this](const std::function<void()>& call) { Do([&] { call(); }); };
}

void FrmEditorView::OpenFind() {
    find_->show();
    words_->setFocus();
    words_->selectAll();
}

void FrmEditorView::CloseFind() {
    find_->hide();
    text_->setFocus();
}

void FrmEditorView::FindNext(bool back) {
    Do([&] {
        editor_.Find(convert::ToModel(words_->text()), back ? frmEditor::Way::Back : frmEditor::Way::Forward);
    });
}

bool FrmEditorView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == words_ && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            FindNext(key.modifiers().testFlag(Qt::ShiftModifier));
            return true;
        }
    }
    return WindowView::eventFilter(watched, event);
}

void FrmEditorView::reject() {
    if (find_->isVisible()) {
        CloseFind(); // the first Escape leaves the search
        return;
    }
    WindowView::reject();
}

void FrmEditorView::Follow() {
    WindowView::Follow();
    menu_->Follow(editor_);
    const auto words = [](auto* widget, const std::string& text) {
        const QString shown = convert::ToQString(text);
        if (widget->text() != shown) {
            widget->setText(shown);
        }
    };
    const QString title = convert::ToQString(editor_.framTop.Caption);
    if (fonts_->title() != title) {
        fonts_->setTitle(title);
    }
    FollowBox(*font_, editor_.cmbFont);
    FollowBox(*size_, editor_.cmbFontSize);
    if (italic_->isChecked() != editor_.chkItalic.Value) {
        italic_->setChecked(editor_.chkItalic.Value);
    }
    mnemonics::SetCaption(*lines_, convert::ToQString(editor_.cmdLines.Caption));
    words(position_, editor_.lblCharCount.Caption);
    words(notice_, editor_.lblNotice.Caption);
    text_->Follow();
    if (focusCalls_ != editor_.FocusCalls) {
        focusCalls_ = editor_.FocusCalls;
        text_->setFocus();
    }
}
