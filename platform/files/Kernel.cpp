#include "platform/Kernel.h"

#include "platform/FileReading.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

// An open file with the piece of it that was read last, so that many small reads on a way forwards cost few calls of
// the system.
struct File {
    static constexpr int64_t pieceBytes = 32768;

    int descriptor;
    int64_t size; // when it was opened: nobody may write to it meanwhile
    int64_t position = 0; // of the next read
    int64_t pieceStart = 0;
    int64_t pieceLength = 0;
    BYTE piece[pieceBytes];

    File(int openDescriptor, int64_t fileSize)
        : descriptor(openDescriptor)
        , size(fileSize)
    {
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { close(descriptor); }

    bool HoldsPosition() const { return position >= pieceStart && position < pieceStart + pieceLength; }
    bool FetchPiece();
};

// Fetches the piece that begins with the next byte, an empty one at the end of the file.
bool File::FetchPiece()
{
    ssize_t count = 0;
    do
        count = pread(descriptor, piece, sizeof piece, position);
    while (count < 0 && errno == EINTR);
    pieceStart = position;
    pieceLength = std::max<ssize_t>(count, 0);
    return count >= 0;
}

} // namespace platform

const HANDLE INVALID_HANDLE_VALUE = std::bit_cast<HANDLE>(intptr_t { -1 });

namespace {

bool IsOpen(HANDLE file)
{
    return file != nullptr && file != INVALID_HANDLE_VALUE;
}

} // namespace

HANDLE CreateFileA(const char* fileName, DWORD access, DWORD, const SECURITY_ATTRIBUTES*, DWORD creation, DWORD, HANDLE)
{
    if (!fileName || access != GENERIC_READ || creation != OPEN_EXISTING)
        return INVALID_HANDLE_VALUE;
    const int descriptor = platform::OpenForReading(fileName);
    if (descriptor < 0)
        return INVALID_HANDLE_VALUE;
    struct stat status { };
    std::unique_ptr<platform::File> file;
    if (fstat(descriptor, &status) == 0)
        file.reset(new (std::nothrow) platform::File(descriptor, status.st_size));
    if (!file) {
        close(descriptor);
        return INVALID_HANDLE_VALUE;
    }
    return file.release();
}

DWORD GetFileSize(HANDLE file, DWORD* sizeHigh)
{
    if (!IsOpen(file) || file->size >= INVALID_FILE_SIZE)
        return INVALID_FILE_SIZE;
    if (sizeHigh)
        *sizeHigh = 0;
    return static_cast<DWORD>(file->size);
}

DWORD SetFilePointer(HANDLE file, LONG distance, LONG* distanceHigh, DWORD method)
{
    if (!IsOpen(file) || method != FILE_BEGIN)
        return INVALID_SET_FILE_POINTER;
    // With a high half the low one has no sign.
    const int64_t position
        = distanceHigh ? int64_t { *distanceHigh } * (int64_t { 1 } << 32) + static_cast<uint32_t>(distance) : distance;
    if (position < 0)
        return INVALID_SET_FILE_POINTER;
    file->position = position;
    return static_cast<DWORD>(position);
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD count, DWORD* read, void*)
{
    if (read)
        *read = 0;
    if (!IsOpen(file) || (!buffer && count > 0))
        return FALSE;
    DWORD done = 0;
    while (done < count) {
        if (!file->HoldsPosition() && !file->FetchPiece())
            return FALSE;
        if (!file->HoldsPosition())
            break; // the end of the file
        const int64_t skipped = file->position - file->pieceStart;
        const int64_t part = std::min<int64_t>(count - done, file->pieceLength - skipped);
        std::memcpy(static_cast<BYTE*>(buffer) + done, file->piece + skipped, static_cast<size_t>(part));
        file->position += part;
        done += static_cast<DWORD>(part);
    }
    if (read)
        *read = done;
    return TRUE;
}

BOOL CloseHandle(HANDLE file)
{
    if (!IsOpen(file))
        return FALSE;
    delete file;
    return TRUE;
}
