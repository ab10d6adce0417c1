#pragma once

#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/PictureObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "objects/vec.h"

#include <memory>
#include <optional>
#include <vector>

// What a screen script describes: fresh objects whose fields are set and whose pictures are not loaded, each kind in
// the script's order.
struct ParsedScreen {
    std::vector<std::unique_ptr<PictureObject>> pictures;
    std::vector<std::unique_ptr<AnimationObject>> animations;
    std::vector<std::unique_ptr<ButtonObject>> buttons;
    std::vector<std::unique_ptr<WordObject>> words;
    std::vector<std::unique_ptr<CheckBoxObject>> checkBoxes;
    std::vector<std::unique_ptr<SelectboxObject>> selectboxes;
    std::optional<vec> screenSize; // empty when the script has no such statement
    std::optional<vec> screenPos;
};
