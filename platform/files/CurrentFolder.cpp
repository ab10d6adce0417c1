#include "platform/CurrentFolder.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

// O_PATH asks for no permission to read the folder.
CurrentFolder::CurrentFolder()
    : descriptor(open(".", O_PATH | O_DIRECTORY | O_CLOEXEC))
{
}

CurrentFolder::~CurrentFolder()
{
    if (descriptor >= 0)
        close(descriptor);
}

void CurrentFolder::GoBack() const
{
    const bool wentBack = fchdir(descriptor) == 0;
    static_cast<void>(wentBack);
}

} // namespace platform
