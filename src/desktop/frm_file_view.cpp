#include "desktop/frm_file_view.h"

#include "desktop/convert.h"
#include "program/program.h"

#include <QHBoxLayout>
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

QListWidget* List(QWidget* parent, const char* name, const QString& spoken) {
    auto* list = new ChoiceList(parent);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(spoken);
    list->setUniformItemSizes(true);
    return list;
}

} // namespace

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
    folder_ = new QLabel(this);
    folder_->setObjectName(QStringLiteral("lblFolder"));
    folder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
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
    files_ = List(this, "FileList1", tr("Files"));
    lists->addWidget(files_, 3);
    column->addLayout(lists, 1);

    panel_ = new QWidget(this);
    panel_->setObjectName(QStringLiteral("picFileOpen"));
    auto* confirm = new QHBoxLayout(panel_);
    confirm->setContentsMargins(0, 0, 0, 0);
    point_ = new QLabel(panel_);
    point_->setObjectName(QStringLiteral("lblPointOpen"));
    confirm->addWidget(point_);
    name_ = new QLabel(panel_);
    name_->setObjectName(QStringLiteral("lblOpenFileName"));
    name_->setFont(strong);
    name_->setTextFormat(Qt::PlainText);
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
    resize(660, 480);
    // Keyboard first where the hand goes first.
    setTabOrder(files_, ok_);
    setTabOrder(ok_, cancel_);
    setTabOrder(cancel_, back_);
    setTabOrder(back_, ignore_);
    setTabOrder(ignore_, drive_);
    setTabOrder(drive_, folders_);
    setTabOrder(folders_, files_);
}

void FrmFileView::Connect() {
    connect(drive_, &QComboBox::activated, this,
            [this](int index) { Do([&] { file_.Drive1_Change(program_, index); }); });
    connect(folders_, &QListWidget::itemActivated, this,
            [this] { Do([&] { file_.Dir1_Change(program_, folders_->currentRow()); }); });
    connect(files_, &QListWidget::currentRowChanged, this, [this](int row) {
        // Rows set from the record are the record's already.
        if (row >= 0 && row != file_.FileList1.ListIndex) {
            Do([&] { file_.FileList1_Click(program_, row); });
        }
    });
    connect(files_, &QListWidget::itemClicked, this, [this] {
        if (!file_.picFileOpen) {
            Do([&] { file_.FileList1_Click(program_, files_->currentRow()); });
        }
    });
    connect(files_, &QListWidget::itemActivated, this, [this] {
        Do([&] {
            file_.FileList1_Click(program_, files_->currentRow());
            file_.cmdOpenOK_Click(program_);
        });
    });
    connect(ok_, &QPushButton::clicked, this, [this] { Do([&] { file_.cmdOpenOK_Click(program_); }); });
    connect(back_, &QPushButton::clicked, this, [this] { Do([&] { file_.cmdOpenBack_Click(program_); }); });
    connect(cancel_, &QPushButton::clicked, this,
            [this] { Do([&] { file_.cmdOpenCancel_Click(program_); }); });
    connect(ignore_, &QCheckBox::clicked, this, [this] { Do([&] { file_.chkProp_Click(program_); }); });
}

void FrmFileView::FollowList(QListWidget& list, const ListBox& record) {
    if (!Shows(list, record)) {
        list.clear();
        for (const std::string& item : record.Items) {
            list.addItem(convert::ToQString(item));
        }
    }
    if (list.currentRow() != record.ListIndex) {
        list.setCurrentRow(record.ListIndex);
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
        FollowList(*folders_, file_.Dir1);
    }
    FollowList(*files_, file_.FileList1);
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
