#pragma once

#include "platform/windows/Names.h"

#include <optional>
#include <span>

namespace platform {

// The number that stands in the place of a resource's name; nothing where there is a name.
std::optional<int> ResourceNumber(const char* name);

// The resource of the name, or null.
template <typename Resource> const Resource* FindResource(std::span<const Resource> resources, const char* name)
{
    if (ResourceNumber(name))
        return nullptr;
    for (const Resource& resource : resources)
        if (SameName(resource.name, name))
            return &resource;
    return nullptr;
}

} // namespace platform
