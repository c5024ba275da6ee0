#include "desktop/frm_address_view.h"

#include "addresses/address_fields.h"
#include "addresses/address_record.h"
#include "desktop/convert.h"
#include "desktop/import_panel_view.h"
#include "desktop/name_list_view.h"
#include "program/program.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

/// A button in the record's colour; the standard one is the theme's own.
void ColourButton(QPushButton& button, Color color) {
    const QPalette standard = button.parentWidget()->palette();
    QPalette palette = standard;
    if (color != colors::kButtonFace) {
        palette.setColor(QPalette::Button, convert::ToQColor(color));
        palette.setColor(QPalette::ButtonText, Qt::black);
    }
    if (button.palette() != palette) {
        button.setPalette(palette);
    }
}

} // namespace

FrmAddressView::FrmAddressView(Program& program, frmAddress& window, QWidget* over,
                               std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), address_(window),
      frontCalls_(window.FrontCalls) {
    ConnectFields();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    BuildMenus();
    column->setMenuBar(bar_);
    stack_ = new QStackedWidget(this);
    column->addWidget(stack_);
    scroll_ = new QScrollArea(stack_);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    auto* book = new QWidget(scroll_);
    auto* row = new QHBoxLayout(book);
    row->setContentsMargins(14, 12, 14, 12);
    row->setSpacing(14);
    names_ = Names();
    row->addWidget(names_, 2);
    row->addWidget(Fields(), 3);
    scroll_->setWidget(book);
    stack_->addWidget(scroll_);
    import_ = new ImportPanelView(program_, address_, stack_,
                                  [this](const std::function<void()>& call) { Do([&] { call(); }); });
    const bool company = program_.addresses.CompanyInfoMode;
    if (company) {
        import_->hide(); // nothing is imported there, and the window need not be as wide as its panels
    } else {
        stack_->addWidget(import_);
    }

    FrmAddressView::Follow();
    bar_->setVisible(!company);
    const int letter = fontMetrics().averageCharWidth();
    const QSize wanted(letter * (company ? 70 : 118), book->sizeHint().height() + bar_->sizeHint().height());
    const QSize room = screen()->availableSize() - QSize(24, 48); // of the window's own frame
    resize(wanted.boundedTo(room));
}

void FrmAddressView::ConnectFields() {
    calls_.Edited = [this](int field, const std::string& text, int cursor) {
        Do([&] { address_.txt_Change(program_, field, text, cursor); });
    };
    calls_.Focused = [this](int field) {
        address_.txt_GotFocus(program_, field);
        if (QWidget* shown = focusWidget()) {
            scroll_->ensureWidgetVisible(shown);
        }
    };
    calls_.KeyUp = [this](int field, int cursor) { address_.txt_KeyUp(program_, field, cursor); };
    calls_.Converts = [this](int field) { return address_.Converts(program_, field); };
    calls_.Convert = [this](int field) {
        Do([&] {
            address_.txt_DblClick(program_, field);
            if (field < modAddress::kNotesField) {
                lines_[static_cast<std::size_t>(field)]->TakeConversion();
            }
        });
    };
    calls_.Moves = [this](int field, bool enter, bool forward) {
        const modAddress::FieldKey key = enter     ? modAddress::FieldKey::Enter
                                         : forward ? modAddress::FieldKey::Down
                                                   : modAddress::FieldKey::Up;
        const std::optional<int> next = modAddress::NextField(address_, field, key);
        if (!next) {
            return false;
        }
        if (*next == modAddress::kNotesField) {
            notes_->setFocus();
        } else {
            lines_[static_cast<std::size_t>(*next)]->setFocus();
        }
        return true;
    };
}

void FrmAddressView::BuildMenus() {
    bar_ = new QMenuBar(this);
    std::array<QMenu*, address_menu::kCount> menus{};
    for (const address_menu::Entry& entry : address_menu::Table()) {
        const auto at = static_cast<std::size_t>(entry.What);
        const QString caption = convert::ToQString(entry.Caption);
        const QString name = convert::ToQString(entry.Name);
        QMenu* parent =
            entry.Parent == address_menu::Id::Count ? nullptr : menus[static_cast<std::size_t>(entry.Parent)];
        if (entry.Menu) {
            menus[at] = parent != nullptr ? parent->addMenu(caption) : bar_->addMenu(caption);
            menus[at]->setObjectName(name);
            actions_[at] = menus[at]->menuAction();
            actions_[at]->setObjectName(name);
            continue;
        }
        auto* action = new QAction(caption, this);
        action->setObjectName(name);
        actions_[at] = action;
        if (parent != nullptr) {
            parent->addAction(action);
        }
        if (!entry.Shortcut.empty()) {
            action->setShortcut(QKeySequence(convert::ToQString(entry.Shortcut)));
            addAction(action);
        }
        const address_menu::Id id = entry.What;
        connect(action, &QAction::triggered, this, [this, id] { Do([&] { address_.Run(program_, id); }); });
    }
}

QPushButton* FrmAddressView::Button(QWidget* parent, const char* name, const CommandButton& record,
                                    void (frmAddress::*click)(Program&)) {
    auto* button = new QPushButton(convert::ToQString(record.Caption), parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, click] { Do([&] { (address_.*click)(program_); }); });
    return button;
}

QWidget* FrmAddressView::Names() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    QLabel*& heading = captions_[AddressWindow::kHeading];
    heading = new QLabel(side);
    heading->setObjectName(QStringLiteral("lblInfo(11)"));
    heading->setTextFormat(Qt::PlainText);
    column->addWidget(heading);
    list_ = new NameListView(side, address_.lstNames);
    list_->setAccessibleName(convert::ToQString(address_.lblInfo[AddressWindow::kHeading].Caption));
    list_->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
    list_->RowChosen = [this](int row) { Do([&] { address_.lstNames_Click(program_, row); }); };
    list_->LettersTyped = [this](const std::string& typed) {
        Do([&] { address_.lstNames_Typed(program_, typed); });
    };
    heading->setBuddy(list_);
    column->addWidget(list_, 1);
    return side;
}

QWidget* FrmAddressView::Fields() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    runPanel_ = RunPanel();
    column->addWidget(runPanel_);
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(6);
    grid->setHorizontalSpacing(10);
    for (int index = 0; index < kAddressFieldCount; ++index) {
        auto* caption = new QLabel(side);
        caption->setObjectName(QStringLiteral("lblInfo(%1)").arg(index));
        caption->setTextFormat(Qt::PlainText);
        captions_[static_cast<std::size_t>(index)] = caption;
        QWidget* field = nullptr;
        if (index == modAddress::kNotesField) {
            notes_ = new AddressNotesView(side, index, calls_);
            const int line = notes_->fontMetrics().lineSpacing();
            notes_->setMinimumHeight(line * 4);
            field = notes_;
            grid->setRowStretch(index, 1);
        } else {
            auto* line = new AddressLineView(side, index, calls_);
            line->setMinimumWidth(fontMetrics().averageCharWidth() * 22);
            lines_[static_cast<std::size_t>(index)] = line;
            field = line;
        }
        caption->setBuddy(field);
        grid->addWidget(caption, index, 0,
                        Qt::AlignLeft | (index == modAddress::kNotesField ? Qt::AlignTop : Qt::AlignVCenter));
        grid->addWidget(field, index, 1);
    }
    grid->setColumnStretch(1, 1);
    column->addLayout(grid, 1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    save_ = Button(side, "cmdSave", address_.cmdSave, &frmAddress::cmdSave_Click);
    exit_ = Button(side, "cmdExit", address_.cmdExit, &frmAddress::cmdExit_Click);
    row->addWidget(save_);
    row->addWidget(exit_);
    column->addLayout(row);
    return side;
}

QWidget* FrmAddressView::RunPanel() {
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("picBatchProcess"));
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    progress_ = new QLabel(panel);
    progress_->setObjectName(QStringLiteral("lblBatch"));
    row->addWidget(progress_, 1);
    saveBatch_ = Button(panel, "cmdSaveBatchRecord", address_.cmdSaveBatchRecord,
                        &frmAddress::cmdSaveBatchRecord_Click);
    row->addWidget(saveBatch_);
    row->addWidget(Button(panel, "cmdSkipBatchRecord", address_.cmdSkipBatchRecord,
                          &frmAddress::cmdSkipBatchRecord_Click));
    row->addWidget(Button(panel, "cmdEndBatch", address_.cmdEndBatch, &frmAddress::cmdEndBatch_Click));
    return panel;
}

void FrmAddressView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Do([&] { address_.Escape_Pressed(program_); });
        return;
    }
    WindowView::keyPressEvent(event);
}

void FrmAddressView::FollowMenus() {
    for (const address_menu::Entry& entry : address_menu::Table()) {
        QAction& action = *actions_[static_cast<std::size_t>(entry.What)];
        const bool available = address_.IsAvailable(program_, entry.What);
        if (action.isEnabled() != available) {
            action.setEnabled(available);
        }
        if (action.isVisible() != address_[entry.What].Visible) {
            action.setVisible(address_[entry.What].Visible);
        }
    }
}

void FrmAddressView::FollowFields() {
    for (std::size_t index = 0; index < captions_.size(); ++index) {
        const StripLabel& record = address_.lblInfo[index];
        QLabel& caption = *captions_[index];
        const QString words = convert::ToQString(record.Caption);
        if (caption.text() != words) {
            caption.setText(words);
            if (caption.buddy() != nullptr) {
                caption.buddy()->setAccessibleName(words);
            }
        }
        if (caption.isHidden() == record.Visible) {
            caption.setVisible(record.Visible);
        }
    }
    for (std::size_t index = 0; index < lines_.size(); ++index) {
        lines_[index]->Follow(address_.txt[index]);
    }
    notes_->Follow(address_.txt[modAddress::kNotesField]);
    save_->setEnabled(address_.cmdSave.Enabled);
    exit_->setEnabled(address_.cmdExit.Enabled);
    ColourButton(*save_, address_.cmdSave.BackColor);
}

void FrmAddressView::FollowPanels() {
    if (names_->isHidden() == address_.lstNames.Visible) {
        names_->setVisible(address_.lstNames.Visible);
    }
    list_->Follow();
    if (runPanel_->isHidden() == address_.picBatchProcess) {
        runPanel_->setVisible(address_.picBatchProcess);
    }
    progress_->setText(convert::ToQString(address_.lblBatch.Caption));
    import_->Follow();
    if (importShown_ != address_.picImport) {
        importShown_ = address_.picImport;
        stack_->setCurrentIndex(importShown_ ? 1 : 0);
        scroll_->ensureVisible(0, 0);
        if (importShown_) {
            import_->TakeFocus();
        }
    }
    QPushButton* const first = address_.picImport         ? import_->BeginButton()
                               : address_.picBatchProcess ? saveBatch_
                                                          : save_;
    if (!first->isDefault()) {
        first->setDefault(true);
    }
}

void FrmAddressView::FollowFocus() {
    const std::optional<int> field = std::exchange(address_.FocusWanted, std::nullopt);
    if (field) {
        const AddressField& record = address_.txt[static_cast<std::size_t>(*field)];
        if (*field == modAddress::kNotesField) {
            notes_->TakeFocus(record);
        } else {
            lines_[static_cast<std::size_t>(*field)]->TakeFocus(record);
        }
    }
    if (frontCalls_ != address_.FrontCalls) {
        frontCalls_ = address_.FrontCalls;
        raise();
        activateWindow();
    }
}

void FrmAddressView::Follow() {
    WindowView::Follow();
    FollowMenus();
    FollowFields();
    FollowPanels();
    FollowFocus();
}
