#pragma once

#include "program/controls.h"

#include <QLineEdit>
#include <QValidator>

#include <initializer_list>

class QDialog;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// What the small windows are put together from.
namespace dialog {

/// A label with the record's words, wrapped where the window is too narrow for them.
[[nodiscard]] QLabel* Words(QDialog* dialog, const char* name, const std::string& caption);
/// A button that Return presses only when it is the window's default.
[[nodiscard]] QPushButton* Button(QDialog* dialog, const char* name, const CommandButton& record);

/// The column that a small window's parts stand in.
[[nodiscard]] QVBoxLayout* Column(QDialog* dialog);
/// The buttons at its foot, at the right; the first is what Return presses.
void Foot(QVBoxLayout* column, std::initializer_list<QPushButton*> buttons);

/// Lets only those characters into a line edit that a filter of the model takes; it gives 0 for the others.
/// What came by paste or drop keeps the characters that could have been typed. A character that was left out
/// is told.
class ModelValidator : public QValidator {
    Q_OBJECT
public:
    ModelValidator(QLineEdit* edit, int (*filter)(int));
    State validate(QString& input, int& position) const override;

private:
    QLineEdit* edit_;
    int (*filter_)(int);
};

/// A line edit with such a filter.
[[nodiscard]] QLineEdit* FilteredEdit(QDialog* parent, const char* name, const QString& spoken,
                                      int (*filter)(int));

} // namespace dialog
