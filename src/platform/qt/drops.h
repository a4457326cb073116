// Files that are dragged here from other programs.
#pragma once

#include <QWidget>

#include "platform/forms/window.h"

namespace qt {

// Lets files be dropped on the window that this widget shows. The program that they come from has its answer before the
// window's own event runs; while the window can not be reached, or a box stands open, nothing is taken.
void take_drops(QWidget& widget, forms::Window& window);

}  // namespace qt
