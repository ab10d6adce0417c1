#pragma once

// The commands that put new objects on the screen, and New.

// Each asks for a picture file. One that cannot be loaded is added all the same and draws nothing.
void LoadPicture();
void LoadButton();
void LoadAnimation();

// Each asks for the text in a dialog.
void InsertWord();
void InsertCheckBox();

void InsertSelectbox();

// An empty screen; nothing is asked and nothing is saved.
void StartNewScreen();
