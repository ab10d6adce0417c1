#include "gfx/FileR.h"

#include "platform/Kernel.h"

CFileR_::CFileR_()
    : handle(INVALID_HANDLE_VALUE)
{
}

bool CFileR_::IsOpen_() const
{
    return handle != INVALID_HANDLE_VALUE;
}

bool CFileR_::Open_(const char* fileName)
{
    if (IsOpen_() || !fileName || *fileName == '\0')
        return false;
    handle = CreateFileA(fileName, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (!IsOpen_())
        return false;
    size = GetFileSize(handle, nullptr);
    if (size != INVALID_FILE_SIZE && SeekSet_(0))
        return true;
    Close_();
    return false;
}

bool CFileR_::SeekSet_(uint32_t offset)
{
    // The high half makes the low one an unsigned number.
    LONG high = 0;
    return IsOpen_()
        && SetFilePointer(handle, static_cast<LONG>(offset), &high, FILE_BEGIN) != INVALID_SET_FILE_POINTER;
}

bool CFileR_::Read_(void* buffer, int32_t count)
{
    if (!IsOpen_() || count < 0)
        return false;
    if (count == 0)
        return true;
    DWORD done = 0;
    const auto wanted = static_cast<DWORD>(count);
    return ReadFile(handle, buffer, wanted, &done, nullptr) != FALSE && done == wanted;
}

void CFileR_::Close_()
{
    if (!IsOpen_())
        return;
    CloseHandle(handle);
    handle = INVALID_HANDLE_VALUE;
    size = 0;
}
