#include "desktop/field_names.h"

namespace fieldnames {

QString OfControl(const FieldRef& field) {
    const char* array = field.Kind == FieldKind::txtQty   ? "txtQty"
                        : field.Kind == FieldKind::txtAmt ? "txtAmt"
                                                          : "txt";
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(field.Index);
}

} // namespace fieldnames
