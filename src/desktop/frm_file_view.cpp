#include "desktop/frm_file_view.h"

#include "base/guard.h"
#include "desktop/convert.h"
#include "desktop/elided_label.h"
#include "program/program.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace {

/// The keyboard's coming chooses nothing; the first arrow key does.
class ChoiceList : public QListWidget {
public:
    using QListWidget::QListWidget;

protected:
    void focusInEvent(QFocusEvent* event) override {
        // The list's own handler would choose a row.
        QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
        viewport()->update();
    }
};

bool Shows(const QListWidget& list, const ListBox& record) {
    bool same = static_cast<std::size_t>(list.count()) == record.Items.size();
    for (int row = 0; same && row < list.count(); ++row) {
        same = list.item(row)->text() == convert::ToQString(record.Items[static_cast<std::size_t>(row)]);
    }
    return same;
}

QString At(const std::vector<std::string>& words, std::size_t row) {
    return row < words.size() ? convert::ToQString(words[row]) : QString();
}

bool Shows(const QTreeWidget& table, const frmFile& file) {
    bool same = static_cast<std::size_t>(table.topLevelItemCount()) == file.FileList1.Items.size();
    for (int row = 0; same && row < table.topLevelItemCount(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        const QTreeWidgetItem& item = *table.topLevelItem(row);
        same = item.text(0) == At(file.FileList1.Items, at) && item.text(1) == At(file.FileDates, at) &&
               item.text(2) == At(file.FileSizes, at);
    }
    return same;
}

QListWidget* List(QWidget* parent, const char* name, const QString& spoken) {
    auto* list = new ChoiceList(parent);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(spoken);
    list->setUniformItemSizes(true);
    return list;
}

} // namespace

FileTable::FileTable(QWidget* parent, const char* name, const QString& spoken) : QTreeWidget(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(spoken);
    setHeaderLabels({tr("Name"), tr("Changed"), tr("Size")});
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    headerItem()->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
}

void FileTable::Choose(int row) {
    QTreeWidgetItem* item = topLevelItem(row);
    setCurrentItem(item);
    if (item == nullptr) {
        clearSelection();
    }
}

QTreeWidgetItem* FileTable::Beginning(const QString& letters, int from) const {
    const int count = topLevelItemCount();
    for (int step = 0; step < count; ++step) {
        QTreeWidgetItem* item = topLevelItem((from + step) % count);
        if (item->text(0).startsWith(letters, Qt::CaseInsensitive)) {
            return item;
        }
    }
    return nullptr;
}

void FileTable::keyboardSearch(const QString& typed) {
    // The view's own search takes a letter that is typed twice for the next name with it: AA led to AB.
    const bool goesOn =
        sinceLetter_.isValid() && sinceLetter_.elapsed() < QApplication::keyboardInputInterval();
    sinceLetter_.start();
    letters_ = goesOn ? letters_ + typed : typed;
    const int current = CurrentRow();
    QTreeWidgetItem* found = Beginning(letters_, goesOn ? qMax(current, 0) : current + 1);
    if (found == nullptr && letters_.count(letters_.front(), Qt::CaseInsensitive) == letters_.size()) {
        found = Beginning(letters_.left(1), current + 1);
    }
    if (found != nullptr) {
        setCurrentItem(found);
    }
}

void FileTable::focusInEvent(QFocusEvent* event) {
    // The table's own handler would choose a row.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

FrmFileView::FrmFileView(Program& program, frmFile& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), file_(window) {
    Build();
    Connect();
    FrmFileView::Follow();
    files_->setFocus();
}

void FrmFileView::Build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 12, 14, 12);
    column->setSpacing(8);
    auto* help = new QLabel(convert::ToQString(file_.lblHelp.Caption), this);
    help->setObjectName(QStringLiteral("lblHelp"));
    help->setWordWrap(true);
    column->addWidget(help);
    folder_ = new ElidedLabel(this);
    folder_->setObjectName(QStringLiteral("lblFolder"));
    folder_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont strong = folder_->font();
    strong.setBold(true);
    folder_->setFont(strong);
    column->addWidget(folder_);

    auto* lists = new QHBoxLayout;
    lists->setSpacing(10);
    auto* left = new QVBoxLayout;
    drive_ = new QComboBox(this);
    drive_->setObjectName(QStringLiteral("Drive1"));
    drive_->setAccessibleName(tr("Drive"));
    left->addWidget(drive_);
    folders_ = List(this, "Dir1", tr("Folders"));
    left->addWidget(folders_, 1);
    lists->addLayout(left, 2);
    auto* right = new QVBoxLayout;
    auto* filter = new QHBoxLayout;
    auto* words = new QLabel(u'&' + convert::ToQString(file_.lblFilter.Caption), this);
    words->setObjectName(QStringLiteral("lblFilter"));
    filter->addWidget(words);
    filter_ = new QLineEdit(this);
    filter_->setObjectName(QStringLiteral("txtFilter"));
    filter_->setAccessibleName(convert::ToQString(file_.lblFilter.Caption));
    filter_->setClearButtonEnabled(true);
    words->setBuddy(filter_);
    filter->addWidget(filter_, 1);
    right->addLayout(filter);
    files_ = new FileTable(this, "FileList1", tr("Files"));
    right->addWidget(files_, 1);
    lists->addLayout(right, 5);
    column->addLayout(lists, 1);

    panel_ = new QWidget(this);
    panel_->setObjectName(QStringLiteral("picFileOpen"));
    auto* confirm = new QHBoxLayout(panel_);
    confirm->setContentsMargins(0, 0, 0, 0);
    point_ = new QLabel(panel_);
    point_->setObjectName(QStringLiteral("lblPointOpen"));
    confirm->addWidget(point_);
    name_ = new ElidedLabel(panel_);
    name_->setObjectName(QStringLiteral("lblOpenFileName"));
    name_->setFont(strong);
    name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    confirm->addWidget(name_, 1);
    back_ = new QPushButton(convert::ToQString(file_.cmdOpenBack.Caption), panel_);
    back_->setObjectName(QStringLiteral("cmdOpenBack"));
    confirm->addWidget(back_);
    column->addWidget(panel_);

    auto* row = new QHBoxLayout;
    ignore_ = new QCheckBox(convert::ToQString(file_.chkProp.Caption), this);
    ignore_->setObjectName(QStringLiteral("chkProp"));
    row->addWidget(ignore_);
    row->addStretch(1);
    ok_ = new QPushButton(convert::ToQString(file_.cmdOpenOK.Caption), this);
    ok_->setObjectName(QStringLiteral("cmdOpenOK"));
    ok_->setDefault(true);
    row->addWidget(ok_);
    cancel_ = new QPushButton(convert::ToQString(file_.cmdOpenCancel.Caption), this);
    cancel_->setObjectName(QStringLiteral("cmdOpenCancel"));
    row->addWidget(cancel_);
    for (QPushButton* button : {back_, cancel_}) {
        button->setAutoDefault(false);
    }
    column->addLayout(row);
    resize(740, 500);
    // Keyboard first where the hand goes first.
    setTabOrder(files_, ok_);
    setTabOrder(ok_, cancel_);
    setTabOrder(cancel_, back_);
    setTabOrder(back_, ignore_);
    setTabOrder(ignore_, drive_);
    setTabOrder(drive_, folders_);
    setTabOrder(folders_, filter_);
    setTabOrder(filter_, files_);
}

void FrmFileView::Connect() {
    connect(drive_, &QComboBox::activated, this,
            [this](int index) { Do([&] { file_.Drive1_Change(program_, index); }); });
    connect(folders_, &QListWidget::itemActivated, this,
            [this] { Do([&] { file_.Dir1_Change(program_, folders_->currentRow()); }); });
    ConnectFiles();
    connect(ok_, &QPushButton::clicked, this, [this] { Do([&] { file_.cmdOpenOK_Click(program_); }); });
    connect(back_, &QPushButton::clicked, this, [this] { Do([&] { file_.cmdOpenBack_Click(program_); }); });
    connect(cancel_, &QPushButton::clicked, this,
            [this] { Do([&] { file_.cmdOpenCancel_Click(program_); }); });
    connect(ignore_, &QCheckBox::clicked, this, [this] { Do([&] { file_.chkProp_Click(program_); }); });
}

void FrmFileView::ConnectFiles() {
    connect(files_, &QTreeWidget::currentItemChanged, this, [this] {
        // Rows set from the record are the record's already.
        const int row = files_->CurrentRow();
        if (!following_ && row >= 0 && row != file_.FileList1.ListIndex) {
            Do([&] { file_.FileList1_Click(program_, row); });
        }
    });
    connect(files_, &QTreeWidget::itemClicked, this, [this] {
        if (!file_.picFileOpen) {
            Do([&] { file_.FileList1_Click(program_, files_->CurrentRow()); });
        }
    });
    connect(files_, &QTreeWidget::itemActivated, this, [this] {
        Do([&] {
            file_.FileList1_Click(program_, files_->CurrentRow());
            file_.cmdOpenOK_Click(program_);
        });
    });
    connect(files_->header(), &QHeaderView::sectionClicked, this, [this](int column) {
        Do([&] { file_.FileList1_ColumnClick(program_, static_cast<FileColumn>(column)); });
    });
    connect(filter_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Do([&] { file_.txtFilter_Change(program_, convert::FromPerson(text).Text); });
    });
}

void FrmFileView::FollowFolders() {
    if (!Shows(*folders_, file_.Dir1)) {
        folders_->clear();
        for (const std::string& item : file_.Dir1.Items) {
            folders_->addItem(convert::ToQString(item));
        }
    }
    if (folders_->currentRow() != file_.Dir1.ListIndex) {
        folders_->setCurrentRow(file_.Dir1.ListIndex);
    }
}

void FrmFileView::FollowFiles() {
    const ScopedFlag following(following_);
    if (!Shows(*files_, file_)) {
        files_->clear();
        for (std::size_t row = 0; row < file_.FileList1.Items.size(); ++row) {
            auto* item = new QTreeWidgetItem(
                files_, {At(file_.FileList1.Items, row), At(file_.FileDates, row), At(file_.FileSizes, row)});
            item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
            item->setToolTip(0, At(file_.FileList1.Items, row));
        }
    }
    files_->header()->setSortIndicator(static_cast<int>(file_.SortedBy),
                                       file_.Backwards ? Qt::DescendingOrder : Qt::AscendingOrder);
    if (files_->CurrentRow() != file_.FileList1.ListIndex) {
        files_->Choose(file_.FileList1.ListIndex);
    }
    const QString filter = convert::ToQString(file_.txtFilter.Text);
    if (filter_->text() != filter) {
        filter_->setText(filter);
    }
}

void FrmFileView::Follow() {
    WindowView::Follow();
    if (drive_->count() != static_cast<int>(file_.Drive1.Items.size())) {
        drive_->clear();
        for (const std::string& item : file_.Drive1.Items) {
            drive_->addItem(convert::ToQString(item));
        }
    }
    if (drive_->currentIndex() != file_.Drive1.ListIndex) {
        drive_->setCurrentIndex(file_.Drive1.ListIndex);
    }
    const bool moved = folder_->text() != convert::ToQString(file_.Folder);
    if (moved) {
        folder_->setText(convert::ToQString(file_.Folder));
    }
    // While nothing has changed the folder under the person's keys stays marked.
    if (moved || !Shows(*folders_, file_.Dir1)) {
        FollowFolders();
    }
    FollowFiles();
    point_->setText(convert::ToQString(file_.lblPointOpen.Caption));
    name_->setText(convert::ToQString(file_.lblOpenFileName.Caption));
    panel_->setEnabled(file_.picFileOpen);
    point_->setVisible(file_.picFileOpen);
    name_->setVisible(file_.picFileOpen);
    back_->setVisible(file_.picFileOpen);
    ok_->setEnabled(file_.picFileOpen);
    if (ignore_->isChecked() != file_.chkProp.Value) {
        ignore_->setChecked(file_.chkProp.Value);
    }
    if (ignore_->isHidden() == file_.chkProp.Visible) {
        ignore_->setVisible(file_.chkProp.Visible);
    }
}
