#include "desktop/field_names.h"

#include <QObject>

namespace fieldnames {

QString OfControl(const FieldRef& field) {
    const char* array = field.Kind == FieldKind::txtQty   ? "txtQty"
                        : field.Kind == FieldKind::txtAmt ? "txtAmt"
                                                          : "txt";
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(field.Index);
}

QString Spoken(const FieldRef& field) {
    const int page = qMin(IndexOf(field.Page), kEditedPageCount - 1) + 1;
    const QString what = field.Kind == FieldKind::txtQty   ? QObject::tr("Quantity")
                         : field.Kind == FieldKind::txtAmt ? QObject::tr("Unit Price")
                                                           : QObject::tr("Text Area");
    return QObject::tr("Page %1, %2 %3").arg(page).arg(what).arg(field.Index + 1);
}

} // namespace fieldnames
