#pragma once

#include <cstdint>

namespace platform {
struct File;
}

// A file open for reading, at most one at a time; closed when the reader goes.
class CFileR_ {
public:
    CFileR_();
    CFileR_(const CFileR_&) = delete;
    CFileR_& operator=(const CFileR_&) = delete;
    ~CFileR_() { Close_(); }

    // The name is a backslash path in code page 950. False when a file is open already or this one cannot be read.
    [[nodiscard]] bool Open_(const char* fileName);
    // The offset counts bytes from the start. One behind the end is accepted, but nothing is there to be read.
    [[nodiscard]] bool SeekSet_(uint32_t offset);
    // Fills the caller's buffer. False unless all `count` bytes were there; the buffer's are then undefined.
    [[nodiscard]] bool Read_(void* buffer, int32_t count);
    void Close_();

    // The length in bytes when it was opened, 0 without a file.
    uint32_t Size_() const { return size; }

private:
    bool IsOpen_() const;

    platform::File* handle; // INVALID_HANDLE_VALUE: none
    uint32_t size = 0;
};
