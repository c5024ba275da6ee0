#pragma once

#include "program/window_parts.h"

#include <QAbstractTableModel>
#include <QTreeView>

#include <functional>
#include <vector>

/// The rows of a list in columns that line up.
class RowModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit RowModel(QObject* parent) : QAbstractTableModel(parent) {}

    /// The words of a row in each column; asked only for the rows that are on the screen.
    std::function<QString(int row, int column)> Words;
    std::function<bool(int row)> Shaded;
    /// What a column may have no room for.
    std::function<QString(int row)> Tip;
    int Columns = 1;
    int RightColumn = -1; ///< figures stand at the right

    void Reset(int rows);
    void Repaint();
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    int rows_ = 0;
};

/// A list in which any number of rows can be selected.
class RowTable : public QTreeView {
    Q_OBJECT
public:
    RowTable(QWidget* parent, const char* name, const QString& spoken);

    RowModel Rows{this};
    /// The person has selected: all selected rows, and the current one.
    std::function<void(const std::vector<int>&, int)> Selected;

    /// Rows, selection and current row as in the record.
    void Follow(const SelectList& record);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    [[nodiscard]] std::vector<int> SelectedRows() const;
    SelectList shown_;
    bool following_ = false;
};
