#include "desktop/frm_spelling_view.h"

#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "desktop/frm_main_view.h"
#include "desktop/page_view.h"
#include "desktop/text_area_view.h"
#include "program/program.h"
#include "shell/page_switch.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>

#include <algorithm>
#include <array>

namespace {

/// A line of a page takes no control characters.
int LineCharacter(int keyAscii) {
    return keyAscii >= ' ' ? keyAscii : 0;
}

} // namespace

FrmSpellingView::FrmSpellingView(Program& program, frmSpelling& window, QWidget* over,
                                 std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), spelling_(window) {
    auto* columns = new QGridLayout(this);
    columns->setContentsMargins(18, 16, 18, 14);
    columns->setHorizontalSpacing(16);
    BuildTexts();
    BuildButtons();
    Connect();
    constexpr int kNarrowest = 560;
    setMinimumWidth(kNarrowest);
    // No higher than it must be: the page behind shows what is checked.
    resize(kNarrowest, layout()->minimumSize().height());
    FrmSpellingView::Follow();
    changeTo_->setFocus();
    changeTo_->selectAll();
}

void FrmSpellingView::BuildTexts() {
    auto* columns = static_cast<QGridLayout*>(layout());
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    area_ = dialog::Words(this, "lblArea", "");
    column->addWidget(area_);
    text_ = new QTextEdit(this);
    text_->setObjectName(QStringLiteral("txtText"));
    text_->setAccessibleName(tr("Text"));
    text_->setReadOnly(true);
    text_->setTabChangesFocus(true);
    constexpr int kTextLines = 3, kSuggestionLines = 5, kBorders = 12;
    text_->setMinimumHeight(text_->fontMetrics().lineSpacing() * kTextLines + kBorders);
    text_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    column->addWidget(text_, 1);
    word_ = dialog::Words(this, "lblWord", "");
    column->addWidget(word_);
    QLabel* change = dialog::Words(this, "lblChangeTo", spelling_.lblChangeTo.Caption);
    column->addWidget(change);
    changeTo_ = dialog::FilteredEdit(this, "txtChangeTo", tr("Change to"), LineCharacter);
    change->setBuddy(changeTo_);
    column->addWidget(changeTo_);
    QLabel* suggestions = dialog::Words(this, "lblSuggestions", spelling_.lblSuggestions.Caption);
    column->addWidget(suggestions);
    suggestions_ = new QListWidget(this);
    suggestions_->setObjectName(QStringLiteral("lstSuggestions"));
    suggestions_->setAccessibleName(tr("Suggestions"));
    suggestions->setBuddy(suggestions_);
    suggestions_->setMinimumHeight(suggestions_->fontMetrics().lineSpacing() * kSuggestionLines + kBorders);
    column->addWidget(suggestions_, 2);
    tooLong_ = dialog::Words(this, "lblTooLong", "");
    QPalette warning = tooLong_->palette();
    warning.setColor(QPalette::WindowText, QColor(0xC0, 0, 0));
    tooLong_->setPalette(warning);
    column->addWidget(tooLong_);
    columns->addLayout(column, 0, 0);
    columns->setColumnStretch(0, 1);
}

void FrmSpellingView::BuildButtons() {
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    struct Entry {
        const char* Name;
        CommandButton& Record;
        void (frmSpelling::*Click)(Program&);
    };
    for (const Entry& entry : std::initializer_list<Entry>{
             {"cmdChange", spelling_.cmdChange, &frmSpelling::cmdChange_Click},
             {"cmdChangeAll", spelling_.cmdChangeAll, &frmSpelling::cmdChangeAll_Click},
             {"cmdIgnore", spelling_.cmdIgnore, &frmSpelling::cmdIgnore_Click},
             {"cmdIgnoreAll", spelling_.cmdIgnoreAll, &frmSpelling::cmdIgnoreAll_Click},
             {"cmdAdd", spelling_.cmdAdd, &frmSpelling::cmdAdd_Click},
             {"cmdUndo", spelling_.cmdUndo, &frmSpelling::cmdUndo_Click},
             {"cmdCancel", spelling_.cmdCancel, &frmSpelling::cmdCancel_Click}}) {
        QPushButton* button = dialog::Button(this, entry.Name, entry.Record);
        button->setToolTip(convert::ToQString(entry.Record.ToolTipText));
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard in "Change to"
        column->addWidget(button);
        buttons_.emplace_back(button, entry.Click);
        if (entry.Click == &frmSpelling::cmdUndo_Click) {
            undo_ = button;
        }
    }
    buttons_.front().first->setDefault(true);
    column->addStretch(1);
    QLabel* language = dialog::Words(this, "lblLanguage", spelling_.lblLanguage.Caption);
    column->addWidget(language);
    language_ = new QComboBox(this);
    language_->setObjectName(QStringLiteral("cmbLanguage"));
    language->setBuddy(language_);
    for (const std::string& name : spelling_.cmbLanguage.Items) {
        language_->addItem(convert::ToQString(name));
    }
    column->addWidget(language_);
    static_cast<QGridLayout*>(layout())->addLayout(column, 0, 1);
}

void FrmSpellingView::Connect() {
    for (const auto& [button, click] : buttons_) {
        connect(button, &QPushButton::clicked, this,
                [this, handler = click] { Do([&] { (spelling_.*handler)(program_); }); });
    }
    connect(changeTo_, &QLineEdit::textEdited, this,
            [this](const QString& now) { spelling_.txtChangeTo.Text = convert::ToModel(now); });
    connect(suggestions_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row != spelling_.lstSuggestions.ListIndex) {
            Do([&] { spelling_.lstSuggestions_Click(program_, row); });
        }
    });
    connect(suggestions_, &QListWidget::itemDoubleClicked, this,
            [this] { Do([&] { spelling_.cmdChange_Click(program_); }); });
    connect(language_, &QComboBox::activated, this,
            [this](int index) { Do([&] { spelling_.cmbLanguage_Click(program_, index); }); });
}

void FrmSpellingView::FollowText() {
    const QString text = convert::ToQString(spelling_.txtText.Text);
    if (text_->toPlainText() != text) {
        text_->setPlainText(text);
    }
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(text_->document());
    mark.cursor.setPosition(spelling_.txtText.SelStart);
    mark.cursor.setPosition(spelling_.txtText.SelStart + spelling_.txtText.SelLength,
                            QTextCursor::KeepAnchor);
    mark.format.setBackground(palette().highlight());
    mark.format.setForeground(palette().highlightedText());
    text_->setExtraSelections({mark});
    if (text_->textCursor().position() != spelling_.txtText.SelStart) {
        QTextCursor cursor(text_->document());
        cursor.setPosition(spelling_.txtText.SelStart);
        text_->setTextCursor(cursor);
        text_->ensureCursorVisible();
    }
}

QRect FrmSpellingView::AreaOnScreen() const {
    const SpellingState& state = program_.spelling;
    auto* main = qobject_cast<FrmMainView*>(parentWidget());
    if (main == nullptr || state.Position >= state.Areas.size()) {
        return {};
    }
    const FieldRef& field = state.Areas[state.Position];
    const TextAreaView* area = main->PageOf(field.Page).Field(field);
    return area == nullptr || !area->isVisible() ? QRect()
                                                 : QRect(area->mapToGlobal(QPoint(0, 0)), area->size());
}

void FrmSpellingView::StepAside() {
    const QRect area = AreaOnScreen();
    const QScreen* place = screen();
    QRect frame = frameGeometry();
    if (frame.size() == size()) { // the borders are not known yet
        constexpr QSize kBorders(8, 34);
        frame.setSize(size() + kBorders);
    }
    if (!isVisible() || place == nullptr || !frame.intersects(area)) {
        return;
    }
    constexpr int kGap = 8;
    const QRect room = place->availableGeometry();
    QRect best = frame;
    const auto covered = [&](const QRect& at) {
        const QRect both = at.intersected(area);
        return both.width() * both.height();
    };
    for (const QPoint& corner :
         {QPoint(frame.left(), area.bottom() + kGap),
          QPoint(frame.left(), area.top() - kGap - frame.height()), QPoint(area.right() + kGap, frame.top()),
          QPoint(area.left() - kGap - frame.width(), frame.top())}) {
        QRect at(corner, frame.size());
        at.moveLeft(std::max(room.left(), std::min(at.left(), room.right() - at.width())));
        at.moveTop(std::max(room.top(), std::min(at.top(), room.bottom() - at.height())));
        if (covered(at) < covered(best)) {
            best = at;
        }
    }
    if (best != frame) {
        move(best.topLeft());
    }
    // On a low screen there is room above or below only when the area stands at an edge of the page behind.
    const SpellingState& state = program_.spelling;
    if (covered(best) > 0 && edgedAt_ != state.Position) {
        edgedAt_ = state.Position;
        Do([&] { modScroll::BringToEdge(program_, state.Areas[state.Position]); });
    }
}

void FrmSpellingView::showEvent(QShowEvent* event) {
    WindowView::showEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { StepAside(); }, Qt::QueuedConnection);
}

void FrmSpellingView::Follow() {
    WindowView::Follow();
    // The page behind has its place when the event has come to its end.
    QMetaObject::invokeMethod(
        this, [this] { StepAside(); }, Qt::QueuedConnection);
    area_->setText(convert::ToQString(spelling_.lblArea.Caption));
    word_->setText(convert::ToQString(spelling_.lblWord.Caption));
    FollowText();
    QStringList items;
    for (const std::string& item : spelling_.lstSuggestions.Items) {
        items += convert::ToQString(item);
    }
    QStringList shown;
    for (int row = 0; row < suggestions_->count(); ++row) {
        shown += suggestions_->item(row)->text();
    }
    if (items != shown) {
        suggestions_->clear();
        suggestions_->addItems(items);
    }
    suggestions_->setCurrentRow(spelling_.lstSuggestions.ListIndex);
    if (convert::ToModel(changeTo_->text()) != spelling_.txtChangeTo.Text) {
        changeTo_->setText(convert::ToQString(spelling_.txtChangeTo.Text));
        changeTo_->selectAll();
    }
    language_->setCurrentIndex(spelling_.cmbLanguage.ListIndex);
    tooLong_->setText(convert::ToQString(spelling_.lblTooLong.Caption).remove(QLatin1Char('\r')));
    tooLong_->setVisible(!spelling_.lblTooLong.Caption.empty());
    if (undo_->hasFocus() && !spelling_.cmdUndo.Enabled) {
        changeTo_->setFocus(); // and not the next button, which is Cancel
    }
    undo_->setEnabled(spelling_.cmdUndo.Enabled);
}
