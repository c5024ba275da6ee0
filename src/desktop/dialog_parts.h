#pragma once

#include "program/controls.h"

#include <QLineEdit>

class QDialog;
class QLabel;
class QPushButton;

/// What the small windows are put together from.
namespace dialog {

/// A label with the record's words, wrapped where the window is too narrow for them.
[[nodiscard]] QLabel* Words(QDialog* dialog, const char* name, const std::string& caption);
/// A button that Return presses only when it is the window's default.
[[nodiscard]] QPushButton* Button(QDialog* dialog, const char* name, const CommandButton& record);

/// A line edit whose characters pass a filter of the model.
class FilteredEdit : public QLineEdit {
    Q_OBJECT
public:
    /// The filter gives 0 for a character that is not to be typed.
    FilteredEdit(QDialog* parent, const char* name, const QString& spoken, int (*filter)(int));

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What came by paste or drop keeps only the characters that could have been typed.
    void Refilter(const QString& now);
    int (*filter_)(int);
};

} // namespace dialog
