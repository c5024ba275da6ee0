#include "desktop/row_table.h"

#include "base/guard.h"

#include <QHeaderView>

#include <algorithm>

void RowModel::Reset(int rows) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
}

void RowModel::Repaint() {
    if (rows_ > 0) {
        emit dataChanged(index(0, 0), index(rows_ - 1, Columns - 1), {Qt::BackgroundRole});
    }
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int RowModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return Words ? QVariant(Words(index.row(), index.column())) : QVariant();
    case Qt::ToolTipRole:
        return Tip ? QVariant(Tip(index.row())) : QVariant();
    case Qt::BackgroundRole:
        if (Shaded && Shaded(index.row())) {
            return QColor(120, 160, 220, 70);
        }
        break;
    case Qt::TextAlignmentRole:
        return static_cast<int>((index.column() == RightColumn ? Qt::AlignRight : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    default:
        break;
    }
    return {};
}

RowTable::RowTable(QWidget* parent, const char* name, const QString& spoken) : QTreeView(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(spoken);
    setModel(&Rows);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setItemsExpandable(false);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    header()->hide();
    header()->setStretchLastSection(true);
}

std::vector<int> RowTable::SelectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void RowTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (following_ || !Selected) {
        return;
    }
    const std::vector<int> rows = SelectedRows();
    shown_.Selected.assign(shown_.Items.size(), false);
    for (const int row : rows) {
        shown_.Selected[static_cast<std::size_t>(row)] = true;
    }
    shown_.ListIndex = currentIndex().row();
    Selected(rows, shown_.ListIndex);
}

void RowTable::Follow(const SelectList& record) {
    const ScopedFlag following(following_);
    if (shown_.Items != record.Items) {
        shown_ = record;
        Rows.Reset(static_cast<int>(record.Items.size()));
        shown_.Selected.assign(record.Items.size(), false);
        shown_.ListIndex = -1;
    }
    if (shown_.Selected != record.Selected) {
        QItemSelection wanted;
        for (std::size_t row = 0; row < record.Selected.size(); ++row) {
            if (record.Selected[row]) {
                const int at = static_cast<int>(row);
                wanted.select(Rows.index(at, 0), Rows.index(at, Rows.Columns - 1));
            }
        }
        selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
        shown_.Selected = record.Selected;
    }
    if (shown_.ListIndex != record.ListIndex) {
        const QModelIndex current = record.ListIndex < 0 ? QModelIndex() : Rows.index(record.ListIndex, 0);
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        shown_.ListIndex = record.ListIndex;
    }
    if (isEnabled() != record.Enabled) {
        setEnabled(record.Enabled);
    }
}
