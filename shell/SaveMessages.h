#pragma once

#include "platform/FileReplacement.h"

#include <string>

// The messages about a save that does not take place. Texts and paths are code page 950.

void SayTextCannotBeStored(const std::string& text);
// With the reason, which is not Done.
void SayFileCannotBeWritten(const std::string& path, platform::FileWriting reason);
