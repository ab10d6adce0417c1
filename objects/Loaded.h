#pragma once

#include <utility>

// Something that an object loaded or built: a picture, a font, a sub-object. Copying an object copies its description
// and never this: in a copy it starts afresh, as a default-made T. Wrapping every such member in Loaded is all that an
// object kind has to do to be copyable.
template <class T> class Loaded {
public:
    Loaded() = default;
    Loaded(const Loaded& other)
        : Loaded()
    {
        static_cast<void>(other);
    }
    Loaded& operator=(const Loaded& other)
    {
        if (this != &other)
            value = T {};
        return *this;
    }
    Loaded(Loaded&&) noexcept = default;
    Loaded& operator=(Loaded&&) noexcept = default;
    ~Loaded() = default;
    Loaded& operator=(T loaded)
    {
        value = std::move(loaded);
        return *this;
    }

    T& operator*() { return value; }
    const T& operator*() const { return value; }
    T* operator->() { return &value; }
    const T* operator->() const { return &value; }

private:
    T value {};
};
