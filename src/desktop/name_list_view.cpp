#include "desktop/name_list_view.h"

#include "addresses/address_window.h"
#include "base/guard.h"
#include "desktop/convert.h"

#include <QApplication>
#include <QKeyEvent>

NameListModel::NameListModel(const NameList& list, QObject* parent)
    : QAbstractListModel(parent), list_(list), filled_(list.Filled),
      shown_(static_cast<int>(list.Rows.size())) {}

int NameListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_;
}

QVariant NameListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || !index.isValid() || row >= list_.Rows.size()) {
        return {};
    }
    return convert::ToQString(list_.Rows[row].Text);
}

void NameListModel::Follow() {
    if (filled_ == list_.Filled) {
        return;
    }
    beginResetModel();
    filled_ = list_.Filled;
    shown_ = static_cast<int>(list_.Rows.size());
    endResetModel();
}

NameListView::NameListView(QWidget* parent, const NameList& list)
    : QListView(parent), list_(list), model_(new NameListModel(list, this)) {
    setObjectName(QStringLiteral("lstNames"));
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
}

void NameListView::Follow() {
    const ScopedFlag following(following_);
    model_->Follow();
    if (isEnabled() != list_.Enabled) {
        setEnabled(list_.Enabled);
    }
    const QModelIndex wanted = model_->index(list_.ListIndex);
    if (currentIndex() == wanted && selectionModel()->isSelected(wanted) == wanted.isValid()) {
        return;
    }
    if (wanted.isValid()) {
        setCurrentIndex(wanted);
        scrollTo(wanted);
    } else {
        selectionModel()->clear();
    }
}

void NameListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!following_ && current.isValid() && RowChosen) {
        RowChosen(current.row());
    }
}

void NameListView::mousePressEvent(QMouseEvent* event) {
    // A press chooses; moving on with the button down must not open record after record.
    QListView::mousePressEvent(event);
    setState(NoState);
}

void NameListView::keyPressEvent(QKeyEvent* event) {
    const auto held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = event->text();
    const auto byte =
        text.size() == 1 && text.front().isPrint() ? convert::ToByte(text.front()) : std::nullopt;
    if (!byte || held != Qt::NoModifier) {
        QListView::keyPressEvent(event);
        return;
    }
    if (!sinceLetter_.isValid() || sinceLetter_.elapsed() > QApplication::keyboardInputInterval()) {
        typed_.clear();
    }
    sinceLetter_.start();
    typed_ += *byte;
    if (LettersTyped) {
        LettersTyped(typed_);
    }
}

void NameListView::focusInEvent(QFocusEvent* event) {
    // The keyboard's coming opens nothing; the list's own handler would choose a row.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}
