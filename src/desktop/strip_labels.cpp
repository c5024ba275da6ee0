#include "desktop/strip_labels.h"

#include "base/colors.h"
#include "desktop/convert.h"
#include "program/controls.h"

#include <QLabel>
#include <QPalette>
#include <QString>
#include <QVariant>

namespace {

void FollowColour(QLabel& label, const StripLabel& record) {
    const QVariant before = label.property("backColor");
    if (before.isValid() && before.toUInt() == record.BackColor) {
        return;
    }
    label.setProperty("backColor", record.BackColor);
    const bool standard = record.BackColor == colors::kButtonFace;
    label.setAutoFillBackground(!standard);
    QPalette palette;
    if (!standard) {
        palette.setColor(QPalette::Window, convert::ToQColor(record.BackColor));
        palette.setColor(QPalette::WindowText, Qt::white);
    }
    label.setPalette(palette);
}

} // namespace

void StripLabels::Add(QLabel& widget, const StripLabel& record) {
    labels_.push_back({&widget, &record});
}

void StripLabels::Follow() const {
    for (const auto& [widget, record] : labels_) {
        const QString caption = convert::ToQString(record->Caption);
        if (widget->text() != caption) {
            widget->setText(caption);
        }
        const QString tip = convert::ToQString(record->ToolTipText);
        if (widget->toolTip() != tip) {
            widget->setToolTip(tip);
        }
        if (widget->isHidden() == record->Visible) {
            widget->setVisible(record->Visible);
        }
        FollowColour(*widget, *record);
    }
}
