#pragma once

#include "platform/Types.h"

constexpr DWORD OFN_PATHMUSTEXIST = 0x00000800;
constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;

struct OPENFILENAMEA {
    DWORD lStructSize = 76; // the form without the later fields
    HWND hwndOwner = nullptr;
    HINSTANCE hInstance = nullptr;
    const char* lpstrFilter = nullptr; // label NUL pattern NUL ... NUL
    char* lpstrCustomFilter = nullptr;
    DWORD nMaxCustFilter = 0;
    DWORD nFilterIndex = 0; // from 1
    char* lpstrFile = nullptr; // receives the chosen path
    DWORD nMaxFile = 0; // bytes of lpstrFile
    char* lpstrFileTitle = nullptr;
    DWORD nMaxFileTitle = 0;
    const char* lpstrInitialDir = nullptr;
    const char* lpstrTitle = nullptr;
    DWORD Flags = 0;
    WORD nFileOffset = 0;
    WORD nFileExtension = 0;
    const char* lpstrDefExt = nullptr;
};

// Runs the open-file dialog. TRUE when the user confirmed a name: `lpstrFile` holds its absolute backslash path in code
// page 950, and the process's current folder is now the folder of that file. A name that the code page cannot spell,
// that does not fit the buffer, or whose folder (or file, where it must exist) is missing, is refused with a message
// and counts as cancelled.
BOOL GetOpenFileNameA(OPENFILENAMEA* request);
