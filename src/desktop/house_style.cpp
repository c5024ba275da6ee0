#include "desktop/house_style.h"

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, returned);
}
