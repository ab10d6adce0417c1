#pragma once

namespace platform {

// The process's current folder as it was when this was made, to go back to.
class CurrentFolder {
public:
    CurrentFolder();
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder();

    // Finds it under another name as well. Nothing happens when it has been deleted.
    void GoBack() const;

private:
    int descriptor;
};

} // namespace platform
