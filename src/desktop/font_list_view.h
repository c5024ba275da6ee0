#pragma once

#include <QListView>

#include <functional>
#include <string>
#include <vector>

/// The families of the system, each drawn in its own face. Typing letters goes to the first family that
/// begins so. A model and no items: thousands of families open at once, and only those on show are drawn.
class FontListView : public QListView {
    Q_OBJECT
public:
    FontListView(QWidget* parent, const std::vector<std::string>& families);

    /// Shows which family is chosen; -1 for none.
    void Follow(int index);
    /// Runs when a person has chosen a family.
    std::function<void(int)> Chosen;

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    bool following_ = false;
};
