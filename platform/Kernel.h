#pragma once

#include "platform/Types.h"

// Files for reading, the clock and the developer log.

constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD FILE_SHARE_READ = 1;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD FILE_BEGIN = 0;
constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;
constexpr DWORD INVALID_SET_FILE_POINTER = 0xFFFFFFFF;

// What CreateFileA answers on failure: the value -1, never a file.
extern const HANDLE INVALID_HANDLE_VALUE;

struct SECURITY_ATTRIBUTES;

// Opens an existing file for reading; the only use the editor makes of it. `fileName` is a backslash path in code page
// 950. Only ordinary files are opened. Returns INVALID_HANDLE_VALUE on failure.
HANDLE CreateFileA(const char* fileName, DWORD access, DWORD shareMode, const SECURITY_ATTRIBUTES* security,
    DWORD creation, DWORD attributes, HANDLE templateFile);
// The length in bytes, INVALID_FILE_SIZE when it cannot be told or does not fit in 32 bits.
DWORD GetFileSize(HANDLE file, DWORD* sizeHigh);
// Absolute position only (FILE_BEGIN). Returns the new position or INVALID_SET_FILE_POINTER.
DWORD SetFilePointer(HANDLE file, LONG distance, LONG* distanceHigh, DWORD method);
// Reads up to `count` bytes; fewer at the end of the file, told in `read`. FALSE only on an error.
BOOL ReadFile(HANDLE file, void* buffer, DWORD count, DWORD* read, void* overlapped);
BOOL CloseHandle(HANDLE file);

// The clock and the developer log (process/ClockAndLog.cpp): the installed desktop's, without one the machine's own and
// stderr.

// Milliseconds since some moment in the past, wrapping around at 2^32.
DWORD GetTickCount();
void Sleep(DWORD milliseconds);

// One message for the developer log, in code page 950.
void OutputDebugStringA(const char* text);
