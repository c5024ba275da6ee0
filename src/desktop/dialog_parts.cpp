#include "desktop/dialog_parts.h"

#include "desktop/convert.h"
#include "desktop/person_text.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace dialog {

QLabel* Words(QDialog* dialog, const char* name, const std::string& caption) {
    auto* label = new QLabel(convert::ToQString(caption), dialog);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* Button(QDialog* dialog, const char* name, const CommandButton& record) {
    auto* button = new QPushButton(convert::ToQString(record.Caption), dialog);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

QVBoxLayout* Column(QDialog* dialog) {
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins(18, 16, 18, 14);
    column->setSpacing(10);
    return column;
}

void Foot(QVBoxLayout* column, std::initializer_list<QPushButton*> buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch(1);
    for (QPushButton* button : buttons) {
        row->addWidget(button);
    }
    (*buttons.begin())->setDefault(true);
    column->addSpacing(4);
    column->addLayout(row);
}

ModelValidator::ModelValidator(QLineEdit* edit, int (*filter)(int))
    : QValidator(edit), edit_(edit), filter_(filter) {}

QValidator::State ModelValidator::validate(QString& input, int& position) const {
    QString kept;
    QString left;
    int cursor = position;
    for (qsizetype at = 0; at < input.size(); ++at) {
        const QChar character = input.at(at);
        const auto byte = convert::ToByte(character);
        if (byte && filter_(static_cast<unsigned char>(*byte)) != 0) {
            kept += character;
            continue;
        }
        left += character;
        if (at < position) {
            --cursor;
        }
    }
    if (!left.isEmpty()) {
        person_text::TellNoPlace(left, *edit_);
        input = kept;
        position = cursor;
    }
    return Acceptable;
}

QLineEdit* FilteredEdit(QDialog* parent, const char* name, const QString& spoken, int (*filter)(int)) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QLatin1String(name));
    edit->setAccessibleName(spoken);
    edit->setValidator(new ModelValidator(edit, filter));
    return edit;
}

} // namespace dialog
