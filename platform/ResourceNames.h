#pragma once

namespace platform {

// Whether two names of classes or resources are the same: their case does not count.
bool SameName(const char* one, const char* other);
// Whether a number stands in the place of a name, and which.
bool IsResourceNumber(const char* name, int& number);

} // namespace platform
