#pragma once

#include <QTextEdit>

#include <functional>

class ContractLayout;
class QTextDocument;
class frmEditor;

/// The contract's text on screen: the toolkit's editor over the model's lines. The model has the history.
class ContractEdit : public QTextEdit {
    Q_OBJECT
public:
    ContractEdit(QWidget* parent, frmEditor& editor);

    /// Sets what differs from the record.
    void Follow();

    /// Runs an event of the person's hand.
    std::function<void(const std::function<void()>&)> Do;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void TakeEdit();
    void TakeCaret();
    [[nodiscard]] double PixelsPerTwip() const;
    [[nodiscard]] int ModelPlace(int place) const;
    [[nodiscard]] int DocumentPlace(int place) const;
    frmEditor& editor_;
    ContractLayout* layout_ = nullptr;
    int revision_ = -1;
    bool following_ = false;
};
