#pragma once

#include "objects/vec.h"

// An object as if it had loaded a picture of this size.
template <class Object> class Sized : public Object {
public:
    Sized(const Object& object, vec extent)
        : Object(object)
    {
        this->size = this->view = extent;
    }
};
