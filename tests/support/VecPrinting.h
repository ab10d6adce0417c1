#pragma once

#include "objects/vec.h"

#include <ostream>

// So that a failed expectation shows numbers instead of bytes.
inline std::ostream& operator<<(std::ostream& out, vec v)
{
    return out << '(' << v.x << ", " << v.y << ')';
}
