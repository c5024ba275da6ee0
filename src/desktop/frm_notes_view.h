#pragma once

#include "desktop/window_views.h"

#include <QPlainTextEdit>

class QLabel;
class WindowMenuBar;
class frmNotes;

/// A plain text that takes only what can be kept.
class NoteEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit NoteEdit(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
};

/// The footnotes of the proposal on screen.
class FrmNotesView : public WindowView {
    Q_OBJECT
public:
    FrmNotesView(Program& program, frmNotes& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmNotes& notes_;
    WindowMenuBar* menu_ = nullptr;
    QLabel* name_ = nullptr;
    NoteEdit* text_ = nullptr;
    int revision_ = -1; ///< of the text that was last set from the record
    bool following_ = false;
};
