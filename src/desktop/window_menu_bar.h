#pragma once

#include "program/window_parts.h"

#include <QMenuBar>

#include <functional>
#include <map>
#include <string_view>

/// The menu bar of a small window, made from its entries.
class WindowMenuBar : public QMenuBar {
    Q_OBJECT
public:
    WindowMenuBar(QWidget* window, const MenuWindow& model,
                  const std::function<void(std::string_view)>& choose);
    void Follow(const MenuWindow& model);

private:
    std::map<std::string_view, QAction*> actions_;
};
