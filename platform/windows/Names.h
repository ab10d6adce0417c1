#pragma once

#include <string_view>

namespace platform {

// Names of classes and resources are the same when they differ in the case of ASCII letters only.
bool SameName(std::string_view one, std::string_view other);

} // namespace platform
