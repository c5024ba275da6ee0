#include "desktop/term_parts.h"

#include "desktop/convert.h"
#include "program/program.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include <cstddef>
#include <string_view>

int TermRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

Qt::ItemFlags TermRows::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled;
}

QVariant TermRows::data(const QModelIndex& index, int role) const {
    constexpr std::size_t kShown = 300; // no row is wider
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= program_.terms.TermCount()) {
        return {};
    }
    const std::string_view line = program_.terms.Lines[static_cast<std::size_t>(index.row())];
    return convert::ToQString(line.substr(0, kShown));
}

void TermRows::Renew() {
    beginResetModel();
    rows_ = program_.terms.TermCount();
    endResetModel();
}

void TermListView::startDrag(Qt::DropActions) {
    if (Dragged) {
        Dragged();
    }
}

void TermListView::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && Entered) {
        Entered();
        return;
    }
    QListView::keyPressEvent(event);
}

void FileListView::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && Entered) {
        Entered();
        return;
    }
    QListWidget::keyPressEvent(event);
}

void FileListView::focusInEvent(QFocusEvent* event) {
    // The list's own handler would choose a row.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

void TermsDock::moveEvent(QMoveEvent* event) {
    QDockWidget::moveEvent(event);
    Moved();
}

void TermsDock::resizeEvent(QResizeEvent* event) {
    QDockWidget::resizeEvent(event);
    Moved();
}

void TermsDock::closeEvent(QCloseEvent* event) {
    event->ignore(); // the model closes it
    Closed();
}

void TermsDock::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Escaped();
        return;
    }
    QDockWidget::keyPressEvent(event);
}
