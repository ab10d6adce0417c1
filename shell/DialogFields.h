#pragma once

#include "platform/Types.h"

#include <cstddef>
#include <cstdint>
#include <string>

// Reading and writing a dialog's controls by id. Texts are code page 950.

// Text fields are read into 260 bytes: 259 of text.
constexpr size_t FieldBufferSize = 260;

std::string GetFieldText(HWND dialog, int id, size_t bufferSize = FieldBufferSize);
void SetFieldText(HWND dialog, int id, const std::string& text);
void SetFieldNumber(HWND dialog, int id, int64_t number);
// The decimal number that the text begins with, 0 when it begins with none; held to the range of 32 bits.
int32_t DecimalValue(const std::string& text);

void AddItem(HWND dialog, int id, const std::string& text);
void DeleteItem(HWND dialog, int id, int index);
// An index outside the list leaves it without a selection.
void SelectItem(HWND dialog, int id, int index);
int SelectedItem(HWND dialog, int id); // -1: none

void SetTick(HWND dialog, int id, bool ticked);
bool IsTicked(HWND dialog, int id);

// The choices of how many sections a strip is cut into, from `first` to `last`.
void AddSectionItems(HWND dialog, int id, int first, int last);
