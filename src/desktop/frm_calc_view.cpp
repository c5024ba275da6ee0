#include "desktop/frm_calc_view.h"

#include "base/guard.h"
#include "calculator/equation.h"
#include "calculator/frm_calc.h"
#include "desktop/convert.h"
#include "desktop/term_drag.h"
#include "program/program.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyleHints>
#include <QVBoxLayout>

namespace {

/// The character of a key that enters one, 0 otherwise.
int CharacterOf(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Comma && event.modifiers().testFlag(Qt::KeypadModifier)) {
        return '.'; // the number pad's point, on keyboards where it is a comma
    }
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (event.text().size() != 1 || !event.text().front().isPrint() || held != Qt::NoModifier) {
        return 0;
    }
    const auto byte = convert::ToByte(event.text().front());
    return byte ? static_cast<unsigned char>(*byte) : 0;
}

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

void EquationEdit::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        event->ignore();
        return;
    }
    const int character = CharacterOf(*event);
    if (character == 0 && event->key() != Qt::Key_Backspace) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const int taken = Filter(character == 0 ? '\b' : character);
    if (taken == '\b') {
        QLineEdit::keyPressEvent(event);
    } else if (taken != 0) {
        insert(QString(QChar(taken)));
        Changed(true);
    }
}

void EquationEdit::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    Released();
}

void EquationEdit::focusInEvent(QFocusEvent* event) {
    const int cursor = cursorPosition();
    QLineEdit::focusInEvent(event);
    deselect();
    setCursorPosition(cursor);
    Arrived();
}

void ResultEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy) && !MayCopy()) {
        event->accept();
    } else if (const int character = CharacterOf(*event)) {
        Typed(character);
    } else if (event->key() == Qt::Key_Backspace) {
        Typed('\b');
    } else if (IsEnter(*event)) {
        event->ignore();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void ResultEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    selectAll();
    Arrived();
}

void ResultEdit::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->position().toPoint();
    setFocus(Qt::MouseFocusReason);
    selectAll();
}

void ResultEdit::mouseReleaseEvent(QMouseEvent* event) {
    // The line edit's own way offers what is marked to the middle button.
    if (MayCopy()) {
        QLineEdit::mouseReleaseEvent(event);
    }
}

void ResultEdit::contextMenuEvent(QContextMenuEvent* event) {
    if (MayCopy()) {
        QLineEdit::contextMenuEvent(event);
    }
}

void ResultEdit::mouseMoveEvent(QMouseEvent* event) {
    const int moved = (event->position().toPoint() - pressed_).manhattanLength();
    if (event->buttons().testFlag(Qt::LeftButton) &&
        moved >= QGuiApplication::styleHints()->startDragDistance()) {
        Dragged();
    }
}

FrmCalcView::FrmCalcView(Program& program, frmCalc& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    setWindowFlag(Qt::Tool);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(10, 8, 10, 10);
    column->setSpacing(6);
    BuildLines();
    BuildKeys();
    constexpr int kWidth = 230;
    setFixedSize(kWidth, column->sizeHint().height());
    equation_->setFocus();
}

void FrmCalcView::BuildLines() {
    auto* column = static_cast<QVBoxLayout*>(layout());
    echo_ = new QLabel(this);
    echo_->setObjectName(QStringLiteral("lblE"));
    echo_->setTextFormat(Qt::PlainText);
    echo_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    column->addWidget(echo_);
    equation_ = new EquationEdit(this);
    equation_->setObjectName(QStringLiteral("txtE"));
    equation_->setAccessibleName(tr("Equation"));
    column->addWidget(equation_);
    auto* results = new QLabel(convert::ToQString(model_.lblResults.Caption), this);
    results->setObjectName(QStringLiteral("lblResults"));
    column->addWidget(results);
    result_ = new ResultEdit(this);
    result_->setObjectName(QStringLiteral("txtR"));
    result_->setAccessibleName(tr("Results"));
    result_->setReadOnly(true);
    column->addWidget(result_);

    equation_->Filter = [this](int character) {
        const int taken = model_.txtE_KeyPress(program_, character);
        Follow(); // the first key after a result has emptied the line
        return taken;
    };
    equation_->Changed = [this](bool typed) {
        Do([this, typed] {
            model_.txtE_Change(convert::ToModel(equation_->text()), equation_->cursorPosition(),
                               typed ? frmCalc::By::Key : frmCalc::By::Other);
        });
    };
    connect(equation_, &QLineEdit::textEdited, this, [this](const QString& now) {
        // Also what came by paste or drop.
        const QString plain = convert::ToQString(modCalculator::PlainLine(convert::FromPerson(now).Text));
        if (plain != now) {
            equation_->setText(plain);
        }
        equation_->Changed(false);
    });
    equation_->Released = [this] { Do([this] { model_.txtE_KeyUp(program_); }); };
    equation_->Arrived = [this] {
        if (!following_) {
            model_.txtE_GotFocus();
        }
    };
    result_->MayCopy = [this] { return model_.ResultStands; };
    result_->Typed = [this](int character) { Do([&] { model_.txtR_KeyPress(program_, character); }); };
    result_->Arrived = [this] {
        if (!following_) {
            Do([this] { model_.txtR_GotFocus(); });
        }
    };
    result_->Dragged = [this] {
        if (model_.txtR_MouseMove(program_)) {
            termdrag::Run(program_, result_);
            Do([] {});
        }
    };
}

QPushButton* FrmCalcView::Button(const QString& name, const CommandButton& record,
                                 std::function<void()> click) {
    auto* button = new QPushButton(convert::ToQString(record.Caption), this);
    button->setObjectName(name);
    button->setToolTip(convert::ToQString(record.ToolTipText));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard in the line
    button->setMinimumWidth(1);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, run = std::move(click)] { Do(run); });
    return button;
}

void FrmCalcView::BuildKeys() {
    auto* grid = new QGridLayout;
    grid->setSpacing(4);
    const auto digit = [this](int number) {
        return Button(QStringLiteral("cmd(%1)").arg(number), model_.cmd[static_cast<std::size_t>(number)],
                      [this, number] { model_.cmd_Click(program_, number); });
    };
    const auto memory = [this](int index) {
        return Button(QStringLiteral("cmdMem(%1)").arg(index), model_.cmdMem[static_cast<std::size_t>(index)],
                      [this, index] { model_.cmdMem_Click(program_, index); });
    };
    const auto operation = [this](int index) {
        return Button(QStringLiteral("cmdOp(%1)").arg(index), model_.cmdOp[static_cast<std::size_t>(index)],
                      [this, index] { model_.cmdOp_Click(program_, index); });
    };
    for (int index = 0; index < 3; ++index) {
        grid->addWidget(memory(index), 0, index);
    }
    clear_ = Button(QStringLiteral("cmdClear"), model_.cmdClear, [this] { model_.cmdClear_Click(); });
    grid->addWidget(clear_, 0, 3);
    for (int number = 1; number < 10; ++number) {
        grid->addWidget(digit(number), 3 - (number - 1) / 3, (number - 1) % 3);
    }
    for (int index = 0; index < 4; ++index) {
        grid->addWidget(operation(index), index + 1, 3);
    }
    grid->addWidget(digit(0), 4, 0);
    grid->addWidget(
        Button(QStringLiteral("cmdDec"), model_.cmdDec, [this] { model_.cmdDec_Click(program_); }), 4, 1);
    grid->addWidget(
        Button(QStringLiteral("cmdEquals"), model_.cmdEquals, [this] { model_.cmdEquals_Click(program_); }),
        4, 2);
    grid->addWidget(
        Button(QStringLiteral("cmdAns"), model_.cmdAns, [this] { model_.cmdAns_Click(program_); }), 5, 0, 1,
        4);
    copy_ = Button(QStringLiteral("cmdCopy"), model_.cmdCopy, [this] { model_.cmdCopy_Click(program_); });
    grid->addWidget(copy_, 6, 0, 1, 4);
    static_cast<QVBoxLayout*>(layout())->addLayout(grid);
}

void FrmCalcView::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        Do([this] { model_.Form_Enter(program_); });
    } else if (event->key() == Qt::Key_Escape) {
        Do([this] { program_.main.BringUp = true; });
    } else {
        QDialog::keyPressEvent(event);
    }
}

void FrmCalcView::mouseDoubleClickEvent(QMouseEvent*) {
    Do([this] { model_.Form_DblClick(program_); });
}

bool FrmCalcView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && IsEnter(*static_cast<QKeyEvent*>(event))) {
        keyPressEvent(static_cast<QKeyEvent*>(event)); // Enter presses no button here
        return true;
    }
    const bool rightPress = event->type() == QEvent::MouseButtonPress &&
                            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
    if (watched == clear_ && rightPress) {
        Do([this] { model_.cmdClear_MouseDown(2); });
        return true;
    }
    if (watched == clear_ && event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        Do([this] { model_.cmdClear_MouseDown(2); });
        return true;
    }
    return WindowView::eventFilter(watched, event);
}

void FrmCalcView::FollowKeyboard() {
    QWidget* const wanted =
        model_.ResultHasKeyboard ? static_cast<QWidget*>(result_) : static_cast<QWidget*>(equation_);
    QWidget* const other =
        model_.ResultHasKeyboard ? static_cast<QWidget*>(equation_) : static_cast<QWidget*>(result_);
    if (focusWidget() == other) {
        wanted->setFocus();
    }
}

void FrmCalcView::Open() {
    stands_ = Stands::Waiting;
    Follow();
}

void FrmCalcView::Follow() {
    WindowView::Follow();
    if (stands_ == Stands::Waiting && program_.main.Loaded && parentWidget()->isVisible()) {
        stands_ = Stands::Shown;
        show();
    }
    const ScopedFlag following(following_);
    echo_->setText(convert::ToQString(model_.lblE.Caption));
    echo_->setToolTip(convert::ToQString(model_.lblE.ToolTipText));
    echo_->setAccessibleDescription(echo_->toolTip());
    const bool refused = model_.lblE.ForeColor != colors::kBlack;
    QPalette ink = palette();
    if (refused) {
        const bool dark = ink.color(QPalette::Window).lightnessF() < 0.5F;
        ink.setColor(QPalette::WindowText, dark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xC0, 0, 0));
    }
    echo_->setPalette(ink);
    const QString line = convert::ToQString(model_.txtE.Text);
    if (equation_->text() != line) {
        equation_->setText(line);
        equation_->setCursorPosition(model_.txtE.SelStart);
    }
    const QString result = convert::ToQString(model_.txtR.Text);
    if (result_->text() != result) {
        result_->setText(result);
    }
    copy_->setEnabled(model_.cmdCopy.Enabled);
    FollowKeyboard();
    if (model_.ResultHasKeyboard && !result_->hasSelectedText()) {
        result_->selectAll();
    }
}
