#pragma once

#include <string>

class ScreenDocument;

// The commands that load and save the screen script. Each asks for the file; a save is read back at once.
void LoadScript();
void SaveScriptAs();
// Saves under the current file name, or asks for one where there is none yet.
void QuickSave();

// Replaces the screen by what the file holds, kind by kind. A file that cannot be parsed ends the editor with exit
// status 16 once what was parsed is loaded. False when an object could not be built: the objects before it stay, and
// the file name is not taken over. `path` is a backslash path in code page 950, as for saving.
bool LoadScreenScript(const std::string& path);
// Leaves nothing on the screen that would be written with a minus sign, which no script can hold, or that is only there
// for a moment: running effects are finished, every object is fitted to the canvas, and an alpha too large becomes its
// low byte, which is what drawing goes by.
void PrepareForSaving(ScreenDocument& document);
// Writes the screen and takes the name over. When the screen cannot be stored or written it says so in a message and
// answers false; file and name are then as they were, and the screen as it was with its previews finished.
bool SaveScreenScript(const std::string& path);
