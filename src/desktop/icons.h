#pragma once

#include <QIcon>
#include <QPixmap>

#include <string_view>

/// The program's own icons: one family of line drawings in src/desktop/icons, painted afresh for every size
/// and pixel ratio, so that they are sharp at any scale.
namespace icons {

/// By the control's name ("imgOpen"); an unknown name gives an empty icon. Colours follow the palette.
[[nodiscard]] QIcon ToolIcon(std::string_view controlName, const QColor& ink, const QColor& faded);

/// A page button: a small sheet with the page's number; the client's copy shows a second sheet behind.
enum class PageLook { Normal, Selected };
[[nodiscard]] QPixmap PageButton(int pageIndex, PageLook look, const QColor& ink, const QColor& highlight,
                                 qreal devicePixelRatio);

/// The program's icon for window and task bar.
[[nodiscard]] QIcon Program();

} // namespace icons
