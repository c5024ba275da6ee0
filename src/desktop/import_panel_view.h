#pragma once

#include "addresses/frm_address.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

/// The panel on which the kind of a copied list and its categories are chosen.
class ImportPanelView : public QWidget {
    Q_OBJECT
public:
    using Event = std::function<void(const std::function<void()>&)>;
    ImportPanelView(Program& program, frmAddress& window, QWidget* parent, Event event);
    void Follow();
    /// The keyboard comes to where the choice begins.
    void TakeFocus();
    [[nodiscard]] QPushButton* BeginButton() const { return ok_; }

private:
    [[nodiscard]] QWidget* Categories();
    [[nodiscard]] QWidget* ListTypes();
    [[nodiscard]] QWidget* Buttons();

    Program& program_;
    frmAddress& address_;
    Event event_;
    QLabel* main_ = nullptr;
    std::array<QPushButton*, kBatchCategoryCount> categories_{};
    std::array<QRadioButton*, AddressWindow::kListTypeCount> types_{};
    QPlainTextEdit* sample_ = nullptr;
    QPushButton* ok_ = nullptr;
};
