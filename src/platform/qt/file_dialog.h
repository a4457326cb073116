// The dialogs that ask for a file: those of the user's desktop where it offers them, else Qt's.
#pragma once

#include <QStringList>
#include <string>

#include "platform/forms/dialogs.h"

namespace qt {

// False if the user cancels. Whether a file is to be overwritten is not asked here.
bool file_dialog(forms::FileDialog& dialog);

// The rows of a filter "text|pattern|text|pattern|" as Qt writes them, "text (pattern pattern)"; patterns then fit
// letters of either case, and "*.*" every name.
QStringList name_filters(const std::string& filter);

}  // namespace qt
