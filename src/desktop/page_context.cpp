#include "desktop/page_context.h"

#include <cmath>

QRect PageContext::OnScreen(double left, double top, double width, double height) const {
    const int x = static_cast<int>(std::floor(left * Scale));
    const int y = static_cast<int>(std::floor(top * Scale));
    return {x, y, static_cast<int>(std::ceil((left + width) * Scale)) - x,
            static_cast<int>(std::ceil((top + height) * Scale)) - y};
}
