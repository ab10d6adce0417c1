#pragma once

#include <QFont>
#include <QString>

#include <string>
#include <string_view>

// Texts and the font of what this desktop shows.
namespace platform {

QString TextFromCodePage(std::string_view bytes);
// One "?" for each character that code page 950 cannot spell.
std::string CodePageFromText(const QString& text);
// For captions in which the toolkit would take "&" for the mark of a shortcut.
QString WithoutShortcut(QString caption);

// The font of dialogs, buttons and boxes: a cell 16 pixels high at most, 7 wide for a half-width character.
QFont DialogFont();

} // namespace platform
