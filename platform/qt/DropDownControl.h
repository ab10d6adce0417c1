#pragma once

#include "platform/qt/DesktopState.h"

#include <QComboBox>

// Drop-downs: a text field with a list. Typing leaves the list without a selection, choosing fills the field.
namespace platform {

// The parent owns the widget.
QComboBox* MakeDropDown(Window& control, QWidget& parent, DesktopState& state);
// Shows the record's items, selection and text.
void MirrorDropDown(QComboBox& widget, const Window& control);

} // namespace platform
