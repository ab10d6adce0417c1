#pragma once

#include "objects/ScreenObject.h"
#include "script/ParsedScreen.h"

#include <memory>
#include <string>
#include <vector>

// The whole file.
std::string ReadBytes(const std::string& nativePath);

// A parsed screen as UTF-8, one object a line.
std::string Describe(const ParsedScreen& screen);

// The objects in the order and with the layers of a loaded screen. Nothing is loaded: a picture's size is the one that
// the script names.
std::vector<std::unique_ptr<ScreenObject>> TakeObjects(ParsedScreen screen);

// An object whose picture has this size.
template <class Object> class Sized : public Object {
public:
    Sized(const Object& object, vec extent)
        : Object(object)
    {
        this->size = this->view = extent;
    }
};
