#pragma once

#include "desktop/window_views.h"
#include "spelling/frm_spelling.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTextEdit;

class FrmSpellingView : public WindowView {
    Q_OBJECT
public:
    FrmSpellingView(Program& program, frmSpelling& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// The area that is being checked, as it stands on the page behind; empty when it cannot be seen.
    [[nodiscard]] QRect AreaOnScreen() const;
    /// Moves off that area as far as the screen has room, and scrolls the page behind where it has none.
    void StepAside();
    void BuildTexts();
    void BuildButtons();
    void Connect();
    void FollowText();

    frmSpelling& spelling_;
    QLabel* area_ = nullptr;
    QTextEdit* text_ = nullptr;
    QLabel* word_ = nullptr;
    QLineEdit* changeTo_ = nullptr;
    QListWidget* suggestions_ = nullptr;
    QComboBox* language_ = nullptr;
    QLabel* tooLong_ = nullptr;
    QPushButton* undo_ = nullptr;
    std::optional<std::size_t> edgedAt_; ///< the area for which the page was scrolled to make room
    std::vector<std::pair<QPushButton*, void (frmSpelling::*)(Program&)>> buttons_;
};
