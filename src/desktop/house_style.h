#pragma once

#include <QProxyStyle>

/// How all windows of the program look: the toolkit's own style, with words alone on every button, also in
/// the boxes and dialogs that the toolkit makes.
class HouseStyle : public QProxyStyle {
public:
    HouseStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};
