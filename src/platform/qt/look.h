// How texts, colours and cursors of the model look on the display.
#pragma once

#include <QCursor>
#include <QFont>
#include <QImage>
#include <QPalette>
#include <QString>
#include <string>

#include "platform/forms/controls.h"
#include "platform/forms/sheets.h"

namespace qt {

// Line ends of the model (carriage returns) become line feeds.
QString to_qt(const std::string& text);
std::string from_qt(const QString& text);
// With no character that marks the next one as a key.
QString caption(const std::string& text);

// A font named in Japanese or English stands for an installed one that shows Japanese. Sizes are in points of 96 to the
// inch, as twips are, whatever the display says of itself.
QFont font_of(const forms::Font& font);
QColor colour_of(uint32_t colour);  // system colours too
QPalette light_palette();
QColor border_colour();  // of what has a border

const forms::Sheet* find_sheet(const char* name);  // null if there is none of that name
QImage picture_of(const forms::Sheet& sheet);      // without a copy
// The cursor of a MousePointer value; scale is that of the display.
QCursor cursor_of(int mouse_pointer, const char* mouse_icon, qreal scale);

}  // namespace qt
