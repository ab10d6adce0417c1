#pragma once

#include "gfx/LoadFailure.h"
#include "objects/ScreenDocument.h"
#include "script/ParsedScreen.h"
#include "script/ScriptKinds.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>

// An object that could not be built.
struct BuildFailure {
    ObjectKind kind = KindNone;
    size_t number = 0; // of its stage among all of its kind, from 0
    std::string fileName; // its picture, or the alpha file where that is to blame; empty for texts
    SLoadFailure_ reason;
};

// "Button 1, Q.bmp: no such file". File names stay code page 950.
std::string InWords(const BuildFailure& failure);

// Loads the pictures and renders the texts of what was parsed, and adds the objects on top of the document's, kind by
// kind in the order of a script's blocks: layers are numbered so, whatever the file says. Stops at the first object
// that cannot be built; those before it stay in the document.
[[nodiscard]] std::optional<BuildFailure> BuildScreen(ParsedScreen parsed, ScreenDocument& document);

// The steps of it: calls visit(kind, list, add) with the objects of each kind in that order and the document's
// operation that takes one, until a call answers false.
template <class Visit> void VisitKinds(ParsedScreen& parsed, Visit visit)
{
    const auto visitKind = [&](ObjectKind kind) {
        switch (kind) {
        case KindNone:
            break;
        case KindPicture:
            return visit(kind, parsed.pictures, &ScreenDocument::AddPicture);
        case KindButton:
            return visit(kind, parsed.buttons, &ScreenDocument::AddButton);
        case KindAnimation:
            return visit(kind, parsed.animations, &ScreenDocument::AddAnimation);
        case KindWord:
            return visit(kind, parsed.words, &ScreenDocument::AddWord);
        case KindCheckBox:
            return visit(kind, parsed.checkBoxes, &ScreenDocument::AddCheckBox);
        case KindSelectbox:
            return visit(kind, parsed.selectboxes, &ScreenDocument::AddSelectbox);
        }
        return true;
    };
    static_cast<void>(std::all_of(std::begin(scriptKinds), std::end(scriptKinds), visitKind));
}
