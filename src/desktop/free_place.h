#pragma once

#include <QRect>

class QWidget;

/// A place on the screen for a window that floats over a page: at the right or the left side of the desk on
/// which the page lies, as large as may be, covering none of the fields and captions that show. In the right
/// upper corner where there is no such place.
[[nodiscard]] QRect FreePlace(const QWidget& desk);
