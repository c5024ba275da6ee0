#include "desktop/free_place.h"

#include "desktop/label_view.h"
#include "desktop/text_area_view.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <array>
#include <vector>

namespace {

QRect OnScreen(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

std::vector<QRect> Covered(const QWidget& desk) {
    std::vector<QRect> places;
    for (const TextAreaView* field : desk.findChildren<TextAreaView*>()) {
        if (field->isVisible()) {
            places.push_back(OnScreen(*field));
        }
    }
    for (const LabelView* label : desk.findChildren<LabelView*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            places.push_back(OnScreen(*label));
        }
    }
    return places;
}

} // namespace

QRect FreePlace(const QWidget& desk) {
    constexpr std::array kSizes{QSize(280, 420), QSize(220, 420), QSize(280, 320), QSize(280, 270),
                                QSize(220, 270)};
    constexpr int kMargin = 6;
    const QRect screen = desk.screen()->availableGeometry();
    const QRect seen = OnScreen(desk) & screen;
    const QRect room = (seen.isEmpty() ? screen : seen).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const std::vector<QRect> covered = Covered(desk);
    const auto at = [&](QSize size, bool right) {
        const QSize fitting = size.boundedTo(room.size());
        return QRect(QPoint(right ? room.right() + 1 - fitting.width() : room.left(), room.top()), fitting);
    };
    for (const QSize& size : kSizes) {
        for (const bool right : {true, false}) {
            const QRect place = at(size, right);
            if (std::none_of(covered.begin(), covered.end(),
                             [&](const QRect& each) { return each.intersects(place); })) {
                return place;
            }
        }
    }
    return at(kSizes[0], true);
}
