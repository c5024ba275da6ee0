#pragma once

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>

#include <functional>
#include <string>

struct NameList;

/// The rows of the address list where they stand in the record; no row has an object of its own.
class NameListModel : public QAbstractListModel {
    Q_OBJECT
public:
    NameListModel(const NameList& list, QObject* parent);
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// Looks at the rows anew when they were filled since.
    void Follow();

private:
    const NameList& list_;
    unsigned filled_ = 0;
    int shown_ = 0;
};

/// The list of names. Letters lead to the name that begins with them; typed in one go they count together.
class NameListView : public QListView {
    Q_OBJECT
public:
    NameListView(QWidget* parent, const NameList& list);
    void Follow();

    std::function<void(int)> RowChosen;
    std::function<void(const std::string&)> LettersTyped;

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    const NameList& list_;
    NameListModel* model_;
    bool following_ = false;
    std::string typed_;
    QElapsedTimer sinceLetter_;
};
