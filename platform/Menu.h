#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

struct MenuItem {
    uint32_t id = 0;
    std::string text; // UTF-8; every character stands for itself
};

// A loaded menu resource, which has one pop-up, or such a pop-up, which has items.
struct Menu {
    std::vector<MenuItem> items;
    std::vector<std::unique_ptr<Menu>> popups;
};

} // namespace platform
