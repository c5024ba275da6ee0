#include "desktop/font_list_view.h"

#include "base/guard.h"
#include "desktop/convert.h"

#include <QAbstractListModel>
#include <QFont>

namespace {

class FamilyModel : public QAbstractListModel {
public:
    FamilyModel(QObject* parent, const std::vector<std::string>& families)
        : QAbstractListModel(parent), families_(families) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(families_.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) {
            return {};
        }
        const QString family = convert::ToQString(families_[static_cast<std::size_t>(index.row())]);
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) {
            return family;
        }
        if (role == Qt::FontRole) {
            constexpr int kPoints = 11;
            return QFont(family, kPoints);
        }
        return {};
    }

private:
    std::vector<std::string> families_;
};

} // namespace

FontListView::FontListView(QWidget* parent, const std::vector<std::string>& families) : QListView(parent) {
    setObjectName(QStringLiteral("lstFont"));
    setAccessibleName(tr("Font"));
    setUniformItemSizes(true); // so that no family is loaded before it shows
    setLayoutMode(QListView::SinglePass);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setModel(new FamilyModel(this, families));
    // Set to none by us: otherwise the first family would be chosen by the mere coming of the keyboard.
    setCurrentIndex({});
}

void FontListView::Follow(int index) {
    if (currentIndex().row() == index) {
        return;
    }
    const ScopedFlag following(following_);
    setCurrentIndex(index < 0 ? QModelIndex() : model()->index(index, 0));
}

void FontListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!following_ && current.isValid() && Chosen) {
        Chosen(current.row());
    }
}
