#include "desktop/tool_strip.h"

#include "desktop/convert.h"
#include "desktop/icons.h"
#include "desktop/mnemonics.h"
#include "desktop/paper_surface.h"
#include "program/program.h"
#include "shell/command_table.h"
#include "shell/frm_main.h"
#include "shell/tool_buttons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <initializer_list>

namespace {

QColor Mixed(const QColor& one, const QColor& other, float share) {
    return QColor::fromRgbF(one.redF() * (1 - share) + other.redF() * share,
                            one.greenF() * (1 - share) + other.greenF() * share,
                            one.blueF() * (1 - share) + other.blueF() * share);
}

/// The frame of a tool button: raised under the pointer, sunken while pressed; and a ring when it has the
/// keyboard.
void PaintFrame(QPainter& painter, const QAbstractButton& button, modToolButtons::ButtonFrame which) {
    const QPalette& palette = button.palette();
    const QRectF frame = QRectF(button.rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    const QColor base = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    if (button.isEnabled() && which != modToolButtons::ButtonFrame::None) {
        const bool sunken = which == modToolButtons::ButtonFrame::Sunken;
        painter.setPen(QPen(Mixed(base, ink, sunken ? 0.45F : 0.28F), 1));
        painter.setBrush(Mixed(base, ink, sunken ? 0.16F : 0.06F));
        painter.drawRoundedRect(frame, 4, 4);
    }
    if (button.hasFocus()) {
        painter.setPen(QPen(palette.color(QPalette::Highlight), 1.6));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame, 4, 4);
    }
}

/// Wide enough for either caption, so that nothing beside it moves.
void KeepWidth(QPushButton& button, std::initializer_list<QString> captions) {
    const QString shown = button.text();
    int widest = 0;
    for (const QString& caption : captions) {
        button.setText(caption);
        widest = qMax(widest, button.sizeHint().width());
    }
    button.setText(shown);
    button.setMinimumWidth(widest);
}

bool ChangesLook(QEvent::Type type) {
    return type == QEvent::Enter || type == QEvent::Leave;
}

} // namespace

ToolImage::ToolImage(std::string_view controlName, const QString& accessibleName, QWidget* parent)
    : QAbstractButton(parent), name_(controlName) {
    setObjectName(QString::fromLatin1(controlName.data(), static_cast<qsizetype>(controlName.size())));
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(34, 34);
    MakeIcons();
}

void ToolImage::MakeIcons() {
    const QColor ink = Mixed(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.15F);
    const QColor faded =
        Mixed(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.68F);
    icons_[0] = icons::ToolIcon(name_, ink, faded);
    const QIcon second = icons::ToolIcon(std::string(name_) + ".1", ink, faded);
    icons_[1] = second.isNull() ? icons_[0] : second;
}

void ToolImage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        MakeIcons();
        update();
    }
    QAbstractButton::changeEvent(event);
}

bool ToolImage::event(QEvent* event) {
    if (ChangesLook(event->type()) && Hovered) {
        Hovered(event->type() == QEvent::Enter);
    }
    return QAbstractButton::event(event);
}

void ToolImage::MarkPending() {
    pending_ = true;
    setEnabled(false);
    setToolTip(convert::ToQString(commands::kNotBuilt));
}

void ToolImage::Follow(const ImageButton& record, modToolButtons::ButtonFrame frame) {
    if (frame != frame_) {
        frame_ = frame;
        update();
    }
    if (record != shown_) {
        shown_ = record;
        setCursor(record.Pointer == MousePointer::Hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
        setToolTip(convert::ToQString(pending_ ? commands::kNotBuilt : std::string_view(record.ToolTipText)));
        setEnabled(record.Enabled && !pending_);
        setVisible(record.Visible);
        update();
    }
}

void ToolImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintFrame(painter, *this, frame_);
    QRect place(0, 0, 22, 22);
    place.moveCenter(rect().center());
    if (frame_ == modToolButtons::ButtonFrame::Sunken) {
        place.translate(1, 1);
    }
    icons_[shown_.Picture == 1 ? 1 : 0].paint(&painter, place, Qt::AlignCenter,
                                              isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

PageSwitchButton::PageSwitchButton(int pageIndex, QWidget* parent)
    : QAbstractButton(parent), pageIndex_(pageIndex) {
    setObjectName(QStringLiteral("imgPage(%1)").arg(pageIndex));
    const QString what = pageIndex == 6 ? tr("Page 6, client's copy") : tr("Page %1").arg(pageIndex + 1);
    setAccessibleName(what);
    // Tab belongs to the fields of the page: without these keys a page before the one in front, and the
    // client's copy, would want a mouse.
    const QKeySequence key(QStringLiteral("Alt+%1").arg(pageIndex + 1));
    setShortcut(key);
    setToolTip(QStringLiteral("%1 (%2)").arg(what, key.toString(QKeySequence::NativeText)));
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(32, 34);
}

void PageSwitchButton::Follow(const ImageButton& record) {
    if (record != shown_) {
        shown_ = record;
        setEnabled(record.Enabled);
        setCursor(record.Pointer == MousePointer::Hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
        update();
    }
}

bool PageSwitchButton::event(QEvent* event) {
    if (ChangesLook(event->type())) {
        update();
    }
    return QAbstractButton::event(event);
}

void PageSwitchButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintFrame(painter, *this,
               isDown()       ? modToolButtons::ButtonFrame::Sunken
               : underMouse() ? modToolButtons::ButtonFrame::Raised
                              : modToolButtons::ButtonFrame::None);
    const auto look = shown_.Picture == 1 ? icons::PageLook::Selected : icons::PageLook::Normal;
    const QColor ink = Mixed(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.35F);
    const QPixmap picture =
        icons::PageButton(pageIndex_, look, ink, QColor(0x1B, 0x6F, 0xA8), devicePixelRatioF());
    painter.drawPixmap(QPointF((width() - 26) / 2.0, (height() - 26) / 2.0 + (isDown() ? 1 : 0)), picture);
}

ToolStrip::ToolStrip(Program& program, std::function<void()> afterEvent, QWidget* parent)
    : QWidget(parent), program_(program), afterEvent_(std::move(afterEvent)) {
    setObjectName(QStringLiteral("picTop"));
    rows_ = new QVBoxLayout(this);
    rows_->setContentsMargins(6, 3, 6, 3);
    rows_->setSpacing(2);
    row_ = new QHBoxLayout;
    row_->setSpacing(1);
    rows_->addLayout(row_);
    QHBoxLayout* row = row_;
    MainWindow& main = program_.main;
    AddImage("imgNew", tr("Create New File"), CommandId::Count, main.imgNew,
             [this] { frmMain(program_).imgNew_MouseDown(); });
    AddImage("imgOpen", tr("Open existing file"), CommandId::mnuFileOpenEvent, main.imgOpen,
             [this] { frmMain(program_).imgOpen_MouseDown(); });
    AddImage("imgSave", tr("Save Current File"), CommandId::mnuFileSaveEvent, main.imgSave,
             [this] { frmMain(program_).imgSave_Click(); });
    AddImage("imgSaveAs", tr("Save File as"), CommandId::mnuFileSaveAs, main.imgSaveAs,
             [this] { frmMain(program_).imgSaveAs_Click(); });
    AddImage("imgPrint", tr("Print All Pages"), CommandId::mnuFilePrintAll, main.imgPrint,
             [this] { frmMain(program_).imgPrint_Click(); });
    row->addSpacing(8);
    AddImage("imgSearch", tr("Search for"), CommandId::mnuEditFind, main.imgSearch,
             [this] { frmMain(program_).imgSearch_Click(); });
    AddImage("imgSpellCheck", tr("Check Spelling"), CommandId::mnuEditSpellCheck, main.imgSpellCheck,
             [this] { frmMain(program_).imgSpellCheck_Click(); });
    AddImage("imgFootNotes", tr("Show Footnotes"), CommandId::mnuFileOpenFootnotes, main.imgFootNotes,
             [this] { frmMain(program_).imgFootNotes_MouseDown(); });
    AddImage("imgTime", tr("Clock"), CommandId::Count, main.imgTime, [] {});
    images_.back().first->setFocusPolicy(Qt::NoFocus); // it does nothing; the keyboard need not come by
    row->addSpacing(10);
    buttons_ = new QWidget(this);
    buttons_->setAccessibleName(tr("Commands"));
    auto* commands = new QHBoxLayout(buttons_);
    commands->setContentsMargins(0, 0, 0, 0);
    commands->setSpacing(1);
    buttonsAt_ = row->count();
    row->addWidget(buttons_);
    QPushButton* preview = AddCommand(QStringLiteral("cmdPreview"), main.cmdPreview,
                                      [this] { frmMain(program_).cmdPreview_Click(); });
    KeepWidth(*preview, {tr("Print Preview"), tr("Resume Editing")});
    AddCommand(QStringLiteral("cmdReCalc"), main.cmdReCalc, [this] { frmMain(program_).cmdReCalc_Click(); });
    AddCommand(QStringLiteral("cmdTaxRate"), main.cmdTaxRate,
               [this] { frmMain(program_).cmdTaxRate_Click(); });
    AddCommand(QStringLiteral("cmdClearMem"), main.cmdClearMem,
               [this] { frmMain(program_).cmdClearMem_Click(); });
    row->addStretch(1);
    lblPage_ = new QLabel(convert::ToQString(main.lblPage.Caption), this);
    lblPage_->setObjectName(QStringLiteral("lblPage"));
    row->addWidget(lblPage_);
    row->addSpacing(4);
    for (int index = 0; index < kPageCount; ++index) {
        auto* button = new PageSwitchButton(index, this);
        connect(button, &QAbstractButton::clicked, this, [this, index] {
            frmMain(program_).imgPage_Click(index);
            afterEvent_();
        });
        row->addWidget(button);
        pages_[static_cast<std::size_t>(index)] = button;
    }
    Follow();
}

void ToolStrip::AddImage(std::string_view name, const QString& accessibleName, CommandId command,
                         ImageButton& record, std::function<void()> chosen) {
    auto* button = new ToolImage(name, accessibleName, this);
    if (command != CommandId::Count && commands::Find(command).Pending()) {
        button->MarkPending();
    }
    button->Hovered = [this, &record](bool over) {
        over ? modToolButtons::HoverToolButton(program_, record) : modToolButtons::LeaveToolButton(program_);
        FollowImages();
    };
    connect(button, &QAbstractButton::pressed, this, [this, &record] {
        modToolButtons::PressToolButton(program_, record);
        FollowImages();
    });
    connect(button, &QAbstractButton::released, this, [this] {
        modToolButtons::ReleaseToolButton(program_);
        FollowImages();
    });
    // A button works when it is let go over it, as everywhere on the desktop; its frame goes with that.
    connect(button, &QAbstractButton::clicked, this, [this, chosen = std::move(chosen)] {
        chosen();
        modToolButtons::ReleaseToolButton(program_);
        afterEvent_();
    });
    row_->addWidget(button);
    images_.emplace_back(button, &record);
}

QPushButton* ToolStrip::AddCommand(const QString& name, const CommandButton& record,
                                   std::function<void()> chosen) {
    auto* button = new QPushButton(convert::ToQString(record.Caption), buttons_);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, chosen = std::move(chosen)] {
        chosen();
        afterEvent_();
    });
    buttons_->layout()->addWidget(button);
    commands_.emplace_back(button, &record);
    return button;
}

void ToolStrip::GiveLetters(const QString& taken) {
    taken_ = taken;
    mnemonics::Give(*buttons_, taken_);
}

void ToolStrip::FollowCommand(QPushButton& button, const CommandButton& record) {
    const QString caption = convert::ToQString(record.Caption);
    if (mnemonics::Plain(button.text()) != caption) {
        button.setText(caption);
        mnemonics::Give(*buttons_, taken_);
    }
    const QString tip = convert::ToQString(record.ToolTipText);
    if (button.toolTip() != tip) {
        button.setToolTip(tip);
    }
    if (button.isEnabled() != record.Enabled) {
        button.setEnabled(record.Enabled);
    }
    if (button.isHidden() == record.Visible) {
        button.setVisible(record.Visible);
    }
    // The colour is a fact of the record; kept beside it so that an unchanged one costs no new palette.
    const QVariant shown = button.property("backColor");
    if (!shown.isValid() || shown.toUInt() != record.BackColor) {
        button.setProperty("backColor", record.BackColor);
        if (record.BackColor == colors::kButtonFace) {
            button.setPalette(QPalette());
        } else {
            QPalette palette = button.palette();
            const QColor color = convert::ToQColor(record.BackColor);
            palette.setColor(QPalette::Button, color);
            palette.setColor(QPalette::ButtonText,
                             Qt::black); // the style lightens the face; white would fade
            button.setPalette(palette);
        }
    }
}

void ToolStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceCommands();
}

QSize ToolStrip::minimumSizeHint() const {
    const bool below = rows_->indexOf(buttons_) >= 0;
    const int commands = buttons_->minimumSizeHint().width();
    const int first = row_->minimumSize().width() - (below ? 0 : commands);
    const QMargins around = rows_->contentsMargins();
    return {qMax(first, commands) + around.left() + around.right(), QWidget::minimumSizeHint().height()};
}

/// No caption is cut: where one row has not the room for all, the commands go below.
void ToolStrip::PlaceCommands() {
    const bool below = rows_->indexOf(buttons_) >= 0;
    const int others = row_->sizeHint().width() - (below ? 0 : buttons_->sizeHint().width());
    const bool narrow = width() < others + buttons_->sizeHint().width() + rows_->contentsMargins().left() +
                                      rows_->contentsMargins().right();
    if (narrow && !below) {
        row_->removeWidget(buttons_);
        rows_->addWidget(buttons_, 0, Qt::AlignLeft);
    } else if (!narrow && below) {
        rows_->removeWidget(buttons_);
        row_->insertWidget(buttonsAt_, buttons_);
    }
}

void ToolStrip::KeepPlace(const QWidget& widget, ImageButton& record) const {
    const float twips = static_cast<float>(paper::kTwipsPerInch) / static_cast<float>(logicalDpiX());
    record.Left = static_cast<float>(widget.x()) * twips;
    record.Top = static_cast<float>(widget.y()) * twips;
    record.Width = static_cast<float>(widget.width()) * twips;
    record.Height = static_cast<float>(widget.height()) * twips;
}

void ToolStrip::FollowImages() {
    for (const auto& [widget, record] : images_) {
        KeepPlace(*widget, *record);
        widget->Follow(*record, modToolButtons::FrameOf(program_, *record));
    }
}

void ToolStrip::Follow() {
    FollowImages();
    for (const auto& [widget, record] : commands_) {
        FollowCommand(*widget, *record);
    }
    PlaceCommands();
    for (int index = 0; index < kPageCount; ++index) {
        pages_[static_cast<std::size_t>(index)]->Follow(
            program_.main.imgPage[static_cast<std::size_t>(index)]);
    }
}
