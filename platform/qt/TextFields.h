#pragma once

#include <QLineEdit>

#include <string>

// Text fields that hold what code page 950 can spell.
namespace platform {

// After the user edited the field: what cannot be spelled becomes "?" in sight and what a line cannot hold (line ends
// and other controls, from the clipboard) goes, with the cursor staying at its character. Returns the text's bytes.
std::string SpellTyped(QLineEdit& field);

// Lets digits in only, from the keyboard, the clipboard and input methods.
void RefuseAllButDigits(QLineEdit& field);

} // namespace platform
