#pragma once

#include "platform/Desktop.h"
#include "platform/Menu.h"

#include <QWidget>

// The modal questions: boxes, menus and the file chooser. Each runs in a message loop of the program's own, so that
// messages for its windows are dispatched meanwhile. The owner may be null.
namespace platform {

int AskMessageBox(QWidget* owner, const QString& text, const QString& caption);
uint32_t AskMenu(QWidget* owner, const Menu& menu, QPoint corner);
std::optional<std::string> AskFile(QWidget* owner, const FileRequest& request);

} // namespace platform
